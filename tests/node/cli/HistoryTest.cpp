#include <chrono>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/cli/KeptAnswers.h"
#include "node/cli/Session.h"
#include "node/commands/RecordingDesk.h"
#include "node/trace/TraceLibrary.h"
#include "support/TemporaryFolder.h"

using node::cli::History;
using node::cli::Session;
using node::radio::Ticks;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace
{

/// What a session keeps of the commands since its node began.
class HistoryTest : public ::testing::Test
{
protected:
    void carryOut(const std::vector<std::string>& lines)
    {
        for (const std::string& line : lines)
        {
            session.carryOutLine(line, "<stdin>:1");
        }
    }

    std::vector<std::string> commands() const
    {
        std::vector<std::string> texts;
        for (const node::output::Answer& command : session.history().commands)
        {
            texts.push_back(textOf(command));
        }
        return texts;
    }

    RecordingDesk desk;
    KeptAnswers output;
    Session session{desk, output, withoutWaiting()};

private:
    static node::cli::Surroundings withoutWaiting()
    {
        node::cli::Surroundings surroundings;
        surroundings.wait = [](std::chrono::milliseconds) { return false; };
        return surroundings;
    }
};

TEST_F(HistoryTest, HasTimeNameAndArgumentsAlone)
{
    carryOut({"getC 0x1", "advance 1.5", "setRain 10"});
    EXPECT_THAT(commands(), ElementsAre("\"getCtStatus\" [\"0x1\"]\ntime 0s\nstatus 0\n",
                                        "\"advance\" [\"1.5\"]\ntime 0s\nstatus 0\n",
                                        "\"setRain\" [\"10\"]\ntime 1.5s\nstatus 0\n"));
    EXPECT_TRUE(session.history().complete);
}

TEST_F(HistoryTest, HasCommandsThatFailed)
{
    desk.recorder.result = 1;
    carryOut({"startDpd 1", "startDpd 3"});
    EXPECT_THAT(commands(),
                ElementsAre("\"startDpd\" [\"1\"]\ntime 0s\nstatus 0\n", "\"startDpd\" [\"3\"]\ntime 0s\nstatus 0\n"));
}

TEST_F(HistoryTest, HasNothingThatLeavesTheNodeAsItIs)
{
    carryOut({"help", "nonsense", "getX", "", "# comment", "\"", "filterTrace *", "stopRecord", "exit"});
    EXPECT_THAT(commands(), IsEmpty());
}

TEST_F(HistoryTest, HasEachRoundOfAWatch)
{
    carryOut({"watch -c 2 -n 1 listFaults"});
    EXPECT_THAT(commands(),
                ElementsAre("\"listFaults\" []\ntime 0s\nstatus 0\n", "\"listFaults\" []\ntime 1s\nstatus 0\n"));
}

TEST_F(HistoryTest, BeginsWithTheNode)
{
    const TemporaryFolder folder;
    const std::string text = "[hop]\ndistance_km = 12.5\n";
    const std::string file = folder.write("hop.toml", text);
    node::trace::setLevel("HistoryTest", 2);
    carryOut({"advance 1", "loadScenario " + file, "listFaults"});
    const History& history = session.history();
    EXPECT_EQ(file, history.beginning.scenarioFile);
    EXPECT_EQ(text, history.beginning.scenarioText);
    EXPECT_EQ(node::trace::levels(), history.beginning.traceLevels);
    EXPECT_EQ(2, history.beginning.traceLevels.at("HistoryTest"));
    EXPECT_THAT(commands(), ElementsAre("\"listFaults\" []\ntime 0s\nstatus 0\n"));

    session.start({"", {}, "another file", "another text"});
    EXPECT_EQ("another file", history.beginning.scenarioFile);
    EXPECT_EQ("another text", history.beginning.scenarioText);
    EXPECT_THAT(commands(), IsEmpty());
}

TEST_F(HistoryTest, BeginsWithTheNodeThatIsOnTheDesk)
{
    desk.start({"", {}, "a file", "a text"});
    const Session later(desk, output);
    EXPECT_EQ("a file", later.history().beginning.scenarioFile);
    EXPECT_EQ("a text", later.history().beginning.scenarioText);
}

TEST_F(HistoryTest, HasNothingThatAFileDecides)
{
    carryOut({"advance 1", "loadScenario absent", "sample 1 1 /dev/full/x", "sample 1 1 /dev/full", "listScenarios"});
    EXPECT_THAT(commands(), ElementsAre("\"advance\" [\"1\"]\ntime 0s\nstatus 0\n"));
}

TEST_F(HistoryTest, ForgetsAllWhenThereIsOneTooMany)
{
    History history;
    node::output::Answer answer;
    answer.command = "listFaults";
    for (int command = 0; command < 10'000; ++command)
    {
        add(history, answer);
    }
    EXPECT_TRUE(history.complete);
    EXPECT_THAT(history.commands, SizeIs(10'000));
    add(history, answer);
    EXPECT_FALSE(history.complete);
    EXPECT_THAT(history.commands, IsEmpty());
    add(history, answer);
    EXPECT_FALSE(history.complete);
    EXPECT_THAT(history.commands, IsEmpty());
    begin(history, {});
    EXPECT_TRUE(history.complete);
}

} // namespace
