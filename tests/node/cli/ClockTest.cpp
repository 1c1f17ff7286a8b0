#include <csignal>
#include <sstream>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/cli/Session.h"
#include "node/commands/RecordingDesk.h"
#include "node/output/TextOutput.h"
#include "node/terminal/Interrupt.h"
#include "support/TemporaryFolder.h"

using node::cli::Session;
using node::cli::Status;
using node::radio::Ticks;

namespace
{

/// A session whose clock the test moves.
class ClockTest : public ::testing::Test
{
protected:
    void carryOut(const std::string& line)
    {
        session.carryOutLine(line);
    }

    Ticks linkTime()
    {
        return desk.link().conditions().time;
    }

    Ticks now{123456};
    RecordingDesk desk;
    std::ostringstream output;
    std::ostringstream errors;
    node::output::TextOutput textOutput{output, errors};
    Session session{desk, textOutput, byClock()};

private:
    node::cli::Surroundings byClock()
    {
        node::cli::Surroundings surroundings;
        surroundings.clock = [this] { return now; };
        return surroundings;
    }
};

TEST_F(ClockTest, TimeGoesOnBeforeEachCommandByWhatTheClockMoved)
{
    carryOut("startDpd 1");
    EXPECT_EQ(Ticks(0), linkTime());
    now += Ticks(7);
    EXPECT_EQ(Ticks(0), linkTime());
    desk.recorder.duringCall = [this] { EXPECT_EQ(Ticks(7), linkTime()); };
    carryOut("startDpd 1");
    EXPECT_EQ(Ticks(7), linkTime());
    carryOut("startDpd 1");
    EXPECT_EQ(Ticks(7), linkTime());
    now += Ticks(36000);
    desk.recorder.duringCall = [] {};
    carryOut("stopDpd 2");
    EXPECT_EQ(Ticks(36007), linkTime());
}

TEST_F(ClockTest, TimeThatIsToldComesOnTop)
{
    now += Ticks(5);
    carryOut("advance 1");
    EXPECT_EQ(Ticks(15), linkTime());
    carryOut("showLink");
    EXPECT_EQ(Ticks(15), linkTime());
    EXPECT_NE(std::string::npos, output.str().find("Time:            0:00:01.5\n"));
}

TEST_F(ClockTest, OneCarriedOutByItselfKeepsTimeToo)
{
    now += Ticks(9);
    EXPECT_EQ(Status::Done, session.carryOut({"showLink"}));
    EXPECT_EQ(Ticks(9), linkTime());
}

TEST_F(ClockTest, LinesWithoutACommandLeaveTheTimeToTheNextOne)
{
    for (const std::string line : {"nonsense", "# comment", "", "\""})
    {
        now += Ticks(1);
        carryOut(line);
        EXPECT_EQ(Ticks(0), linkTime()) << line;
    }
    carryOut("listCalls");
    EXPECT_EQ(Ticks(4), linkTime());
}

TEST_F(ClockTest, TimeGoesOnWhenItIsAskedTo)
{
    now += Ticks(3);
    session.letTimeGoOn();
    EXPECT_EQ(Ticks(3), linkTime());
    session.letTimeGoOn();
    EXPECT_EQ(Ticks(3), linkTime());
}

TEST_F(ClockTest, ANewNodeBeginsAtZeroAndKeepsTimeFromThere)
{
    const TemporaryFolder folder;
    const std::string file = folder.write("plain.toml", "");
    now += Ticks(50);
    carryOut("loadScenario " + file);
    EXPECT_EQ(Ticks(0), linkTime());
    now += Ticks(3);
    carryOut("listFaults");
    EXPECT_EQ(Ticks(3), linkTime());
}

TEST_F(ClockTest, WithoutANodeTimeIsLost)
{
    const TemporaryFolder folder;
    const std::string file = folder.write("plain.toml", "");
    desk.clear();
    now += Ticks(50);
    carryOut("listCalls");
    now += Ticks(50);
    carryOut("loadScenario " + file);
    EXPECT_EQ("", errors.str());
    EXPECT_EQ(Ticks(0), linkTime());
    carryOut("listFaults");
    EXPECT_EQ(Ticks(0), linkTime());
}

TEST_F(ClockTest, WithoutOneTimeStandsStill)
{
    Session told(desk, textOutput);
    EXPECT_EQ(Status::Done, told.carryOut({"showLink"}));
    EXPECT_EQ(Status::Done, told.carryOut({"startDpd", "1"}));
    EXPECT_EQ(Ticks(0), linkTime());
}

TEST_F(ClockTest, CtrlCEndsTheCommandThatALongTimeComesBefore)
{
    const node::terminal::Interrupt held;
    std::raise(SIGINT);
    now += std::chrono::hours(100);
    carryOut("startDpd 1");
    EXPECT_EQ("kel-node: startDpd: interrupted\n", errors.str());
    EXPECT_TRUE(session.interrupted());
    EXPECT_THAT(desk.recorder.calls, ::testing::IsEmpty());
    EXPECT_EQ(Ticks(600), linkTime());
    carryOut("startDpd 1");
    EXPECT_EQ(Ticks(600), linkTime());
}

} // namespace
