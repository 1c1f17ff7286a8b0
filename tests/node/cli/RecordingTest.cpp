#include "node/cli/RecordingTest.h"

#include <csignal>
#include <string>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "node/commands/RecordingDesk.h"
#include "node/output/Json.h"
#include "node/terminal/Interrupt.h"
#include "trace/VemTrace.h"

using node::cli::Status;
using node::output::toJson;
using node::output::toLine;
using node::radio::Ticks;
using ::testing::IsEmpty;

namespace
{

class RecordingTest : public RecordingTestAt<RecordingDesk>
{
protected:
    /// The first line of a recording of a node without a scenario.
    static std::string beginning()
    {
        nlohmann::ordered_json levels = nlohmann::ordered_json::object();
        for (const auto& [channel, level] : node::trace::levels())
        {
            levels[channel] = level;
        }
        return R"({"recording":1,"scenario":{"file":"","text":""},"trace_levels":)" + levels.dump() + "}\n";
    }
};

TEST_F(RecordingTest, HasTheBeginningAndEachAnswerAtOnce)
{
    done({"record " + file});
    EXPECT_EQ(beginning(), folder.read("recording"));
    done({"getC 1"});
    std::string expected = beginning() + toLine(toJson(output.answers.back()));
    EXPECT_EQ(expected, folder.read("recording"));
    desk.recorder.result = 1;
    carryOut({"startDpd 1", "advance 1.5"});
    expected += toLine(toJson(output.answers[2])) + toLine(toJson(output.answers[3]));
    EXPECT_EQ(expected, folder.read("recording"));
}

TEST_F(RecordingTest, HasNothingThatLeavesTheNodeAsItIs)
{
    done({"record " + file});
    carryOut({"help", "nonsense", "filterTrace *", "\"", "# comment", ""});
    EXPECT_EQ(beginning(), folder.read("recording"));
}

TEST_F(RecordingTest, HasNothingThatAFileDecides)
{
    done({"record " + file, "listScenarios"});
    carryOut({"loadScenario ./absent", "sample 1 1 /dev/full/x", "sample 1 1 /dev/full"});
    EXPECT_EQ(beginning(), folder.read("recording"));
}

TEST_F(RecordingTest, HasNothingThatCtrlCEnded)
{
    const node::terminal::Interrupt held;
    done({"record " + file});
    std::raise(SIGINT);
    EXPECT_EQ("advance: interrupted", carryOut({"advance 100h"}).error);
    EXPECT_EQ(beginning(), folder.read("recording"));
    done({"stopRecord", "record " + file});
    EXPECT_EQ(beginning(), folder.read("recording"));
}

TEST_F(RecordingTest, HasNothingThatWasTracedBeforeTheFirstCommand)
{
    done({"record " + file});
    session->tellNext({{Ticks(0), {"KEL", 1, "", 0, "", "a start"}}});
    done({"startDpd 1"});
    EXPECT_EQ("a start", output.answers.back().trace.at(0).message.text);
    EXPECT_EQ(std::string::npos, folder.read("recording").find("a start"));
    done({"startDpd 1"});
    EXPECT_THAT(output.answers.back().trace, IsEmpty());
}

TEST_F(RecordingTest, HasTheEarlierCommandsWithoutTheirAnswers)
{
    carryOut({"setRain 10", "advance 1.5", "startDpd 3", std::string("filterTrace *"), "setTraceLevel * \xff"});
    done({"record " + file});
    EXPECT_EQ(beginning() + R"({"earlier":true,"command":"setRain","arguments":["10"],"time_s":0.0}
{"earlier":true,"command":"advance","arguments":["1.5"],"time_s":0.0}
{"earlier":true,"command":"startDpd","arguments":["3"],"time_s":1.5}
{"earlier":true,"command":"setTraceLevel","arguments":["*","�"],"arguments_hex":[null,"ff"],"time_s":1.5}
)",
              folder.read("recording"));
}

TEST_F(RecordingTest, HasEveryMessageWhateverTheFilterLetsThrough)
{
    VemTrace trace("RecordingTest", 3);
    desk.recorder.duringCall = [&]
    {
        trace.beginLogMsg(1, {});
        trace.messageStream() << "a message" << std::flush;
    };
    done({"filterTrace KEL.*", "record " + file, "startDpd 1"});
    EXPECT_THAT(output.answers.back().trace, IsEmpty());
    EXPECT_NE(std::string::npos, folder.read("recording").find("\"text\":\"a message\""));
}

TEST_F(RecordingTest, HasABeginningForEachNode)
{
    const std::string scenario = folder.write("hop.toml", "[hop]\ndistance_km = 12.5\n");
    done({"record " + file, "loadScenario " + scenario});
    const std::string recorded = folder.read("recording");
    const auto second = nlohmann::ordered_json::parse(
        recorded.substr(beginning().size(), recorded.find('\n', beginning().size()) - beginning().size()));
    EXPECT_EQ(scenario, second.at("scenario").at("file").get<std::string>());
    EXPECT_EQ("[hop]\ndistance_km = 12.5\n", second.at("scenario").at("text"));
    EXPECT_TRUE(recorded.ends_with("}\n" + toLine(toJson(output.answers.back()))));
}

TEST_F(RecordingTest, ReplacesWhatWasInTheFile)
{
    folder.write("recording", std::string(100'000, 'x'));
    done({"record " + file});
    EXPECT_EQ(beginning(), folder.read("recording"));
}

TEST_F(RecordingTest, EndsAndCanBeginAnew)
{
    done({"record " + file, "stopRecord", "startDpd 1"});
    EXPECT_EQ(beginning(), folder.read("recording"));
    done({"record " + folder.pathOf("second")});
    EXPECT_TRUE(folder.read("second").starts_with(beginning() + R"({"earlier":true,"command":"startDpd")"));
}

TEST_F(RecordingTest, IsRefusedWhileAnotherOneRuns)
{
    done({"record " + file});
    const auto answer = carryOut({"record " + folder.pathOf("second")});
    EXPECT_EQ(Status::NotUnderstood, answer.status);
    EXPECT_EQ("recording: found \"" + file + "\" running, expected none; \"stopRecord\" ends it", answer.error);
    EXPECT_FALSE(folder.has("second"));
    EXPECT_EQ(answer.error, carryOut({"replay " + file}).error);
    done({"startDpd 1", "stopRecord"});
    EXPECT_EQ(beginning() + toLine(toJson(output.answers[3])), folder.read("recording"));
}

TEST_F(RecordingTest, IsEndedOnlyWhereOneRuns)
{
    const std::string none = "recording: found none running, expected one that \"record\" has begun";
    EXPECT_EQ(none, carryOut({"stopRecord"}).error);
    done({"record " + file, "stopRecord"});
    EXPECT_EQ(none, carryOut({"stopRecord"}).error);
    EXPECT_EQ(Status::NotUnderstood, output.answers.back().status);
}

TEST_F(RecordingTest, IsRefusedWhereItCannotBeWritten)
{
    const std::string absent = folder.pathOf("absent/recording");
    EXPECT_EQ(absent + ": found no such folder, expected a file to write", carryOut({"record " + absent}).error);
    EXPECT_EQ(Status::NotUnderstood, output.answers.back().status);
    EXPECT_EQ(folder.path() + ": found a folder, expected a file to write",
              carryOut({"record " + folder.path()}).error);
    done({"record " + file});
}

TEST_F(RecordingTest, NeedsANode)
{
    desk.clear();
    EXPECT_EQ(Status::NotStarted, carryOut({"record " + file}).status);
    EXPECT_FALSE(folder.has("recording"));
}

TEST_F(RecordingTest, IsRefusedWhereTooMuchWentBefore)
{
    for (int command = 0; command < 10'000; ++command)
    {
        session->carryOut({"clearFaults"});
    }
    output.answers.clear();
    done({"record " + file, "stopRecord", "clearFaults"});
    const auto answer = carryOut({"record " + folder.pathOf("second")});
    EXPECT_EQ(Status::NotUnderstood, answer.status);
    EXPECT_EQ("recording: found more than 10000 commands since the node began, expected fewer, or the option --record "
              "from the start",
              answer.error);
    EXPECT_FALSE(folder.has("second"));
    done({"loadScenario clear-sky", "record " + folder.pathOf("second")});
}

} // namespace
