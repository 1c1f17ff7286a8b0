#include <gmock/gmock.h>

#include "node/cli/Command.h"
#include "node/cli/Help.h"
#include "node/cli/SessionTest.h"

using node::cli::Session;
using node::cli::Status;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

class ScriptTest : public SessionTest
{
protected:
    Status runScript(const std::string& lines)
    {
        return run(lines, Session::Lines::FromScript);
    }
};

TEST_F(ScriptTest, AScriptRunsEveryLine)
{
    EXPECT_EQ(Status::Done, runScript("startDpd 1\nsetXpicPreamble 2 0x3\ngetXpicPreamble 2"));
    EXPECT_THAT(commands.calls, ElementsAre("startDpd(1)", "setXpicPreamble(2, 3)", "getXpicPreamble(2)"));
    EXPECT_EQ("255\n", output.str());
    EXPECT_EQ("", errors.str());
}

TEST_F(ScriptTest, AnEmptyScriptDoesNothing)
{
    EXPECT_EQ(Status::Done, runScript(""));
    EXPECT_THAT(commands.calls, IsEmpty());
    EXPECT_EQ("", output.str());
    EXPECT_EQ("", errors.str());
}

TEST_F(ScriptTest, EmptyLinesAndCommentsAreSkipped)
{
    EXPECT_EQ(Status::Done, runScript("\n   \n\t\r\n# startDpd 1\n  #stopDpd 1\n#\nstartDpd 2\n"));
    EXPECT_THAT(commands.calls, ElementsAre("startDpd(2)"));
}

TEST_F(ScriptTest, ACommentStandsOnALineOfItsOwn)
{
    EXPECT_EQ(Status::NotUnderstood, runScript("startDpd 2 # now\n"));
    EXPECT_EQ("kel-node: line 1: startDpd: argument 2: found \"#\", expected nothing more\n", errors.str());
    EXPECT_THAT(commands.calls, IsEmpty());
}

TEST_F(ScriptTest, WordsAreApartByAnyBlanks)
{
    EXPECT_EQ(Status::Done, runScript("  setPpsSource\t1   2 \t -3\t\r\n"));
    EXPECT_THAT(commands.calls, ElementsAre("setPpsSource(1, 2, -3)"));
}

TEST_F(ScriptTest, AScriptStopsAtTheFirstLineThatIsNotUnderstood)
{
    EXPECT_EQ(Status::NotUnderstood, runScript("# first\n\nstartDpd 1\nstartDpd 3\nstopDpd 1\n"));
    EXPECT_THAT(commands.calls, ElementsAre("startDpd(1)"));
    EXPECT_EQ("kel-node: line 4: startDpd: argument 1 (channel): found \"3\", expected a whole number from 1 to 2\n",
              errors.str());
}

TEST_F(ScriptTest, AScriptStopsAtTheFirstCommandThatFails)
{
    commands.result = 1;
    EXPECT_EQ(Status::CommandFailed, runScript("help stopDpd\ngetCtStatus 1\nstopDpd 1\n"));
    EXPECT_THAT(commands.calls, ElementsAre("getCtStatus(1)"));
    EXPECT_EQ(describe(node::cli::commandNamed("stopDpd")) + "the report\n", output.str());
    EXPECT_EQ("kel-node: line 2: getCtStatus: failed\n", errors.str());
}

TEST_F(ScriptTest, ExitEndsAScript)
{
    EXPECT_EQ(Status::Done, runScript("startDpd 1\n exit \nnonsense\n"));
    EXPECT_THAT(commands.calls, ElementsAre("startDpd(1)"));
    EXPECT_EQ("", output.str());
    EXPECT_EQ("", errors.str());
}

TEST_F(ScriptTest, ExitTakesNoArguments)
{
    EXPECT_EQ(Status::NotUnderstood, runScript("exit 1\n"));
    EXPECT_EQ("kel-node: line 1: exit: argument 1: found \"1\", expected nothing more\n", errors.str());
}

TEST_F(ScriptTest, AScriptLeavesAReportWithoutALineEndAsItStands)
{
    commands.report = "no line end";
    EXPECT_EQ(Status::Done, runScript("getCtStatus 1\ngetCtStatus 2\n"));
    EXPECT_EQ("no line endno line end", output.str());
}

TEST_F(ScriptTest, AScriptStopsWhenItsOutputCannotBeWritten)
{
    output.setstate(std::ios::badbit);
    EXPECT_EQ(Status::Done, runScript("startDpd 1\n"));
    EXPECT_THAT(commands.calls, IsEmpty());
}

} // namespace
