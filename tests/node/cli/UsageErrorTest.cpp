#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/cli/RecordingCommands.h"
#include "node/cli/Session.h"

using node::cli::Session;
using node::cli::Status;
using ::testing::IsEmpty;

namespace
{

struct ArgumentForm
{
    std::string name;
    std::string form;
    std::string fit;                ///< a word that is accepted
    std::vector<std::string> unfit; ///< words that are not
};

const ArgumentForm Channel = {"channel", "a number from 1 to 2", "1", {"0", "3", "-1", "0x3", "4294967297", "one"}};
const std::vector<std::string> NotBytes = {"-1", "256", "0x100", "4294967296", "x", "1.5"};
const std::vector<std::string> NotInts = {"-2147483649", "2147483648", "0xFFFFFFFF", "18446744073709551616", "x", "+1"};

ArgumentForm byte(const std::string& name)
{
    return {name, "a number from 0 to 255", "255", NotBytes};
}

ArgumentForm integer(const std::string& name)
{
    return {name, "a number from -2147483648 to 2147483647", "-7", NotInts};
}

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
     {Channel, integer("mode"), {"value", "a number from 0 to 65535", "65535", {"-1", "65536", "0x10000", "v"}}}},
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
};

class UsageErrorTest : public ::testing::TestWithParam<Row>
{
protected:
    /// Carries out the words and expects the complaint, with nothing called and nothing printed.
    void expectComplaint(const std::string& complaint, const std::vector<std::string>& words)
    {
        std::ostringstream output;
        std::ostringstream errors;
        Session session(commands, output, errors);
        EXPECT_EQ(Status::NotUnderstood, session.carryOut(words));
        EXPECT_EQ("kel-node: " + complaint + "\n", errors.str());
        EXPECT_EQ("", output.str());
        EXPECT_THAT(commands.calls, IsEmpty());
    }

    /// The operation's name and the first `count` arguments, all of which fit.
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

    RecordingCommands commands;
};

TEST_P(UsageErrorTest, EveryMissingArgumentIsNamed)
{
    const auto& arguments = GetParam().arguments;
    for (std::size_t i = 0; i < arguments.size(); ++i)
    {
        expectComplaint(placeOf(i) + ": found nothing, expected " + arguments[i].form, fitting(i));
    }
}

TEST_P(UsageErrorTest, EveryUnfitArgumentIsNamedAndQuoted)
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

TEST_P(UsageErrorTest, TheFirstSurplusArgumentIsQuoted)
{
    auto words = fitting(GetParam().arguments.size());
    words.emplace_back("surplus");
    const std::string complaint = GetParam().name + ": argument " + std::to_string(words.size() - 1) +
                                  ": found \"surplus\", expected nothing more";
    expectComplaint(complaint, words);
    words.emplace_back("more");
    expectComplaint(complaint, words);
}

INSTANTIATE_TEST_SUITE_P(EveryOperation, UsageErrorTest, ::testing::ValuesIn(Rows),
                         [](const auto& row) { return row.param.name; });

class CommandErrorTest : public UsageErrorTest
{
};

TEST_F(CommandErrorTest, AnUnknownCommandIsQuoted)
{
    expectComplaint(R"(command: found "getCTStatus", expected one that "help" lists)", {"getCTStatus", "1"});
    expectComplaint(R"(command: found "", expected one that "help" lists)", {""});
    expectComplaint(R"(command: found "getCtStatus 1", expected one that "help" lists)", {"getCtStatus 1"});
    expectComplaint(R"(command: found "--help", expected one that "help" lists)", {"--help"});
}

TEST_F(CommandErrorTest, TheFirstOfSeveralErrorsIsTold)
{
    expectComplaint("setPpsSource: argument 1 (channel): found \"3\", expected a number from 1 to 2",
                    {"setPpsSource", "3", "x", "y", "z"});
    expectComplaint("setPpsSource: argument 3 (parameter): found \"y\", expected a number from -2147483648 to "
                    "2147483647",
                    {"setPpsSource", "2", "1", "y", "z"});
}

TEST_F(CommandErrorTest, WhatCannotBeSeenIsQuotedVisibly)
{
    expectComplaint(R"(command: found "a\nb\t\"c\"\\", expected one that "help" lists)", {"a\nb\t\"c\"\\"});
    expectComplaint(R"(getCtStatus: argument 1 (channel): found "\x00\x1b", expected a number from 1 to 2)",
                    {"getCtStatus", std::string("\0\x1B", 2)});
    expectComplaint(R"(getCtStatus: argument 1 (channel): found "\xff", expected a number from 1 to 2)",
                    {"getCtStatus", "\xFF"});
}

TEST_F(CommandErrorTest, HelpOfAnUnknownCommandIsAnError)
{
    expectComplaint(R"(command: found "getCTStatus", expected one that "help" lists)", {"help", "getCTStatus"});
}

TEST_F(CommandErrorTest, HelpTakesOneCommand)
{
    expectComplaint("help: argument 2: found \"stopDpd\", expected nothing more", {"help", "startDpd", "stopDpd"});
    expectComplaint("help: argument 2: found \"x\", expected nothing more", {"help", "nonsense", "x", "y"});
}

} // namespace
