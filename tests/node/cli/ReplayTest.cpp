#include <csignal>
#include <filesystem>
#include <string>

#include <gmock/gmock.h>

#include "node/cli/RecordingTest.h"
#include "node/commands/LinkText.h"
#include "node/scenario/Scenario.h"
#include "node/terminal/Interrupt.h"

using node::cli::Session;
using node::cli::Status;
using node::cli::Surroundings;
using node::commands::linkText;
using node::commands::NodeDesk;
using node::radio::Ticks;

namespace
{

/// Recordings of a real node that are carried out again.
class ReplayTest : public RecordingTestAt<NodeDesk>
{
protected:
    ReplayTest()
    {
        session->start({});
    }
};

TEST_F(ReplayTest, OfARecordingFromTheStart)
{
    done({"record " + file, "getCtStatus 1", "setRain 60 1min", "advance 30", "getCtStatus 2", "getXpicStatus 1",
          "calibratePps 1 0 0", "advance 10min", "getPpsCalibrationStatus 1", "getDpdCoefficients 2", "showLink"});
    EXPECT_EQ(allOf(10), replayed(file));
}

TEST_F(ReplayTest, OfARecordingFromTheMidst)
{
    done({"setRain 60 1min", "advance 30", "setXpicPreamble 1 2", "record " + file, "getXpicPreamble 1", "showLink"});
    EXPECT_EQ(allOf(5), replayed(file));
}

TEST_F(ReplayTest, OfARecordingThatEndedBeforeTheSession)
{
    done({"record " + file, "advance 30", "stopRecord", "setRain 60"});
    EXPECT_EQ(allOf(1), replayed(file));
}

TEST_F(ReplayTest, OfARecordingWithoutACommand)
{
    done({"record " + file});
    EXPECT_EQ(allOf(0), replayed(file));
}

TEST_F(ReplayTest, OfCommandsThatFailed)
{
    done({"record " + file});
    carryOut({"startDpd 3", "setXpicPreamble 1 4", "addFault nonsense", "loadScenario absent", "showLink now",
              "sample 1 1 /dev/full/x", "getX 1", "setPpsSource 1 3 0"});
    EXPECT_EQ(allOf(5), replayed(file));
}

TEST_F(ReplayTest, OfATableThatCouldNotBeWritten)
{
    carryOut({"sample 1h 1min /dev/full/x", "record " + file, "sample 1min 1 /dev/full"});
    done({"showLink"});
    EXPECT_EQ(allOf(1), replayed(file));
}

TEST_F(ReplayTest, OfCommandsThatCtrlCEnded)
{
    const node::terminal::Interrupt held;
    std::raise(SIGINT);
    EXPECT_EQ("advance: interrupted", carryOut({"advance 100h"}).error);
    done({"record " + file, "setRain 60 1h"});
    std::raise(SIGINT);
    EXPECT_EQ("sample: interrupted", carryOut({"sample 100h 1min -"}).error);
    done({"showLink"});
    EXPECT_EQ(allOf(2), replayed(file));
    EXPECT_EQ(Ticks(1200), desk.link().conditions().time);
}

TEST_F(ReplayTest, OfAStartThatTraces)
{
    const std::string scenario =
        folder.write("traces.toml", "[node]\nruns_with_failed_modules = true\n[broker]\nIRlbspKelApi = \"absent\"\n");
    session->start(node::scenario::load(scenario));
    done({"record " + file, "showLink", "loadScenario " + scenario});
    EXPECT_THAT(output.answers.back().trace, ::testing::SizeIs(::testing::Gt(0)));
    done({"showLink", "stopRecord"});
    EXPECT_EQ(allOf(3), replayed(file));
}

TEST_F(ReplayTest, FindsAStartThatTracesOtherwise)
{
    const std::string scenario =
        folder.write("traces.toml", "[node]\nruns_with_failed_modules = true\n[broker]\nIRlbspKelApi = \"absent\"\n");
    done({"record " + file, "loadScenario " + scenario, "stopRecord"});
    const std::string recorded = folder.read("recording");
    const auto place = recorded.find("IRlbspKelApi\\");
    ASSERT_NE(std::string::npos, place) << recorded;
    folder.write("recording", std::string(recorded).replace(place, 12, "IDpdController0"));
    EXPECT_THAT(replayed(file),
                ::testing::StartsWith(file + ":3: \"loadScenario " + scenario + "\" at 0:00:00.0: trace: found [{"));
}

TEST_F(ReplayTest, CtrlCEndsIt)
{
    done({"record " + file, "showLink", "advance 1h", "stopRecord"});
    const node::terminal::Interrupt held;
    std::raise(SIGINT);
    EXPECT_EQ("replay: interrupted", carryOut({"replay " + file}).error);
    EXPECT_EQ(Status::CommandFailed, output.answers.back().status);
    EXPECT_EQ(1, output.interruptions);
}

TEST_F(ReplayTest, OfANodeThatDidNotStartAndWhoseFileIsGone)
{
    const std::string refused = folder.write("refused.toml", "[broker]\nIRlbspKelApi = \"absent\"\n");
    done({"record " + file});
    EXPECT_EQ(Status::NotStarted, carryOut({"loadScenario " + refused}).status);
    std::filesystem::remove(refused);
    EXPECT_EQ(Status::NotStarted, carryOut({"showLink"}).status);
    EXPECT_EQ(allOf(2), replayed(file));
    EXPECT_FALSE(desk.hasNode());
}

TEST_F(ReplayTest, OfANodeThatDidNotStart)
{
    const std::string refused = folder.write("refused.toml", "[broker]\nIRlbspKelApi = \"absent\"\n");
    done({"record " + file});
    EXPECT_EQ(Status::NotStarted, carryOut({"loadScenario " + refused}).status);
    EXPECT_EQ(Status::NotStarted, carryOut({"showLink"}).status);
    done({"loadScenario clear-sky", "showLink"});
    EXPECT_EQ(allOf(4), replayed(file));
}

TEST_F(ReplayTest, OfOneWhoseFirstNodeDoesNotStartEndsAsTheStartDoes)
{
    folder.write("recording", R"({"recording":1,"scenario":{"file":"refused.toml",)"
                              R"("text":"[broker]\nIRlbspKelApi = \"absent\"\n"},"trace_levels":{}})"
                              "\n");
    const auto answer = carryOut({"replay " + file});
    EXPECT_EQ(Status::NotStarted, answer.status);
    EXPECT_EQ("module KelDebugCmd: onModuleInit() answered 0x8000, expected 0", answer.error);
    EXPECT_FALSE(desk.hasNode());
}

TEST_F(ReplayTest, OfFaults)
{
    done({"addFault tiManageXpic code=7 text=\"no answer\" from_call=2", "record " + file, "getXpicStatus 1"});
    carryOut({"getXpicStatus 1", "addFault criGetRadioChannelStatus throws=true text=\"two words\"", "getCtStatus 1"});
    done({"listFaults", "clearFaults", "getXpicStatus 1"});
    EXPECT_EQ(allOf(8), replayed(file));
}

TEST_F(ReplayTest, OfArgumentsThatAreNoUtf8)
{
    done({"record " + file, "addFault tiManageXpic text=\"\xff \xc3\xa4\"", "listFaults"});
    carryOut({"getXpicStatus 1", "setTraceLevel \xfe 1"});
    EXPECT_EQ(allOf(4), replayed(file));
}

TEST_F(ReplayTest, OfTraceLevelsThatWereSetBeforeAndInside)
{
    const std::string failing = "setXpicPreamble 1 4";
    done({"setTraceLevel KEL.* 255", "record " + file});
    carryOut({failing, "setTraceLevel KEL.* 0", failing, "setTraceLevel KEL.* 3", failing});
    node::trace::setLevel("KEL.KDC.KelDebugCmd", 0);
    EXPECT_EQ(allOf(6), replayed(file));
    EXPECT_EQ(3, node::trace::levels().at("KEL.KDC.KelDebugCmd"));
}

TEST_F(ReplayTest, OfTraceLevelsThatWereSetBeforeTheNodeBegan)
{
    done({"setTraceLevel KEL.* 0", "loadScenario clear-sky", "record " + file});
    carryOut({"setXpicPreamble 1 4"});
    node::trace::setLevel("KEL.KDC.KelDebugCmd", 3);
    EXPECT_EQ(allOf(1), replayed(file));
}

TEST_F(ReplayTest, OfAScenarioWhoseFileIsGone)
{
    const std::string scenario = folder.write("hop.toml", "[hop]\ndistance_km = 12.5\n");
    done({"loadScenario " + scenario, "record " + file, "showLink"});
    std::filesystem::remove(scenario);
    EXPECT_EQ(allOf(1), replayed(file));
}

TEST_F(ReplayTest, OfAScenarioThatWasLoadedInsideAndWhoseFileIsGone)
{
    const std::string scenario = folder.write("hop.toml", "[hop]\ndistance_km = 12.5\n");
    done({"record " + file, "advance 10", "setTraceLevel * 255", "loadScenario " + scenario, "showLink", "advance 5",
          "loadScenario " + scenario, "loadScenario rain-front", "getCtStatus 1", "advance 30min", "getCtStatus 1"});
    std::filesystem::remove(scenario);
    EXPECT_EQ(allOf(10), replayed(file));
}

TEST_F(ReplayTest, OfANodeByTheClockOnTheWall)
{
    Ticks now{1000};
    Surroundings byClock;
    byClock.clock = [&] { return now; };
    session.reset();
    session.emplace(desk, output, byClock);
    session->start({});
    now += Ticks(7);
    done({"setRain 60 1min", "record " + file});
    now += Ticks(123);
    done({"showLink", "advance 10"});
    now += Ticks(36000);
    done({"getCtStatus 1"});
    EXPECT_EQ(allOf(4), replayed(file));
}

TEST_F(ReplayTest, OfAWatch)
{
    done({"record " + file, "setRain 60 1min", "watch -n 7 -c 5 getCtStatus 1", "showLink"});
    EXPECT_EQ(allOf(7), replayed(file));
}

TEST_F(ReplayTest, WritesNoFileThatItsCommandsWrote)
{
    const std::string table = folder.pathOf("table.csv");
    done({"record " + file, "sample 1 1 " + table, "showLink"});
    std::filesystem::remove(table);
    EXPECT_EQ(allOf(2), replayed(file));
    EXPECT_FALSE(folder.has("table.csv"));
}

TEST_F(ReplayTest, LeavesTheNodeAsItWasWithTheWholeHistory)
{
    done({"setRain 60 1min", "record " + file, "advance 30", "setXpicPreamble 1 2", "stopRecord"});
    const std::string link = linkText(desk.link());
    session.reset();
    session.emplace(desk, output);
    const std::string second = folder.pathOf("second");
    done({"loadScenario clear-sky", "replay " + file});
    EXPECT_EQ(link, linkText(desk.link()));
    done({"getXpicPreamble 1", "record " + second, "showLink"});
    EXPECT_EQ(second + ": 5 commands, each answered as recorded\n", replayed(second));
}

TEST_F(ReplayTest, TakesTheNodeOfTheSessionAway)
{
    done({"record " + file, "advance 30", "stopRecord", "advance 1h", "addFault tiManageXpic", "replay " + file});
    EXPECT_EQ(allOf(1), output.answers.back().outcome->output);
    EXPECT_EQ(Ticks(300), desk.link().conditions().time);
    done({"listFaults"});
    EXPECT_EQ("", output.answers.back().outcome->output);
}

TEST_F(ReplayTest, ShowsNothingOfItsCommands)
{
    done({"record " + file});
    carryOut({"setXpicPreamble 1 4", "stopRecord"});
    output.answers.clear();
    output.told.clear();
    done({"replay " + file});
    EXPECT_EQ("\"replay\" [\"" + file + "\"]\ntime 0s\nstatus 0\nresult 0, \"" + file +
                  ": 1 command, each answered as recorded\\n\"\n",
              textOf(output.answers.at(0)));
    EXPECT_THAT(output.told, ::testing::IsEmpty());
    carryOut({"setXpicPreamble 1 4"});
    EXPECT_THAT(output.told, ::testing::SizeIs(1));
}

} // namespace
