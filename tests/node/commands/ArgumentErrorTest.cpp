#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/cli/Session.h"
#include "node/commands/Command.h"
#include "node/commands/LinkText.h"
#include "node/commands/RecordingDesk.h"
#include "node/output/TextOutput.h"
#include "node/trace/TraceLibrary.h"

using node::cli::Session;
using node::cli::Status;
using node::commands::linkText;
using ::testing::IsEmpty;

namespace
{

struct ArgumentForm
{
    std::string name;
    std::string form;
    std::string fit;                ///< a word that is accepted
    std::vector<std::string> unfit; ///< words that are not
    bool optional = false;
};

const ArgumentForm Channel = {
    "channel", "a whole number from 1 to 2", "1", {"0", "3", "-1", "0x3", "4294967297", "one"}};
const std::vector<std::string> NotBytes = {"-1", "256", "0x100", "4294967296", "x", "1.5"};
const std::vector<std::string> NotInts = {"-2147483649", "2147483648", "0xFFFFFFFF", "18446744073709551616", "x", "+1"};

ArgumentForm byte(const std::string& name)
{
    return {name, "a whole number from 0 to 255", "255", NotBytes};
}

ArgumentForm integer(const std::string& name)
{
    return {name, "a whole number from -2147483648 to 2147483647", "-7", NotInts};
}

ArgumentForm duration(const std::string& name, bool optional = false)
{
    return {name,
            "a time from 0.1s to 100h in steps of 0.1s, such as 30, 1.5s, 10min or 2h",
            "0.1",
            {"0", "-1", "0.05", "100.1h", "1 s", "1d", "soon"},
            optional};
}

const ArgumentForm State = {"state", "on or off", "off", {"", "ON", "1", "maybe"}};

/// A word of any kind fits.
ArgumentForm word(const std::string& name, const std::string& form, bool optional = false)
{
    return {name, form, "word", {}, optional};
}

const ArgumentForm File = word("file", "a file that can be written");
const ArgumentForm Table = word("file", "a file that can be written, - for standard output");
const ArgumentForm Recording = word("file", "a file that \"record\" wrote");
const ArgumentForm Channels = word("channels", "a name, with * for any letters and ? for any one");

struct Row
{
    std::string name;
    std::vector<ArgumentForm> arguments;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << row.name;
}

const std::vector<Row> Rows = {
    {"getCtStatus", {Channel}},
    {"getBcmModemStatus", {Channel}},
    {"getPpsCalibrationStatus", {Channel}},
    {"getPpsHopLengthTime", {Channel}},
    {"calibratePps",
     {Channel, integer("mode"), {"value", "a whole number from 0 to 65535", "65535", {"-1", "65536", "0x10000", "v"}}}},
    {"setPpsSource", {Channel, integer("source"), integer("parameter")}},
    {"setPpsOutputMode", {Channel, integer("mode")}},
    {"startDpd", {Channel}},
    {"stopDpd", {Channel}},
    {"setDpdCoefficients",
     {Channel,
      {"coefficients",
       "20 bytes as 40 hexadecimal digits",
       std::string(40, 'f'),
       {"0", std::string(38, '0'), std::string(39, '0'), std::string(41, '0'), std::string(42, '0'),
        std::string(39, '0') + "g", "0x" + std::string(38, '0')}}}},
    {"getDpdCoefficients", {Channel}},
    {"setXpicSlaveMute", {Channel, byte("mute")}},
    {"xpicAcquireStart", {Channel, byte("acquireMode"), byte("acquireOption")}},
    {"getXpicPreamble", {Channel}},
    {"setXpicPreamble", {Channel, byte("preamble")}},
    {"getXpicStatus", {Channel}},
    {"showLink", {}},
    {"advance", {duration("time")}},
    {"setRain",
     {{"rate", "a number from 0 to 250 (mm/h)", "250", {"-0.1", "250.1", "10mm/h", "rain"}}, duration("over", true)}},
    {"setFade",
     {{"depth", "a number from 0 to 100 (dB)", "100", {"-0.1", "100.1", "10dB", "deep"}}, duration("over", true)}},
    {"setDistance", {{"distance", "a number from 0.1 to 100 (km)", "0.1", {"0", "0.09", "100.1", "-1", "1km", "far"}}}},
    {"setTransmitter", {Channel, State}},
    {"setXpicCable", {Channel, State}},
    {"setPpsMaster", {Channel, State}},
    {"sample", {duration("time"), duration("step"), Table}},
    {"plot",
     {duration("time"),
      {"file",
       "a file that can be written, ending in .svg or .png",
       "picture.svg",
       {"", "svg", "picture.pdf", "picture.svg.gz"},
       true}}},
    {"loadScenario", {word("scenario", "a name that \"listScenarios\" lists, or a TOML file")}},
    {"listScenarios", {}},
    {"listFaults", {}},
    {"clearFaults", {}},
    {"listCalls", {}},
    {"setTraceLevel", {Channels, {"level", "a whole number from 0 to 255", "0", NotBytes}}},
    {"listTraceLevels", {}},
    {"help", {word("topic", "a command, or scenario", true)}},
    {"record", {File}},
    {"stopRecord", {}},
    {"replay", {Recording}},
    {"filterTrace", {Channels, {"level", "a whole number from 0 to 255", "0", NotBytes, true}}},
    {"traceFile", {File}},
    {"stopTraceFile", {}},
    {"exit", {}},
};

class ArgumentErrorTest : public ::testing::TestWithParam<Row>
{
protected:
    /// Carries out the words and expects the complaint, with nothing called, nothing changed and nothing printed.
    void expectComplaint(const std::string& complaint, const std::vector<std::string>& words)
    {
        const std::string link = linkText(desk.link());
        const auto levels = node::trace::levels();
        std::ostringstream output;
        std::ostringstream errors;
        node::output::TextOutput textOutput(output, errors);
        Session session(desk, textOutput);
        EXPECT_EQ(Status::NotUnderstood, session.carryOut(words));
        EXPECT_EQ("kel-node: " + complaint + "\n", errors.str());
        EXPECT_EQ("", output.str());
        EXPECT_THAT(desk.recorder.calls, IsEmpty());
        EXPECT_THAT(desk.started, IsEmpty());
        EXPECT_EQ(link, linkText(desk.link()));
        EXPECT_EQ(levels, node::trace::levels());
    }

    /// The command's name and the first `count` arguments, all of which fit.
    static std::vector<std::string> fitting(std::size_t count)
    {
        std::vector<std::string> words = {GetParam().name};
        for (std::size_t i = 0; i < count; ++i)
        {
            words.push_back(GetParam().arguments[i].fit);
        }
        return words;
    }

    /// "setPpsSource: argument 2 (source)"
    static std::string placeOf(std::size_t index)
    {
        return GetParam().name + ": argument " + std::to_string(index + 1) + " (" + GetParam().arguments[index].name +
               ")";
    }

    RecordingDesk desk;
};

TEST_P(ArgumentErrorTest, EveryMissingArgumentIsNamed)
{
    const auto& arguments = GetParam().arguments;
    for (std::size_t i = 0; i < arguments.size() && !arguments[i].optional; ++i)
    {
        expectComplaint(placeOf(i) + ": found nothing, expected " + arguments[i].form, fitting(i));
    }
}

TEST_P(ArgumentErrorTest, EveryUnfitArgumentIsNamedAndQuoted)
{
    const auto& arguments = GetParam().arguments;
    for (std::size_t i = 0; i < arguments.size(); ++i)
    {
        for (const std::string& unfit : arguments[i].unfit)
        {
            auto words = fitting(arguments.size());
            words[i + 1] = unfit;
            expectComplaint(placeOf(i) + ": found \"" + unfit + "\", expected " + arguments[i].form, words);
        }
    }
}

TEST_P(ArgumentErrorTest, TheFirstSurplusArgumentIsQuoted)
{
    auto words = fitting(GetParam().arguments.size());
    words.emplace_back("surplus");
    const std::string complaint = GetParam().name + ": argument " + std::to_string(words.size() - 1) +
                                  ": found \"surplus\", expected nothing more";
    expectComplaint(complaint, words);
    words.emplace_back("more");
    expectComplaint(complaint, words);
}

INSTANTIATE_TEST_SUITE_P(EveryCommand, ArgumentErrorTest, ::testing::ValuesIn(Rows),
                         [](const auto& row) { return row.param.name; });

class CommandErrorTest : public ArgumentErrorTest
{
};

TEST_F(CommandErrorTest, AnUnknownCommandIsQuoted)
{
    expectComplaint(R"(command: found "getCTStatus", expected one that "help" lists (did you mean getCtStatus?))",
                    {"getCTStatus", "1"});
    expectComplaint(R"(command: found "", expected one that "help" lists)", {""});
    expectComplaint(R"(command: found "getCtStatus 1", expected one that "help" lists (did you mean getCtStatus?))",
                    {"getCtStatus 1"});
    expectComplaint(R"(command: found "--help", expected one that "help" lists (did you mean help?))", {"--help"});
    expectComplaint(R"(command: found "--record", expected one that "help" lists (did you mean record?))",
                    {"--record"});
}

TEST_F(CommandErrorTest, TheTableOfThisTestHasEveryCommandThatTakesSingleWords)
{
    std::vector<std::string> expected;
    for (const auto& group : node::commands::commandGroups())
    {
        for (const auto& command : group.commands)
        {
            if (command.name != "addFault" && command.name != "watch")
            {
                expected.push_back(command.name);
            }
        }
    }
    std::vector<std::string> found;
    for (const Row& row : Rows)
    {
        found.push_back(row.name);
    }
    EXPECT_EQ(expected, found);
}

TEST_F(CommandErrorTest, TheFirstOfSeveralErrorsIsTold)
{
    expectComplaint("setPpsSource: argument 1 (channel): found \"3\", expected a whole number from 1 to 2",
                    {"setPpsSource", "3", "x", "y", "z"});
    expectComplaint("setPpsSource: argument 3 (parameter): found \"y\", expected a whole number from -2147483648 to "
                    "2147483647",
                    {"setPpsSource", "2", "1", "y", "z"});
}

TEST_F(CommandErrorTest, WhatCannotBeSeenIsQuotedVisibly)
{
    expectComplaint(R"(command: found "a\nb\t\"c\"\\", expected one that "help" lists)", {"a\nb\t\"c\"\\"});
    expectComplaint(R"(getCtStatus: argument 1 (channel): found "\x00\x1b", expected a whole number from 1 to 2)",
                    {"getCtStatus", std::string("\0\x1B", 2)});
    expectComplaint(R"(getCtStatus: argument 1 (channel): found "\xff", expected a whole number from 1 to 2)",
                    {"getCtStatus", "\xFF"});
}

TEST_F(CommandErrorTest, HelpOfAnUnknownCommandIsAnError)
{
    expectComplaint(R"(topic: found "getCTStatus", expected a command, or scenario (did you mean getCtStatus?))",
                    {"help", "getCTStatus"});
    expectComplaint(R"(topic: found "Scenari", expected a command, or scenario (did you mean scenario?))",
                    {"help", "Scenari"});
}

TEST_F(CommandErrorTest, HelpTakesOneCommand)
{
    expectComplaint("help: argument 2: found \"stopDpd\", expected nothing more", {"help", "startDpd", "stopDpd"});
    expectComplaint("help: argument 2: found \"x\", expected nothing more", {"help", "nonsense", "x", "y"});
}

} // namespace
