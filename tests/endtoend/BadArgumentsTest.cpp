#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "endtoend/Program.h"

namespace
{

/// A command that is typed, and the one line about it.
struct Row
{
    std::string command;
    std::string complaint;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << row.command;
}

class BadArgumentsTest : public ::testing::TestWithParam<Row>
{
};

TEST_P(BadArgumentsTest, AreToldInOneLineWithStatus2)
{
    const Finished run = runCommand(GetParam().command);
    EXPECT_EQ("", run.output);
    EXPECT_EQ("kel-node: " + GetParam().complaint + "\n", run.errors);
    EXPECT_EQ(2, run.status);
}

INSTANTIATE_TEST_SUITE_P(
    EachKind, BadArgumentsTest,
    ::testing::Values(
        Row{"getCtState 1",
            R"(command: found "getCtState", expected one that "help" lists (did you mean getCtStatus?))"},
        Row{"- 1", R"(command: found "-", expected one that "help" lists)"},
        Row{"getCtStatus", "getCtStatus: argument 1 (channel): found nothing, expected a whole number from 1 to 2"},
        Row{"getCtStatus 0", R"(getCtStatus: argument 1 (channel): found "0", expected a whole number from 1 to 2)"},
        Row{"getCtStatus 3", R"(getCtStatus: argument 1 (channel): found "3", expected a whole number from 1 to 2)"},
        Row{"getCtStatus -1", R"(getCtStatus: argument 1 (channel): found "-1", expected a whole number from 1 to 2)"},
        Row{"getCtStatus --help",
            R"(getCtStatus: argument 1 (channel): found "--help", expected a whole number from 1 to 2)"},
        Row{"getCtStatus 1 2", R"(getCtStatus: argument 2: found "2", expected nothing more)"},
        Row{"getCtStatus 4294967297",
            R"(getCtStatus: argument 1 (channel): found "4294967297", expected a whole number from 1 to 2)"},
        Row{"calibratePps 1 0",
            "calibratePps: argument 3 (value): found nothing, expected a whole number from 0 to 65535"},
        Row{"calibratePps 1 0 65536",
            R"(calibratePps: argument 3 (value): found "65536", expected a whole number from 0 to 65535)"},
        Row{"calibratePps 1 0 -1",
            R"(calibratePps: argument 3 (value): found "-1", expected a whole number from 0 to 65535)"},
        Row{"setPpsSource 1 2147483648 0", R"(setPpsSource: argument 2 (source): found "2147483648", )"
                                           "expected a whole number from -2147483648 to 2147483647"},
        Row{"setPpsOutputMode 2 0xg", R"(setPpsOutputMode: argument 2 (mode): found "0xg", )"
                                      "expected a whole number from -2147483648 to 2147483647"},
        Row{"setXpicPreamble 1 256",
            R"(setXpicPreamble: argument 2 (preamble): found "256", expected a whole number from 0 to 255)"},
        Row{"xpicAcquireStart 1 0 two",
            R"(xpicAcquireStart: argument 3 (acquireOption): found "two", expected a whole number from 0 to 255)"},
        Row{"setDpdCoefficients 1 00010203", R"(setDpdCoefficients: argument 2 (coefficients): found "00010203", )"
                                             "expected 20 bytes as 40 hexadecimal digits"},
        Row{"help getCtState",
            R"(topic: found "getCtState", expected a command, or scenario (did you mean getCtStatus?))"},
        Row{"advance 0",
            R"(advance: argument 1 (time): found "0", expected a time from 0.1s to 100h in steps of 0.1s, )"
            "such as 30, 1.5s, 10min or 2h"},
        Row{"setRain 251", R"(setRain: argument 1 (rate): found "251", expected a number from 0 to 250 (mm/h))"},
        Row{"setTransmitter 1 maybe", R"(setTransmitter: argument 2 (state): found "maybe", expected on or off)"},
        Row{"addFault tiManageXpic calls=0",
            R"(addFault: calls: found "0", expected a whole number from 1 to 4294967295)"},
        Row{"loadScenario rainfront",
            R"(scenario: found "rainfront", expected a .toml file, or a name that "listScenarios" )"
            "lists (did you mean rain-front?)"},
        Row{"help startDpd stopDpd", R"(help: argument 2: found "stopDpd", expected nothing more)"},
        Row{"--bogus", R"(option: found "--bogus", expected one that "kel-node --help" lists)"},
        Row{"--help=yes", R"(option: found "--help=yes", expected one that "kel-node --help" lists)"},
        Row{"-x", R"(option: found "-x", expected one that "kel-node --help" lists)"},
        Row{"-xy", R"(option: found "-xy", expected one that "kel-node --help" lists)"},
        Row{"-1 getCtStatus", R"(option: found "-1", expected one that "kel-node --help" lists)"}));

TEST(BadArgumentsTest, AnEmptyArgumentIsNotAMissingOne)
{
    const Finished command = finish({.arguments = {""}});
    EXPECT_EQ("kel-node: command: found \"\", expected one that \"help\" lists\n", command.errors);
    EXPECT_EQ(2, command.status);
    const Finished channel = finish({.arguments = {"getCtStatus", ""}});
    EXPECT_EQ("kel-node: getCtStatus: argument 1 (channel): found \"\", expected a whole number from 1 to 2\n",
              channel.errors);
    EXPECT_EQ(2, channel.status);
}

TEST(BadArgumentsTest, AnArgumentWithALineEndIsToldInOneLine)
{
    const Finished run = finish({.arguments = {"getCtStatus", "1\n2"}});
    EXPECT_EQ("kel-node: getCtStatus: argument 1 (channel): found \"1\\n2\", expected a whole number from 1 to 2\n",
              run.errors);
    EXPECT_EQ(2, run.status);
}

} // namespace
