#include "node/cli/Prompt.h"

#include <sstream>
#include <string>

#include <gmock/gmock.h>

#include "node/cli/SessionTest.h"

using node::cli::Session;
using node::cli::Status;
using node::terminal::LineEditor;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

class PromptTest : public SessionTest
{
protected:
    /// Types the lines, "^C" for Ctrl-C, and Ctrl-D behind the last.
    void runAtPrompt(const std::string& lines)
    {
        std::istringstream input(lines);
        const auto read = [&](const std::string& prompt)
        {
            output << prompt;
            std::string line;
            if (!std::getline(input, line))
            {
                return LineEditor::Typed{LineEditor::Ending::End, ""};
            }
            return LineEditor::Typed{line == "^C" ? LineEditor::Ending::Interrupted : LineEditor::Ending::Line, line};
        };
        runPrompt(
            session, read, [this](const std::string& printed) { output << printed; }, colours);
    }

    bool colours = false;
    std::string greeting = "A simulated node. \"help\" lists commands, \"?\" what may come next, \"exit\" leaves.\n";
};

TEST_F(PromptTest, ThePromptGreetsAndPromptsUntilTheInputEnds)
{
    runAtPrompt("getCtStatus 1\n\n");
    EXPECT_EQ(greeting + "kel-node 0:00:00.0> the report\n"
                         "kel-node 0:00:00.0> "
                         "kel-node 0:00:00.0> ",
              output.str());
    EXPECT_EQ("", errors.str());
}

TEST_F(PromptTest, ThePromptTellsTheNodesTime)
{
    runAtPrompt("advance 1h\nadvance 61.5");
    EXPECT_EQ(greeting + "kel-node 0:00:00.0> kel-node 1:00:00.0> kel-node 1:01:01.5> ", output.str());
}

TEST_F(PromptTest, WithoutANodeThePromptSaysSo)
{
    desk.clear();
    runAtPrompt("");
    EXPECT_EQ(greeting + "kel-node (no node)> ", output.str());
}

TEST_F(PromptTest, WithColoursThePromptIsBoldAndTellsWhichBytesTakeNoRoom)
{
    colours = true;
    runAtPrompt("");
    EXPECT_EQ(greeting + "\001\033[1m\001kel-node 0:00:00.0>\001\033[0m\001 ", output.str());
}

TEST_F(PromptTest, CtrlCDropsTheLineAndStays)
{
    runAtPrompt("^C\nstartDpd 1\n");
    EXPECT_THAT(commands.calls, ElementsAre("startDpd(1)"));
    EXPECT_EQ(greeting + "kel-node 0:00:00.0> kel-node 0:00:00.0> kel-node 0:00:00.0> ", output.str());
}

TEST_F(PromptTest, ExitLeavesThePrompt)
{
    runAtPrompt("exit\nstartDpd 1\n");
    EXPECT_EQ(greeting + "kel-node 0:00:00.0> ", output.str());
    EXPECT_THAT(commands.calls, IsEmpty());
}

TEST_F(PromptTest, ThePromptEndsWhenNothingCanBePrintedAnyMore)
{
    output.setstate(std::ios::badbit);
    runAtPrompt("startDpd 1\n");
    EXPECT_THAT(commands.calls, IsEmpty());
}

TEST_F(PromptTest, ExitWithAnArgumentStays)
{
    runAtPrompt("exit now\nstartDpd 1\n");
    EXPECT_EQ("kel-node: exit: argument 1: found \"now\", expected nothing more\n", errors.str());
    EXPECT_THAT(commands.calls, ElementsAre("startDpd(1)"));
}

TEST_F(PromptTest, ThePromptGoesOnAfterFailures)
{
    commands.result = 1;
    runAtPrompt("nonsense\nstopDpd 1\nstopDpd 9\nstartDpd 1\n");
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
    runAtPrompt("getCtStatus 1\nstartDpd 1\n");
    EXPECT_EQ(greeting + "kel-node 0:00:00.0> no line end\n"
                         "kel-node 0:00:00.0> "
                         "kel-node 0:00:00.0> ",
              output.str());
}

} // namespace
