#include <ostream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/commands/Command.h"
#include "node/commands/RecordingConsole.h"
#include "node/commands/RecordingDesk.h"

using node::commands::Command;
using node::commands::commandNamed;
using node::commands::Outcome;

namespace
{

constexpr const char* Channel = "channel: a whole number from 1 to 2";
constexpr const char* Byte = ": a whole number from 0 to 255";
constexpr const char* Int = ": a whole number from -2147483648 to 2147483647";

/// A command, its arguments, and calls with words that are typed.
struct Row
{
    struct Typed
    {
        std::vector<std::string> words;
        std::string call;
    };

    std::string name;
    std::vector<std::string> arguments; ///< "name: form"
    std::vector<Typed> typed;
    std::string output;           ///< what is printed when it is done
    std::string outputOfFailed{}; ///< what is printed when it failed
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << row.name;
}

constexpr const char* Coefficients = "00017f80ff000000000000000000000000000000";
constexpr const char* OtherCoefficients = "FFEEDDCCBBAA99887766554433221100F0E1D2C3";
constexpr const char* Report = "the report\n";

const std::vector<Row> Rows = {
    {"getCtStatus", {Channel}, {{{"1"}, "getCtStatus(1)"}, {{"0x2"}, "getCtStatus(2)"}}, Report, Report},
    {"getBcmModemStatus", {Channel}, {{{"2"}, "getBcmModemStatus(2)"}}, Report, Report},
    {"getPpsCalibrationStatus", {Channel}, {{{"1"}, "getPpsCalibrationStatus(1)"}}, Report, Report},
    {"getPpsHopLengthTime", {Channel}, {{{"2"}, "getPpsHopLengthTime(2)"}}, Report, Report},
    {"calibratePps",
     {Channel, std::string("mode") + Int, "value: a whole number from 0 to 65535"},
     {{{"1", "-2147483648", "65535"}, "calibratePps(1, -2147483648, 65535)"},
      {{"2", "0x7FFFFFFF", "0"}, "calibratePps(2, 2147483647, 0)"}},
     ""},
    {"setPpsSource",
     {Channel, std::string("source") + Int, std::string("parameter") + Int},
     {{{"1", "-2147483648", "2147483647"}, "setPpsSource(1, -2147483648, 2147483647)"},
      {{"2", "3", "-1"}, "setPpsSource(2, 3, -1)"}},
     ""},
    {"setPpsOutputMode",
     {Channel, std::string("mode") + Int},
     {{{"1", "2"}, "setPpsOutputMode(1, 2)"}, {{"2", "-2147483648"}, "setPpsOutputMode(2, -2147483648)"}},
     ""},
    {"startDpd", {Channel}, {{{"1"}, "startDpd(1)"}}, ""},
    {"stopDpd", {Channel}, {{{"2"}, "stopDpd(2)"}}, ""},
    {"setDpdCoefficients",
     {Channel, "coefficients: 20 bytes as 40 hexadecimal digits"},
     {{{"1", Coefficients}, std::string("setDpdCoefficients(1, ") + Coefficients + ")"},
      {{"2", OtherCoefficients}, "setDpdCoefficients(2, ffeeddccbbaa99887766554433221100f0e1d2c3)"}},
     ""},
    {"getDpdCoefficients", {Channel}, {{{"1"}, "getDpdCoefficients(1)"}}, std::string(Coefficients) + "\n"},
    {"setXpicSlaveMute",
     {Channel, std::string("mute") + Byte},
     {{{"1", "0"}, "setXpicSlaveMute(1, 0)"}, {{"2", "255"}, "setXpicSlaveMute(2, 255)"}},
     ""},
    {"xpicAcquireStart",
     {Channel, std::string("acquireMode") + Byte, std::string("acquireOption") + Byte},
     {{{"1", "0", "255"}, "xpicAcquireStart(1, 0, 255)"}, {{"2", "3", "4"}, "xpicAcquireStart(2, 3, 4)"}},
     ""},
    {"getXpicPreamble", {Channel}, {{{"2"}, "getXpicPreamble(2)"}}, "255\n"},
    {"setXpicPreamble",
     {Channel, std::string("preamble") + Byte},
     {{{"1", "0xFF"}, "setXpicPreamble(1, 255)"}, {{"2", "0"}, "setXpicPreamble(2, 0)"}},
     ""},
    {"getXpicStatus", {Channel}, {{{"1"}, "getXpicStatus(1)"}}, Report, Report},
};

class DebugCommandTest : public ::testing::TestWithParam<Row>
{
protected:
    const Command& command = commandNamed(GetParam().name);
    RecordingDesk desk;
    RecordingConsole console;
};

TEST_P(DebugCommandTest, TakesArgumentsOfTheseNamesAndForms)
{
    std::vector<std::string> found;
    for (const auto& argument : command.arguments)
    {
        found.push_back(argument.name + ": " + argument.form);
    }
    EXPECT_EQ(GetParam().arguments, found);
}

TEST_P(DebugCommandTest, CallsItsCommandWithTheTypedValues)
{
    std::vector<std::string> expected;
    for (const auto& [words, call] : GetParam().typed)
    {
        command.call(desk, console, words);
        expected.push_back(call);
    }
    EXPECT_EQ(expected, desk.recorder.calls);
}

TEST_P(DebugCommandTest, PrintsWhatTheCommandFilled)
{
    const Outcome outcome = command.call(desk, console, GetParam().typed.front().words);
    EXPECT_EQ(0, outcome.result);
    EXPECT_EQ(GetParam().output, outcome.output);
}

TEST_P(DebugCommandTest, PrintsAReportAloneWhenTheCommandFailed)
{
    for (const int result : {1, -1, 2})
    {
        desk.recorder.result = result;
        const Outcome outcome = command.call(desk, console, GetParam().typed.front().words);
        EXPECT_EQ(result, outcome.result);
        EXPECT_EQ(GetParam().outputOfFailed, outcome.output);
    }
}

INSTANTIATE_TEST_SUITE_P(EveryCommand, DebugCommandTest, ::testing::ValuesIn(Rows),
                         [](const auto& row) { return row.param.name; });

TEST(DebugCommandsTest, EachPreambleIsPrintedAsANumber)
{
    RecordingDesk desk;
    RecordingConsole console;
    for (int preamble = 0; preamble <= 255; ++preamble)
    {
        desk.recorder.preamble = static_cast<unsigned char>(preamble);
        EXPECT_EQ(std::to_string(preamble) + "\n", commandNamed("getXpicPreamble").call(desk, console, {"1"}).output);
    }
}

TEST(DebugCommandsTest, AReportIsPrintedAsItStands)
{
    RecordingDesk desk;
    RecordingConsole console;
    for (const std::string& report :
         {std::string(), std::string("no line end"), std::string("{} %s \\n\n\n"), std::string("a\0b\xFF", 4)})
    {
        desk.recorder.report = report;
        EXPECT_EQ(report, commandNamed("getCtStatus").call(desk, console, {"1"}).output);
    }
}

} // namespace
