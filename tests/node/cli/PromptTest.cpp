#include <gmock/gmock.h>

#include "node/cli/SessionTest.h"

using node::cli::Session;
using node::cli::Status;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

class PromptTest : public SessionTest
{
protected:
    Status runAtPrompt(const std::string& lines)
    {
        return run(lines, Session::Lines::AtPrompt);
    }

    std::string greeting = "A simulated node. \"help\" lists the commands, \"exit\" leaves.\n";
};

TEST_F(PromptTest, ThePromptGreetsAndPromptsUntilTheInputEnds)
{
    EXPECT_EQ(Status::Done, runAtPrompt("getCtStatus 1\n\n"));
    EXPECT_EQ(greeting + "kel-node> the report\n"
                         "kel-node> "
                         "kel-node> \n",
              output.str());
    EXPECT_EQ("", errors.str());
}

TEST_F(PromptTest, ExitLeavesThePrompt)
{
    EXPECT_EQ(Status::Done, runAtPrompt("exit\nstartDpd 1\n"));
    EXPECT_EQ(greeting + "kel-node> ", output.str());
    EXPECT_THAT(commands.calls, IsEmpty());
}

TEST_F(PromptTest, ExitWithAnArgumentStays)
{
    EXPECT_EQ(Status::Done, runAtPrompt("exit now\nstartDpd 1\n"));
    EXPECT_EQ("kel-node: exit: argument 1: found \"now\", expected nothing more\n", errors.str());
    EXPECT_THAT(commands.calls, ElementsAre("startDpd(1)"));
}

TEST_F(PromptTest, ThePromptGoesOnAfterFailures)
{
    commands.result = 1;
    EXPECT_EQ(Status::Done, runAtPrompt("nonsense\nstopDpd 1\nstopDpd 9\nstartDpd 1\n"));
    EXPECT_THAT(commands.calls, ElementsAre("stopDpd(1)", "startDpd(1)"));
    EXPECT_EQ("kel-node: command: found \"nonsense\", expected one that \"help\" lists\n"
              "kel-node: stopDpd: failed\n"
              "kel-node: stopDpd: argument 1 (channel): found \"9\", expected a whole number from 1 to 2\n"
              "kel-node: startDpd: failed\n",
              errors.str());
}

TEST_F(PromptTest, ThePromptStandsOnALineOfItsOwn)
{
    commands.report = "no line end";
    EXPECT_EQ(Status::Done, runAtPrompt("getCtStatus 1\nstartDpd 1\n"));
    EXPECT_EQ(greeting + "kel-node> no line end\n"
                         "kel-node> "
                         "kel-node> \n",
              output.str());
}

} // namespace
