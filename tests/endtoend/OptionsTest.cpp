#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "endtoend/Program.h"
#include "node/reference/Help.h"
#include "support/TemporaryFolder.h"

namespace
{

/// Options, and the one line about them.
struct Row
{
    std::vector<std::string> arguments;
    std::string complaint;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    for (const std::string& argument : row.arguments)
    {
        out << '\'' << argument << "' ";
    }
    return out;
}

class WrongOptionsTest : public ::testing::TestWithParam<Row>
{
};

TEST_P(WrongOptionsTest, AreToldInOneLineAndNothingRuns)
{
    const Finished run = finish({.arguments = GetParam().arguments, .input = "getXpicPreamble 1\n"});
    EXPECT_EQ("", run.output);
    EXPECT_EQ("kel-node: " + GetParam().complaint + "\n", run.errors);
    EXPECT_EQ(2, run.status);
}

INSTANTIATE_TEST_SUITE_P(
    EachKind, WrongOptionsTest,
    ::testing::Values(
        Row{{"--scenario"}, "option --scenario: found nothing, expected a value"},
        Row{{"-s"}, "option -s: found nothing, expected a value"},
        Row{{"--clock"}, "option --clock: found nothing, expected a value"},
        Row{{"--clock", "told", "--scenario"}, "option --scenario: found nothing, expected a value"},
        Row{{"--clock", "Wall"}, R"(option --clock: found "Wall", expected told or wall)"},
        Row{{"--clock", ""}, R"(option --clock: found "", expected told or wall)"},
        Row{{"--clock=sun"}, R"(option --clock: found "sun", expected told or wall)"},
        Row{{"--clock", "getXpicPreamble", "1"}, R"(option --clock: found "getXpicPreamble", expected told or wall)"},
        Row{{"--scenario", "nowhere"},
            R"(scenario: found "nowhere", expected a .toml file, or a name that "listScenarios" lists)"},
        Row{{"--scenario", "one-chanel"},
            R"(scenario: found "one-chanel", expected a .toml file, or a name that )"
            R"("listScenarios" lists (did you mean one-channel?))"},
        Row{{"--scenario="}, R"(scenario: found "", expected a .toml file, or a name that "listScenarios" lists)"},
        Row{{"--scenario", "/absent/x"}, "/absent/x: found no such file, expected a scenario file"},
        Row{{"--scenario", "absent.toml"}, "absent.toml: found no such file, expected a scenario file"},
        Row{{"--scenario", "/"}, "/: found a folder, expected a scenario file"},
        Row{{"--scenario", "nowhere", "getXpicPreamble", "1"},
            R"(scenario: found "nowhere", expected a .toml file, or a name that "listScenarios" lists)"},
        Row{{"--scenarios", "clear-sky"},
            R"(option: found "--scenarios", expected one that "kel-node --help" lists (did you mean --scenario?))"},
        Row{{"--clock", "told", "-x"}, R"(option: found "-x", expected one that "kel-node --help" lists)"}));

/// How the preamble of channel 1 tells the two scenarios of this test apart.
class ScenarioOptionTest : public ::testing::Test
{
protected:
    void expectPreamble(const std::string& preamble, const std::vector<std::string>& options) const
    {
        std::vector<std::string> arguments = options;
        arguments.insert(arguments.end(), {"getXpicPreamble", "1"});
        const Finished run = finish({.arguments = arguments, .environment = {"KEL_NODE_SCENARIOS=" + folder.path()}});
        EXPECT_EQ(preamble + "\n", run.output);
        EXPECT_EQ("", run.errors);
        EXPECT_EQ(0, run.status);
    }

    TemporaryFolder folder;
    std::string two = folder.write("two.toml", "description = \"Two\"\n[channel.1]\nxpic_preamble = 2\n");
    std::string three = folder.write("three.toml", "description = \"Three\"\n[channel.1]\nxpic_preamble = 3\n");
};

TEST_F(ScenarioOptionTest, TakesAName)
{
    expectPreamble("2", {"--scenario", "two"});
    expectPreamble("3", {"--scenario=three"});
    expectPreamble("3", {"-s", "three"});
    expectPreamble("0", {});
}

TEST_F(ScenarioOptionTest, TakesAFile)
{
    expectPreamble("2", {"--scenario", two});
    expectPreamble("3", {"--scenario=" + three});
}

TEST_F(ScenarioOptionTest, CountsAsItWasGivenLast)
{
    expectPreamble("3", {"--scenario", "two", "--clock", "told", "--scenario", "three"});
}

TEST_F(ScenarioOptionTest, ListsTheScenariosOfTheChosenFolder)
{
    const Finished run =
        finish({.arguments = {"listScenarios"}, .environment = {"KEL_NODE_SCENARIOS=" + folder.path()}});
    EXPECT_EQ("three                       Three\ntwo                         Two\n", run.output);
    EXPECT_EQ(0, run.status);
}

TEST(OptionsTest, HelpAndVersionComeBeforeTheNode)
{
    const std::string scenario = "start-no-board-support";
    EXPECT_EQ(node::reference::overview(), finish({.arguments = {"--scenario", scenario, "--help"}}).output);
    EXPECT_EQ("kel-node " KEL_VERSION "\n", finish({.arguments = {"--version", "--scenario", scenario}}).output);
}

TEST(OptionsTest, BothClocksAreTaken)
{
    for (const std::string clock : {"told", "wall"})
    {
        const Finished run = finish({.arguments = {"--clock", clock, "getXpicPreamble", "1"}});
        EXPECT_EQ("0\n", run.output) << clock;
        EXPECT_EQ("", run.errors) << clock;
        EXPECT_EQ(0, run.status) << clock;
    }
}

} // namespace
