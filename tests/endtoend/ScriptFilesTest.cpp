#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "endtoend/Program.h"
#include "support/TemporaryFolder.h"

namespace
{

/// A script, and what comes of it. "FILE" stands for its path.
struct Row
{
    std::string name;
    std::string lines;
    std::string output;
    std::string errors;
    int status;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << row.name;
}

std::string withFile(std::string text, const std::string& file)
{
    for (auto place = text.find("FILE"); place != std::string::npos; place = text.find("FILE"))
    {
        text.replace(place, 4, file);
    }
    return text;
}

class ScriptFileTest : public ::testing::TestWithParam<Row>
{
protected:
    Finished runFile(const std::vector<std::string>& options)
    {
        std::vector<std::string> arguments = options;
        arguments.insert(arguments.end(), {"-f", file});
        return finish({.arguments = arguments, .input = "nonsense\n"});
    }

    TemporaryFolder folder;
    std::string file = folder.write("script.txt", GetParam().lines);
};

TEST_P(ScriptFileTest, EndsAtItsFirstFailureAndTellsFileAndLine)
{
    const Finished run = runFile({});
    EXPECT_EQ(GetParam().output, run.output);
    EXPECT_EQ(withFile(GetParam().errors, file), run.errors);
    EXPECT_EQ(GetParam().status, run.status);
}

INSTANTIATE_TEST_SUITE_P(
    EachFailure, ScriptFileTest,
    ::testing::Values(
        Row{"none", "getXpicPreamble 1\n# comment\n\ngetXpicPreamble 2\n", "0\n0\n", "", 0},
        Row{"command", "getXpicPreamble 1\nsetPpsSource 1 3 0\ngetXpicPreamble 2\n", "0\n",
            "kel-node: FILE:2: setPpsSource: failed\n", 1},
        Row{"exception", "addFault tiManageXpic throws=true text=gone\nsetXpicPreamble 1 2\nshowLink\n", "",
            "kel-node: FILE:2: setXpicPreamble: threw gone\n", 1},
        Row{"unknown", "\nsetPpsSourec 1 0 0\nshowLink\n", "",
            "kel-node: FILE:2: command: found \"setPpsSourec\", expected one that \"help\" lists (did you mean "
            "setPpsSource?)\n",
            2},
        Row{"ambiguous", "getX 1\n", "",
            "kel-node: FILE:1: command: found \"getX\", expected more of its name: getXpicPreamble, getXpicStatus\n",
            2},
        Row{"argument", "setRain 251\n", "",
            "kel-node: FILE:1: setRain: argument 1 (rate): found \"251\", expected a number from 0 to 250 (mm/h)\n", 2},
        Row{"missing", "setRain\n", "",
            "kel-node: FILE:1: setRain: argument 1 (rate): found nothing, expected a number from 0 to 250 (mm/h)\n", 2},
        Row{"surplus", "showLink 1\n", "",
            "kel-node: FILE:1: showLink: argument 1: found \"1\", expected nothing more\n", 2},
        Row{"quotation", "showLink \"\n", "",
            "kel-node: FILE:1: line: found a quotation mark alone, expected another one that closes it\n", 2},
        Row{"scenario", "loadScenario nix\n", "",
            "kel-node: FILE:1: scenario: found \"nix\", expected a .toml file, or a name that \"listScenarios\" "
            "lists\n",
            2},
        Row{"start", "loadScenario start-registration-throws\nshowLink\n", "",
            "kel-node: FILE:1: module KelDebugCmd: its constructor threw: registry is full\n", 3}),
    [](const auto& row) { return row.param.name; });

/// The same scripts where failures do not end them.
using KeepGoingTest = ScriptFileTest;

TEST_P(KeepGoingTest, GoesOnAndEndsWithTheStatusOfTheFirstFailure)
{
    const Finished run = runFile({"--keep-going"});
    EXPECT_EQ(GetParam().output, run.output);
    EXPECT_EQ(withFile(GetParam().errors, file), run.errors);
    EXPECT_EQ(GetParam().status, run.status);
}

INSTANTIATE_TEST_SUITE_P(
    Each, KeepGoingTest,
    ::testing::Values(Row{"nothingFails", "getXpicPreamble 1\n", "0\n", "", 0},
                      Row{"firstACommand", "setPpsSource 1 3 0\nnonsense\ngetXpicPreamble 1\n", "0\n",
                          "kel-node: FILE:1: setPpsSource: failed\n"
                          "kel-node: FILE:2: command: found \"nonsense\", expected one that \"help\" lists\n",
                          1},
                      Row{"firstNotUnderstood", "nonsense\nsetPpsSource 1 3 0\ngetXpicPreamble 1\n", "0\n",
                          "kel-node: FILE:1: command: found \"nonsense\", expected one that \"help\" lists\n"
                          "kel-node: FILE:2: setPpsSource: failed\n",
                          2},
                      Row{"theNodeDoesNotStart", "loadScenario start-registration-throws\ngetXpicPreamble 1\n", "",
                          "kel-node: FILE:1: module KelDebugCmd: its constructor threw: registry is full\n"
                          "kel-node: FILE:2: node: found none running, expected one; \"loadScenario\" starts one\n",
                          3},
                      Row{"exitEnds", "nonsense\nexit\ngetXpicPreamble 1\n", "",
                          "kel-node: FILE:1: command: found \"nonsense\", expected one that \"help\" lists\n", 2}),
    [](const auto& row) { return row.param.name; });

TEST(ScriptFilesTest, AMinusIsStandardInput)
{
    const Finished run = finish({.arguments = {"--file", "-"}, .input = "getXpicPreamble 1\nnonsense\n"});
    EXPECT_EQ("0\n", run.output);
    EXPECT_EQ("kel-node: <stdin>:2: command: found \"nonsense\", expected one that \"help\" lists\n", run.errors);
    EXPECT_EQ(2, run.status);
}

TEST(ScriptFilesTest, AFileThatIsNotThereIsTold)
{
    const Finished run = runCommand("-f /nowhere/script.txt");
    EXPECT_EQ("kel-node: /nowhere/script.txt: found no such file, expected a file of commands\n", run.errors);
    EXPECT_EQ(2, run.status);
}

TEST(ScriptFilesTest, AFolderIsNoScript)
{
    const Finished run = runCommand("-f /");
    EXPECT_EQ("kel-node: /: found a folder, expected a file of commands\n", run.errors);
    EXPECT_EQ(2, run.status);
}

TEST(ScriptFilesTest, AScriptAndACommandDoNotGoTogether)
{
    const Finished run = runCommand("-f /dev/null showLink");
    EXPECT_EQ("", run.output);
    EXPECT_EQ("kel-node: option --file: found a command beside it, expected one of the two\n", run.errors);
    EXPECT_EQ(2, run.status);
}

} // namespace
