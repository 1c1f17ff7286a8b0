#include <map>
#include <ostream>
#include <string>

#include <fmt/format.h>
#include <gmock/gmock.h>

#include "node/cli/RecordingTest.h"
#include "node/commands/RecordingDesk.h"

using node::cli::Status;
using ::testing::IsEmpty;

namespace
{

const std::string First = R"({"recording":1,"scenario":{"file":"","text":""},"trace_levels":{}})";

/// A line for "startDpd 1" that fits.
const std::string Second = R"({"command":"startDpd","arguments":["1"],"time_s":0.0,"status":"done","result":0,)"
                           R"("report":"","trace":[],"error":null})";

/// A recording that does not fit, and what is said of it behind the file's name.
struct Row
{
    std::string name;
    std::string content;
    std::string complaint;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << row.name;
}

/// The line that fits with `to` in the place of `from`, behind a first one.
std::string with(const std::string& from, const std::string& to)
{
    std::string line = Second;
    return First + "\n" + line.replace(line.find(from), from.size(), to) + "\n";
}

class BrokenRecordingTest : public RecordingTestAt<RecordingDesk>, public ::testing::WithParamInterface<Row>
{
};

TEST_P(BrokenRecordingTest, IsRefusedAtItsLine)
{
    folder.write("recording", GetParam().content);
    const auto answer = carryOut({"replay " + file});
    EXPECT_EQ(Status::NotUnderstood, answer.status);
    EXPECT_EQ(file + GetParam().complaint, answer.error);
    EXPECT_EQ(std::nullopt, answer.outcome);
    EXPECT_THAT(desk.recorder.calls, IsEmpty());
}

const std::string Expected = ", expected what \"record\" writes there";
const std::string Foreign = ", expected a command that can be recorded";

const auto NameOf = [](const auto& row) { return row.param.name; };

INSTANTIATE_TEST_SUITE_P(
    FirstLine, BrokenRecordingTest,
    ::testing::Values(
        Row{"Version", R"({"recording":2,"scenario":{"file":"","text":""},"trace_levels":{}})",
            ":1: found recording 2" + Expected},
        Row{"VersionAsText", R"({"recording":"1","scenario":{"file":"","text":""},"trace_levels":{}})",
            ":1: found recording \"1\"" + Expected},
        Row{"ACommand", Second + "\n" + Second + "\n", ":1: found a command" + Expected},
        Row{"NoScenario", R"({"recording":1,"trace_levels":{}})", ":1: found key 'scenario' not found" + Expected},
        Row{"NoText", R"({"recording":1,"scenario":{"file":""},"trace_levels":{}})",
            ":1: found key 'text' not found" + Expected},
        Row{"NoLevels", R"({"recording":1,"scenario":{"file":"","text":""}})",
            ":1: found key 'trace_levels' not found" + Expected},
        Row{"LevelsAsTexts", R"({"recording":1,"scenario":{"file":"","text":""},"trace_levels":{"KEL":"3"}})",
            ":1: found type must be number, but is string" + Expected},
        Row{"AScenarioThatDoesNotFit",
            R"({"recording":1,"scenario":{"file":"a.toml","text":"hop = 1"},"trace_levels":{}})",
            ":1: found a.toml:1:7: hop: found 1, expected a table, expected a scenario that fits"},
        Row{"AnEmptyLine", "\n" + First + "\n", ":1: found no JSON" + Expected}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    Members, BrokenRecordingTest,
    ::testing::Values(
        Row{"NoCommand", with("\"command\"", "\"commando\""), ":2: found key 'command' not found" + Expected},
        Row{"NoArguments", with("\"arguments\"", "\"argument\""), ":2: found key 'arguments' not found" + Expected},
        Row{"NoTime", with("\"time_s\"", "\"time\""), ":2: found key 'time_s' not found" + Expected},
        Row{"NoStatus", with("\"status\"", "\"state\""), ":2: found key 'status' not found" + Expected},
        Row{"NoResult", with("\"result\"", "\"results\""), ":2: found key 'result' not found" + Expected},
        Row{"NoTrace", with("\"trace\"", "\"traces\""), ":2: found key 'trace' not found" + Expected},
        Row{"NoError", with("\"error\"", "\"errors\""), ":2: found key 'error' not found" + Expected},
        Row{"CommandAsNumber", with("\"startDpd\"", "1"), ":2: found type must be string, but is number" + Expected},
        Row{"ArgumentsAsText", with("[\"1\"]", "\"1\""), ":2: found type must be array, but is string" + Expected},
        Row{"ArgumentsAsNull", with("[\"1\"]", "null"), ":2: found type must be array, but is null" + Expected},
        Row{"ArgumentAsNumber", with("[\"1\"]", "[1]"), ":2: found type must be string, but is number" + Expected},
        Row{"TooFewBytes", with("[\"1\"]", "[\"1\"],\"arguments_hex\":[]"),
            ":2: found array index 0 is out of range" + Expected},
        Row{"OddDigits", with("[\"1\"]", "[\"1\"],\"arguments_hex\":[\"313\"]"), ":2: found \"313\"" + Expected},
        Row{"NoDigits", with("[\"1\"]", "[\"1\"],\"arguments_hex\":[\"3g\"]"), ":2: found \"3g\"" + Expected},
        Row{"TimeAsText", with("0.0", "\"0.0\""), ":2: found type must be number, but is string" + Expected},
        Row{"TimeBeforeTheStart", with("0.0", "-0.1"), ":2: found time_s -0.1" + Expected},
        Row{"TimeWithoutEnd", with("0.0", "1e300"), ":2: found time_s 1e+300" + Expected},
        Row{"ReportAsNumber", with("\"report\":\"\"", "\"report\":1"),
            ":2: found type must be string, but is number" + Expected},
        Row{"TraceAsText", with("[],\"error\"", "\"\",\"error\""),
            ":2: found type must be array, but is string" + Expected},
        Row{"MessageAsText", with("[],\"error\"", "[\"\"],\"error\""),
            ":2: found cannot use at() with string" + Expected}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    Beginnings, BrokenRecordingTest,
    ::testing::Values(Row{"TheEnd", First + "\n" + First + "\n",
                          ":3: found the end, expected the command that began the node of the line before"},
                      Row{"AnotherBeginning", First + "\n" + First + "\n" + First + "\n" + Second + "\n",
                          ":3: found another node's beginning, expected the command that began the node of the line "
                          "before"}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(Commands, BrokenRecordingTest,
                         ::testing::Values(Row{"OfTheCommandLine", with("startDpd", "help"),
                                               ":2: found \"help\"" + Foreign},
                                           Row{"ADrawing", with("startDpd", "plot"), ":2: found \"plot\"" + Foreign},
                                           Row{"Replay", with("startDpd", "replay"), ":2: found \"replay\"" + Foreign},
                                           Row{"Unknown", with("startDpd", "start"), ":2: found \"start\"" + Foreign},
                                           Row{"Empty", with("startDpd", ""), ":2: found \"\"" + Foreign}),
                         NameOf);

INSTANTIATE_TEST_SUITE_P(
    Lines, BrokenRecordingTest,
    ::testing::Values(Row{"NoJson", "record\n", ":1: found no JSON" + Expected},
                      Row{"ANumber", First + "\n5\n", ":2: found cannot use at() with number" + Expected},
                      Row{"Truncated", First + "\n" + Second.substr(0, 30), ":2: found no JSON" + Expected}),
    NameOf);

using RefusedRecordingTest = RecordingTestAt<RecordingDesk>;

TEST_F(RefusedRecordingTest, NeedsAFileWithSomethingInIt)
{
    const std::map<std::string, std::string> files = {
        {folder.write("empty", ""), "nothing"}, {folder.path(), "a folder"}, {folder.pathOf("absent"), "no such file"}};
    for (const auto& [name, found] : files)
    {
        const auto answer = carryOut({"advance 1", "replay " + name});
        EXPECT_EQ(Status::NotUnderstood, answer.status);
        EXPECT_EQ(fmt::format("{}: found {}, expected a file that \"record\" wrote", name, found), answer.error);
        EXPECT_THAT(desk.started, IsEmpty());
    }
    EXPECT_EQ(3U, session->history().commands.size());
}

TEST_F(RefusedRecordingTest, LeavesTheNodeWhereItsFirstLineDoesNotFit)
{
    folder.write("recording", Second);
    carryOut({"advance 1", "replay " + file});
    EXPECT_THAT(desk.started, IsEmpty());
    EXPECT_EQ(1U, session->history().commands.size());
}

TEST_F(RefusedRecordingTest, LeavesTheNodeAsFarAsItFitsWithItsHistory)
{
    folder.write("recording", First + "\n" + Second + "\n" + Second + "\nnonsense\n");
    EXPECT_EQ(Status::NotUnderstood, carryOut({"advance 1", "advance 1", "advance 1", "replay " + file}).status);
    EXPECT_EQ(2U, desk.recorder.calls.size());
    EXPECT_EQ(2U, session->history().commands.size());
    EXPECT_EQ("startDpd", session->history().commands.at(0).command);
}

TEST_F(RefusedRecordingTest, NeedsNoLineEndAtTheEnd)
{
    folder.write("recording", First + "\n" + Second);
    EXPECT_EQ(allOf(1), carryOut({"replay " + file}).outcome->output);
}

} // namespace
