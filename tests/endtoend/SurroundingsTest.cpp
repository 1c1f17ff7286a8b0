#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "endtoend/Program.h"
#include "node/reference/Help.h"

namespace
{

/// Every report, and a failure at the end.
constexpr const char* EveryReport = "getCtStatus 1\n"
                                    "getBcmModemStatus 1\n"
                                    "getPpsCalibrationStatus 1\n"
                                    "getPpsHopLengthTime 1\n"
                                    "getDpdCoefficients 1\n"
                                    "getXpicStatus 1\n"
                                    "getXpicPreamble 1\n"
                                    "setRain 42.5 1min\n"
                                    "sample 90 0.7 -\n"
                                    "showLink\n"
                                    "help scenario\n"
                                    "setXpicPreamble 1 9\n";

TEST(SurroundingsTest, HelpIsPrintedWithoutANode)
{
    for (const char* const option : {"--help", "-h"})
    {
        const Finished run = runCommand(option);
        EXPECT_EQ(node::reference::overview(), run.output);
        EXPECT_EQ("", run.errors);
        EXPECT_EQ(0, run.status);
    }
}

TEST(SurroundingsTest, HelpIsACommandToo)
{
    EXPECT_EQ(node::reference::overview(), runCommand("help").output);
    EXPECT_EQ(
        "startDpd <channel>\nStart digital predistortion.\n\n  channel  a whole number from 1 to 2: radio channel\n",
        runCommand("help startDpd").output);
}

TEST(SurroundingsTest, HelpOnScenariosIsTheirPageInTheDocs)
{
    std::ifstream page(KEL_SOURCE_DIR "/docs/scenarios.md", std::ios::binary);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(page), {}), runCommand("help scenario").output);
}

TEST(SurroundingsTest, TheVersionIsPrinted)
{
    const Finished run = runCommand("--version");
    EXPECT_EQ("kel-node " KEL_VERSION "\n", run.output);
    EXPECT_EQ("", run.errors);
    EXPECT_EQ(0, run.status);
}

TEST(SurroundingsTest, OptionsEndAtTwoDashes)
{
    EXPECT_EQ("0\n", runCommand("-- getXpicPreamble 1").output);
    EXPECT_EQ(2, runCommand("-- --help").status);
}

TEST(SurroundingsTest, OutputThatCannotBeWrittenIsAFailure)
{
    const std::string complaint = "kel-node: standard output: found it closed or full, expected to write to it\n";
    for (const std::string outputFile : {"/dev/full", "-"})
    {
        for (const std::vector<std::string>& arguments :
             {std::vector<std::string>{"getCtStatus", "1"}, {"--help"}, {"--version"}, {}})
        {
            const Finished run =
                finish({.arguments = arguments, .input = "getXpicPreamble 1\nnonsense\n", .outputFile = outputFile});
            EXPECT_EQ(complaint, run.errors) << outputFile;
            EXPECT_EQ(1, run.status) << outputFile;
        }
    }
}

TEST(SurroundingsTest, InputThatCannotBeReadIsNotAnEmptyScript)
{
    const Finished run = finish({.arguments = {}, .inputFile = "/"});
    EXPECT_EQ("", run.output);
    EXPECT_EQ("kel-node: <stdin>: found it unreadable, expected lines\n", run.errors);
    EXPECT_EQ(2, run.status);
}

TEST(SurroundingsTest, ACommandThatPrintsNothingNeedsNoOutput)
{
    const Finished run = finish({.arguments = {"startDpd", "1"}, .outputFile = "/dev/full"});
    EXPECT_EQ("", run.errors);
    EXPECT_EQ(0, run.status);
}

TEST(SurroundingsTest, TwoRunsGiveTheSameBytes)
{
    const Finished first = runScript(EveryReport);
    const Finished second = runScript(EveryReport);
    EXPECT_NE("", first.output);
    EXPECT_EQ(first.output, second.output);
    EXPECT_EQ(first.errors, second.errors);
    EXPECT_EQ(1, first.status);
    EXPECT_EQ(1, second.status);
}

TEST(SurroundingsTest, TheUsersLocaleChangesNoByte)
{
    ASSERT_TRUE(std::filesystem::exists(KEL_LOCALES "/de_DE.UTF-8/LC_NUMERIC"));
    const std::vector<std::string> environment = {"LOCPATH=" KEL_LOCALES, "LC_ALL=de_DE.UTF-8", "LANG=de_DE.UTF-8"};
    const Finished plain = runScript(EveryReport);
    const Finished local = finish({.arguments = {}, .input = EveryReport, .environment = environment});
    EXPECT_EQ(plain.output, local.output);
    EXPECT_EQ(plain.errors, local.errors);
    EXPECT_EQ(plain.status, local.status);
}

} // namespace
