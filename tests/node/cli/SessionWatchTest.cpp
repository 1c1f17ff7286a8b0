#include <chrono>
#include <csignal>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/cli/KeptAnswers.h"
#include "node/cli/Session.h"
#include "node/commands/RecordingDesk.h"
#include "node/output/JsonOutput.h"
#include "node/output/TextOutput.h"
#include "support/TemporaryFolder.h"
#include "trace/VemTrace.h"

using node::cli::Session;
using node::cli::Status;
using node::cli::Surroundings;
using node::radio::Ticks;
using std::chrono::milliseconds;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace
{

/// A watch that waits for nothing and, from the round `interruptedIn` on, is interrupted.
class SessionWatchTest : public ::testing::Test
{
protected:
    Status carryOut(const std::string& line)
    {
        return session.carryOutLine(line);
    }

    /// A line for each answer: command, time in tenths, status.
    std::vector<std::string> answers() const
    {
        std::vector<std::string> texts;
        for (const node::output::Answer& answer : output.answers)
        {
            texts.push_back(
                fmt::format("{} {} {}", answer.command, answer.time.count(), static_cast<int>(answer.status)));
        }
        return texts;
    }

    Surroundings surroundings()
    {
        Surroundings made;
        made.wait = [this](milliseconds time)
        {
            waits.push_back(time);
            return waits.size() >= interruptedIn;
        };
        return made;
    }

    std::vector<milliseconds> waits;
    std::size_t interruptedIn = 10;
    RecordingDesk desk;
    KeptAnswers output;
    Session session{desk, output, surroundings()};
};

TEST_F(SessionWatchTest, CarriesTheCommandOutInEachRoundWithTheIntervalBetween)
{
    EXPECT_EQ(Status::Done, carryOut("watch -n 1.5 -c 3 getC 1"));
    EXPECT_THAT(desk.recorder.calls, ElementsAre("getCtStatus(1)", "getCtStatus(1)", "getCtStatus(1)"));
    EXPECT_THAT(answers(), ElementsAre("getCtStatus 0 0", "getCtStatus 15 0", "getCtStatus 30 0", "watch 0 0"));
    EXPECT_THAT(waits, ElementsAre(milliseconds(1500), milliseconds(1500)));
    EXPECT_EQ(Ticks(30), desk.link().conditions().time);
    EXPECT_EQ("", output.answers.back().outcome->output);
}

TEST_F(SessionWatchTest, TellsTheOutputWhatIsWatched)
{
    carryOut("watch -n 1.5 -c 3 getC 1");
    ASSERT_THAT(output.watches, SizeIs(1));
    EXPECT_THAT(output.watches[0].command, ElementsAre("getC", "1"));
    EXPECT_EQ(Ticks(15), output.watches[0].interval);
    EXPECT_EQ(3U, output.watches[0].rounds);
}

TEST_F(SessionWatchTest, OneRoundWaitsForNothing)
{
    carryOut("watch -c 1 getCtStatus 1");
    EXPECT_THAT(answers(), ElementsAre("getCtStatus 0 0", "watch 0 0"));
    EXPECT_THAT(waits, IsEmpty());
    EXPECT_EQ(Ticks(0), desk.link().conditions().time);
}

TEST_F(SessionWatchTest, ByAClockTimeIsNotTold)
{
    Ticks now{100};
    Surroundings byClock = surroundings();
    byClock.clock = [&] { return now; };
    byClock.wait = [&](milliseconds)
    {
        now += Ticks(7);
        return false;
    };
    Session clocked(desk, output, byClock);
    clocked.carryOutLine("watch -n 2 -c 3 getCtStatus 1");
    EXPECT_THAT(answers(), ElementsAre("getCtStatus 0 0", "getCtStatus 7 0", "getCtStatus 14 0", "watch 0 0"));
}

TEST_F(SessionWatchTest, CtrlCEndsItWithTheLastRound)
{
    interruptedIn = 2;
    EXPECT_EQ(Status::Done, carryOut("watch getCtStatus 1"));
    EXPECT_THAT(answers(), ElementsAre("getCtStatus 0 0", "getCtStatus 20 0", "watch 0 0"));
    EXPECT_EQ(Ticks(20), desk.link().conditions().time);
    waits.clear();
    desk.recorder.result = 1;
    EXPECT_EQ(Status::CommandFailed, carryOut("watch getCtStatus 1"));
    EXPECT_EQ("watch: failed", output.answers.back().error);
    EXPECT_EQ(2, output.interruptions);
}

TEST_F(SessionWatchTest, CtrlCInsideOfARoundEndsItToo)
{
    desk.recorder.duringCall = [] { throw node::commands::Interrupted(); };
    EXPECT_EQ(Status::CommandFailed, carryOut("watch startDpd 1"));
    EXPECT_THAT(answers(), ElementsAre("startDpd 0 1", "watch 0 1"));
    EXPECT_EQ("startDpd: interrupted", output.answers.front().error);
    EXPECT_THAT(waits, IsEmpty());
    EXPECT_EQ(1, output.interruptions);
    output.answers.clear();
    desk.recorder.duringCall = [] {};
    carryOut("watch -c 2 startDpd 1");
    EXPECT_THAT(output.answers, SizeIs(3));
    EXPECT_EQ(1, output.interruptions);
}

TEST_F(SessionWatchTest, WaitsForCtrlCItselfWhereNothingElseDoes)
{
    Session waiting(desk, output);
    desk.recorder.duringCall = [] { std::raise(SIGINT); };
    waiting.carryOutLine("watch -n 100h getCtStatus 1");
    EXPECT_THAT(answers(), ElementsAre("getCtStatus 0 0", "watch 0 0"));
}

TEST_F(SessionWatchTest, ACommandThatFailsIsWatchedOn)
{
    desk.recorder.result = 1;
    EXPECT_EQ(Status::CommandFailed, carryOut("watch -c 2 startDpd 1"));
    EXPECT_THAT(answers(), ElementsAre("startDpd 0 1", "startDpd 20 1", "watch 0 1"));
    EXPECT_EQ("startDpd: failed", output.answers.front().error);
    EXPECT_EQ("watch: failed", output.answers.back().error);
    EXPECT_EQ(1, output.answers.back().outcome->result);
}

TEST_F(SessionWatchTest, TheLastRoundDecides)
{
    desk.recorder.duringCall = [this] { desk.recorder.result = desk.recorder.calls.size() == 1 ? 1 : 0; };
    EXPECT_EQ(Status::Done, carryOut("watch -c 2 startDpd 1"));
    EXPECT_THAT(answers(), ElementsAre("startDpd 0 1", "startDpd 20 0", "watch 0 0"));
}

TEST_F(SessionWatchTest, ACommandThatThrowsIsWatchedOn)
{
    desk.recorder.duringCall = [] { throw std::runtime_error("the service is gone"); };
    EXPECT_EQ(Status::CommandFailed, carryOut("watch -c 2 startDpd 1"));
    EXPECT_THAT(answers(), ElementsAre("startDpd 0 1", "startDpd 20 1", "watch 0 1"));
}

TEST_F(SessionWatchTest, ACommandThatIsNotUnderstoodEndsItAtOnce)
{
    EXPECT_EQ(Status::NotUnderstood, carryOut("watch startDpd 3"));
    EXPECT_THAT(answers(), ElementsAre("watch 0 2"));
    EXPECT_EQ("startDpd: argument 1 (channel): found \"3\", expected a whole number from 1 to 2",
              output.answers.back().error);
    EXPECT_EQ(std::nullopt, output.answers.back().outcome);
    EXPECT_THAT(waits, IsEmpty());
}

TEST_F(SessionWatchTest, ANodeThatDoesNotStartEndsItAtOnceWithItsMessages)
{
    VemTrace trace("SessionWatchTest", 3);
    desk.recorder.duringCall = [&]
    {
        trace.beginLogMsg(1, {});
        trace.messageStream() << "why" << std::flush;
        throw node::startup::StartUpError("it does not start");
    };
    EXPECT_EQ(Status::NotStarted, carryOut("watch startDpd 1"));
    ASSERT_THAT(output.answers, SizeIs(1));
    EXPECT_EQ(R"("watch" ["startDpd", "1"]
time 0s
status 3
trace 0s SessionWatchTest:1 "why"
error it does not start
)",
              textOf(output.answers[0]));
}

TEST_F(SessionWatchTest, WithoutANodeTheCommandsThatNeedNoneAreWatched)
{
    desk.clear();
    EXPECT_EQ(Status::Done, carryOut("watch -c 2 listTraceLevels"));
    EXPECT_THAT(answers(), ElementsAre("listTraceLevels 0 0", "listTraceLevels 0 0", "watch 0 0"));
}

TEST_F(SessionWatchTest, EndsWhenNothingCanBeWrittenAnyMore)
{
    output.atShow = [this] { output.isGood = false; };
    carryOut("watch startDpd 1");
    EXPECT_THAT(answers(), ElementsAre("startDpd 0 0", "watch 0 0"));
    EXPECT_THAT(waits, IsEmpty());
}

/// Hands on what it is given.
class View : public KeptAnswers
{
public:
    explicit View(KeptAnswers& to) : m_to(to)
    {
    }

    void trace(const node::output::TimedMessage& message) override
    {
        m_to.trace(message);
    }

    void show(const node::output::Answer& answer) override
    {
        m_to.show(answer);
    }

private:
    KeptAnswers& m_to;
};

TEST_F(SessionWatchTest, ItsRoundsGoToTheViewAndWhatComesBehindDoesNot)
{
    KeptAnswers rounds;
    output.view = [&] { return std::make_unique<View>(rounds); };
    VemTrace trace("SessionWatchTest", 3);
    desk.recorder.duringCall = [&]
    {
        trace.beginLogMsg(1, {});
        trace.messageStream() << "inside" << std::flush;
    };
    carryOut("watch -c 2 startDpd 1");
    carryOut("watch startDpd 3");
    carryOut("listCalls");
    EXPECT_THAT(answers(), ElementsAre("watch 0 0", "watch 20 2", "listCalls 20 0"));
    EXPECT_THAT(rounds.answers, SizeIs(2));
    EXPECT_THAT(rounds.told, ElementsAre("inside", "inside"));
    EXPECT_THAT(output.told, IsEmpty());
    carryOut("startDpd 1");
    EXPECT_THAT(output.told, ElementsAre("inside"));
}

TEST_F(SessionWatchTest, AsTextItsRoundsHaveTitlesAndItsErrorStandsBehind)
{
    std::ostringstream text;
    node::output::TextOutput textOutput(text, text);
    Session told(desk, textOutput, surroundings());
    desk.recorder.result = 1;
    told.carryOutLine("watch -c 2 getC 1");
    EXPECT_EQ(R"(Every 2s: getC 1 at 0:00:00.0
  the report
kel-node: getCtStatus: failed

Every 2s: getC 1 at 0:00:02.0
  the report
kel-node: getCtStatus: failed
kel-node: watch: failed
)",
              text.str());
}

} // namespace
