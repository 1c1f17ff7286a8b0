#include "node/cli/Progress.h"

#include <chrono>
#include <csignal>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "node/cli/KeptAnswers.h"
#include "node/cli/Session.h"
#include "node/commands/RecordingDesk.h"
#include "node/terminal/Interrupt.h"

using node::cli::Progress;
using node::cli::Session;
using node::commands::Interrupted;
using node::radio::Ticks;
using std::chrono::milliseconds;

namespace
{

/// A progress whose clock the test moves.
class ProgressTest : public ::testing::Test
{
protected:
    /// What has been drawn since the last call.
    std::string drawn()
    {
        std::string text = screen.str();
        screen.str("");
        return text;
    }

    Progress::Clock::time_point now{std::chrono::hours(1)};
    std::ostringstream screen;
    Progress progress{[this](const std::string& drawing) { screen << drawing; }, [this] { return now; }};
};

TEST_F(ProgressTest, IsNotDrawnBeforeHalfASecond)
{
    progress.reached(0.1);
    now += milliseconds(499);
    progress.reached(0.2);
    EXPECT_EQ("", drawn());
    now += milliseconds(20);
    progress.reached(0.3);
    EXPECT_EQ("\r 30 %\033[K", drawn());
}

TEST_F(ProgressTest, IsDrawnAtHalfASecond)
{
    now += milliseconds(500);
    progress.reached(0.5);
    EXPECT_EQ("\r 50 %\033[K", drawn());
}

TEST_F(ProgressTest, IsDrawnTenTimesASecondAtMost)
{
    now += milliseconds(500);
    progress.reached(0.004);
    EXPECT_EQ("\r  0 %\033[K", drawn());
    now += milliseconds(99);
    progress.reached(0.5);
    EXPECT_EQ("", drawn());
    now += milliseconds(21);
    progress.reached(1.0);
    EXPECT_EQ("\r100 %\033[K", drawn());
}

TEST_F(ProgressTest, CtrlCEndsTheCommand)
{
    progress.reached(0.1);
    std::raise(SIGINT);
    now += milliseconds(19);
    EXPECT_NO_THROW(progress.reached(0.2));
    now += milliseconds(1);
    EXPECT_THROW(progress.reached(0.3), Interrupted);
    now += milliseconds(20);
    EXPECT_NO_THROW(progress.reached(0.4));
}

TEST(ProgressEndTest, TakesWhatIsDrawnAway)
{
    std::ostringstream screen;
    Progress::Clock::time_point now;
    {
        Progress progress([&](const std::string& drawing) { screen << drawing; }, [&] { return now; });
        now += milliseconds(500);
        progress.reached(0.5);
    }
    EXPECT_EQ("\r 50 %\033[K\r\033[K", screen.str());
}

TEST(ProgressEndTest, LeavesAScreenAloneWhereNothingIsDrawn)
{
    std::ostringstream screen;
    Progress([&](const std::string& drawing) { screen << drawing; }).reached(0.5);
    EXPECT_EQ("", screen.str());
}

TEST(ProgressEndTest, WithoutAScreenCtrlCEndsTheCommandAllTheSame)
{
    Progress::Clock::time_point now;
    Progress progress(nullptr, [&] { return now; });
    now += milliseconds(500);
    progress.reached(0.5);
    std::raise(SIGINT);
    now += milliseconds(20);
    EXPECT_THROW(progress.reached(0.6), Interrupted);
}

TEST(SessionProgressTest, OfALongRunIsDrawnOnItsScreenAndGoesWithTheRun)
{
    RecordingDesk desk;
    KeptAnswers output;
    std::ostringstream screen;
    node::cli::Surroundings surroundings;
    surroundings.progress = &screen;
    Session session(desk, output, surroundings);
    auto run = session.beginLongRun();
    constexpr int Enough = 100'000'000; // for half a second
    for (int calls = 0; calls < Enough && screen.str().empty(); ++calls)
    {
        run->reached(0.5);
    }
    EXPECT_EQ("\r 50 %\033[K", screen.str());
    run.reset();
    EXPECT_EQ("\r 50 %\033[K\r\033[K", screen.str());
}

TEST(InterruptedCommandTest, KeepsTheTimeThatHasGone)
{
    // Held back until the command looks: outside of one it would end the program.
    const node::terminal::Interrupt held;
    std::raise(SIGINT);

    RecordingDesk desk;
    KeptAnswers output;
    Session session(desk, output);
    EXPECT_EQ(node::cli::Status::CommandFailed, session.carryOutLine("advance 100h"));
    EXPECT_EQ("advance: interrupted", output.answers.back().error);
    EXPECT_EQ(Ticks(600), desk.link().conditions().time);
    EXPECT_EQ(node::cli::Status::Done, session.carryOutLine("advance 2min"));
    EXPECT_EQ(Ticks(1800), desk.link().conditions().time);
}

} // namespace
