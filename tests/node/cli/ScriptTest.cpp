#include <fstream>
#include <istream>
#include <streambuf>
#include <string>

#include <gmock/gmock.h>

#include "node/cli/SessionTest.h"
#include "node/commands/Command.h"
#include "node/reference/Help.h"
#include "node/wording/InputError.h"
#include "support/TemporaryFolder.h"

using node::cli::AtFailure;
using node::cli::Status;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

using ScriptTest = SessionTest;

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
    EXPECT_EQ("kel-node: <stdin>:1: startDpd: argument 2: found \"#\", expected nothing more\n", errors.str());
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
    EXPECT_EQ("kel-node: <stdin>:4: startDpd: argument 1 (channel): found \"3\", expected a whole number from 1 to 2\n",
              errors.str());
}

TEST_F(ScriptTest, AScriptStopsAtTheFirstCommandThatFails)
{
    commands.result = 1;
    EXPECT_EQ(Status::CommandFailed, runScript("help stopDpd\ngetCtStatus 1\nstopDpd 1\n"));
    EXPECT_THAT(commands.calls, ElementsAre("getCtStatus(1)"));
    EXPECT_EQ(node::reference::describe(node::commands::commandNamed("stopDpd")) + "the report\n", output.str());
    EXPECT_EQ("kel-node: <stdin>:2: getCtStatus: failed\n", errors.str());
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
    EXPECT_EQ("kel-node: <stdin>:1: exit: argument 1: found \"1\", expected nothing more\n", errors.str());
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

TEST_F(ScriptTest, AnErrorBeginsWithTheScriptsName)
{
    std::istringstream input("\nnonsense\n");
    EXPECT_EQ(Status::NotUnderstood, node::cli::runScript(session, input, "faults.txt", AtFailure::Stop));
    EXPECT_EQ("kel-node: faults.txt:2: command: found \"nonsense\", expected one that \"help\" lists\n", errors.str());
}

TEST_F(ScriptTest, GoesOnWhereItIsToldToAndAnswersTheFirstFailure)
{
    commands.duringCall = [this] { commands.result = commands.calls.size() == 1 ? 1 : 0; };
    EXPECT_EQ(Status::CommandFailed,
              runScript("startDpd 1\nstopDpd 1\nnonsense\nstartDpd 2\n\"\nstopDpd 2", AtFailure::GoOn));
    EXPECT_THAT(commands.calls, ElementsAre("startDpd(1)", "stopDpd(1)", "startDpd(2)", "stopDpd(2)"));
    EXPECT_EQ("kel-node: <stdin>:1: startDpd: failed\n"
              "kel-node: <stdin>:3: command: found \"nonsense\", expected one that \"help\" lists\n"
              "kel-node: <stdin>:5: line: found a quotation mark alone, expected another one that closes it\n",
              errors.str());
}

TEST_F(ScriptTest, ThatGoesOnEndsAtExitAllTheSame)
{
    EXPECT_EQ(Status::NotUnderstood, runScript("nonsense\nexit\nstartDpd 1\n", AtFailure::GoOn));
    EXPECT_THAT(commands.calls, IsEmpty());
}

TEST_F(ScriptTest, ThatGoesOnEndsWhenItsOutputCannotBeWrittenAnyMore)
{
    commands.duringCall = [this] { output.setstate(std::ios::badbit); };
    EXPECT_EQ(Status::Done, runScript("startDpd 1\nstartDpd 2\n", AtFailure::GoOn));
    EXPECT_THAT(commands.calls, ElementsAre("startDpd(1)"));
}

TEST_F(ScriptTest, AnInputThatCannotBeReadIsToldByItsName)
{
    const TemporaryFolder folder;
    std::ifstream input(folder.path());
    try
    {
        node::cli::runScript(session, input, "faults.txt", AtFailure::Stop);
        ADD_FAILURE() << "a folder was read";
    }
    catch (const node::wording::InputError& error)
    {
        EXPECT_STREQ("faults.txt: found it unreadable, expected lines", error.what());
    }
}

/// Gives one line; then its disk is gone.
class FailingBuffer : public std::streambuf
{
protected:
    int_type underflow() override
    {
        if (m_given)
        {
            throw std::ios_base::failure("the disk is gone");
        }
        m_given = true;
        setg(m_line.data(), m_line.data(), m_line.data() + m_line.size());
        return traits_type::to_int_type(m_line.front());
    }

private:
    std::string m_line = "startDpd 1\n";
    bool m_given = false;
};

TEST_F(ScriptTest, AnInputThatCannotBeReadOnIsToldBehindTheLinesBefore)
{
    FailingBuffer buffer;
    std::istream input(&buffer);
    EXPECT_THROW(node::cli::runScript(session, input, "faults.txt", AtFailure::GoOn), node::wording::InputError);
    EXPECT_THAT(commands.calls, ElementsAre("startDpd(1)"));
}

TEST_F(ScriptTest, AByteOrderMarkBeforeTheFirstLineIsNoPartOfIt)
{
    EXPECT_EQ(Status::Done, runScript("\xEF\xBB\xBFstartDpd 1\n"));
    EXPECT_EQ(Status::NotUnderstood, runScript("startDpd 1\n\xEF\xBB\xBFstartDpd 1\n"));
}

} // namespace
