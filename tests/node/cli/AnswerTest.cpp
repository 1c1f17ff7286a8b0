#include <new>
#include <stdexcept>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/cli/KeptAnswers.h"
#include "node/cli/Session.h"
#include "node/commands/RecordingDesk.h"
#include "node/wording/InputError.h"

using node::cli::Session;
using node::cli::Status;
using node::radio::Ticks;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace
{

/// What a session answers, 1.5 s after its node began.
class AnswerTest : public ::testing::Test
{
protected:
    AnswerTest()
    {
        desk.link().advance(Ticks(15));
    }

    /// Carries out a line. @return its answer
    std::string answerTo(const std::string& line, const std::string& place = "")
    {
        output.answers.clear();
        const Status status = session.carryOutLine(line, place);
        EXPECT_THAT(output.answers, SizeIs(1)) << line;
        EXPECT_EQ(status, output.answers.at(0).status);
        return textOf(output.answers.at(0));
    }

    RecordingDesk desk;
    KeptAnswers output;
    Session session{desk, output};
};

TEST_F(AnswerTest, HasAllOfACommandThatIsDone)
{
    EXPECT_EQ(R"(place faults.txt:3
"getCtStatus" ["0x2"]
channel 2
time 1.5s
status 0
result 0, "the report\n"
)",
              answerTo("getC 0x2", "faults.txt:3"));
    desk.recorder.report = "Lock: locked\n";
    answerTo("getCtStatus 1");
    EXPECT_EQ(node::report::fieldsOf("Lock: locked\n"), fieldsOf(*output.answers.at(0).outcome));
}

TEST_F(AnswerTest, HasTheReportOfACommandThatFailed)
{
    desk.recorder.result = 1;
    EXPECT_EQ(R"("getCtStatus" ["1"]
channel 1
time 1.5s
status 1
result 1, "the report\n"
error getCtStatus: failed
)",
              answerTo("getC 1"));
}

TEST_F(AnswerTest, HasTheTimeWhenTheCommandBegan)
{
    EXPECT_EQ("\"advance\" [\"10\"]\ntime 1.5s\nstatus 0\nresult 0, \"\"\n", answerTo("advance 10"));
    EXPECT_EQ("\"clearFaults\" []\ntime 11.5s\nstatus 0\nresult 0, \"\"\n", answerTo("clearFaults"));
}

TEST_F(AnswerTest, HasNoOutcomeWhereTheCallThrew)
{
    desk.recorder.duringCall = [] { throw std::runtime_error("the service is gone"); };
    EXPECT_EQ("\"startDpd\" [\"1\"]\nchannel 1\ntime 1.5s\nstatus 1\nerror startDpd: threw the service is gone\n",
              answerTo("startDpd 1"));
    desk.recorder.duringCall = [] { throw std::bad_alloc(); };
    EXPECT_EQ("\"startDpd\" [\"2\"]\nchannel 2\ntime 1.5s\nstatus 1\nerror startDpd: threw std::bad_alloc\n",
              answerTo("startDpd 2"));
}

TEST_F(AnswerTest, OfACommandThatSaysWhyItFailedDoesNotSayThatItThrew)
{
    EXPECT_EQ("\"sample\" [\"1\", \"1\", \"/dev/full\"]\ntime 1.5s\nstatus 1\n"
              "error sample: \"/dev/full\" cannot be written any more\n",
              answerTo("sa 1 1 /dev/full"));
}

TEST_F(AnswerTest, OfWhatIsNoCommandHasItAsItWasTyped)
{
    EXPECT_EQ(R"(place <stdin>:1
"getX" ["1"]
time 1.5s
status 2
error command: found "getX", expected more of its name: getXpicPreamble, getXpicStatus
)",
              answerTo("getX 1", "<stdin>:1"));
    EXPECT_EQ(R"("nonsense" []
time 1.5s
status 2
error command: found "nonsense", expected one that "help" lists
)",
              answerTo("nonsense"));
}

TEST_F(AnswerTest, OfALineThatHasNoWordsHasItsPlace)
{
    EXPECT_EQ(R"(place <stdin>:1
"" []
time 1.5s
status 2
error line: found a quotation mark alone, expected another one that closes it
)",
              answerTo("startDpd \"1", "<stdin>:1"));
}

TEST_F(AnswerTest, OfArgumentsThatDoNotFitHasTheChannelThatDoes)
{
    EXPECT_EQ(R"("setXpicPreamble" ["2", "256"]
channel 2
time 1.5s
status 2
error setXpicPreamble: argument 2 (preamble): found "256", expected a whole number from 0 to 255
)",
              answerTo("setXpicP 2 256"));
    EXPECT_EQ(R"("startDpd" ["3"]
time 1.5s
status 2
error startDpd: argument 1 (channel): found "3", expected a whole number from 1 to 2
)",
              answerTo("startD 3"));
    EXPECT_EQ(R"("startDpd" []
time 1.5s
status 2
error startDpd: argument 1 (channel): found nothing, expected a whole number from 1 to 2
)",
              answerTo("startDpd"));
}

TEST_F(AnswerTest, HasTheChannelOfCommandsOfTheLinkAndNoneOfOthers)
{
    answerTo("setTransmitter 1 off");
    EXPECT_EQ(1U, output.answers.at(0).channel);
    answerTo("setFade 1");
    EXPECT_EQ(std::nullopt, output.answers.at(0).channel);
    answerTo("filterTrace 1");
    EXPECT_EQ(std::nullopt, output.answers.at(0).channel);
}

TEST_F(AnswerTest, WithoutANodeSaysSo)
{
    desk.clear();
    EXPECT_EQ("\"startDpd\" [\"1\"]\nchannel 1\ntime 0s\nstatus 3\nerror the desk is empty\n", answerTo("startDpd 1"));
    EXPECT_EQ(std::nullopt, session.nodeTime());
}

TEST_F(AnswerTest, OfANodeThatDoesNotStartSaysWhy)
{
    desk.refuses = true;
    EXPECT_EQ("\"loadScenario\" [\"clear-sky\"]\ntime 1.5s\nstatus 3\nerror the desk refuses\n",
              answerTo("loadScenario clear-sky"));
}

TEST_F(AnswerTest, IsNotShownOfEmptyLinesAndComments)
{
    for (const std::string line : {"", " \t", "# startDpd 1", "  #\""})
    {
        EXPECT_EQ(Status::Done, session.carryOutLine(line, "<stdin>:1")) << line;
    }
    EXPECT_THAT(output.answers, IsEmpty());
}

TEST_F(AnswerTest, OfAStepIsShownWhenItFails)
{
    EXPECT_EQ(Status::Done, session.attempt([] {}).status);
    EXPECT_THAT(output.answers, IsEmpty());
    session.attempt([] { throw node::wording::InputError("file", "nothing", "lines"); });
    session.attempt([] { throw node::startup::StartUpError("it does not start"); });
    session.attempt([] { throw node::commands::CommandError("it is full"); });
    const auto last = session.attempt([] { throw std::runtime_error("it broke"); });
    EXPECT_EQ(textOf(last), textOf(output.answers.back()));
    ASSERT_THAT(output.answers, SizeIs(4));
    EXPECT_EQ("\"\" []\ntime 1.5s\nstatus 2\nerror file: found nothing, expected lines\n", textOf(output.answers[0]));
    EXPECT_EQ("\"\" []\ntime 1.5s\nstatus 3\nerror it does not start\n", textOf(output.answers[1]));
    EXPECT_EQ("\"\" []\ntime 1.5s\nstatus 1\nerror it is full\n", textOf(output.answers[2]));
    EXPECT_EQ("\"\" []\ntime 1.5s\nstatus 1\nerror threw it broke\n", textOf(output.answers[3]));
}

TEST_F(AnswerTest, LeavesWhenExitIsSaid)
{
    EXPECT_FALSE(session.left());
    session.carryOut({"exit", "now"});
    EXPECT_FALSE(session.left());
    EXPECT_EQ("\"exit\" []\ntime 1.5s\nstatus 0\nresult 0, \"\"\n", answerTo("exit"));
    EXPECT_TRUE(session.left());
}

TEST_F(AnswerTest, GoesToAnOutputThatTheSessionAsks)
{
    EXPECT_TRUE(session.good());
    output.isGood = false;
    EXPECT_FALSE(session.good());
    session.closeLine();
    EXPECT_EQ(1, output.closedLines);
}

} // namespace
