#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "endtoend/Program.h"
#include "support/TemporaryFolder.h"

namespace
{

/// A scenario file, and what is said of it behind its name.
struct Row
{
    std::string name;
    std::string content;
    std::string complaint;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << row.content;
}

class BrokenScenarioFilesTest : public ::testing::TestWithParam<Row>
{
protected:
    TemporaryFolder folder;
    std::string file = folder.write("x.toml", GetParam().content);
    std::string complaint = file + GetParam().complaint + "\n";
};

TEST_P(BrokenScenarioFilesTest, AreToldWithTheirPlaceAndRunNoCommand)
{
    const Finished run = finish({.arguments = {"--scenario", file, "sample", "1", "1", folder.pathOf("table.csv")}});
    EXPECT_EQ("", run.output);
    EXPECT_EQ("kel-node: " + complaint, run.errors);
    EXPECT_EQ(2, run.status);
    EXPECT_FALSE(folder.has("table.csv"));
}

TEST_P(BrokenScenarioFilesTest, EndTheScriptThatLoadsThem)
{
    const Finished run =
        runScript("getXpicPreamble 1\nloadScenario " + file + "\nsample 1 1 " + folder.pathOf("table.csv") + "\n");
    EXPECT_EQ("0\n", run.output);
    EXPECT_EQ("kel-node: <stdin>:2: " + complaint, run.errors);
    EXPECT_EQ(2, run.status);
    EXPECT_FALSE(folder.has("table.csv"));
}

INSTANTIATE_TEST_SUITE_P(
    EachKind, BrokenScenarioFilesTest,
    ::testing::Values(
        Row{"AMistakeInTheToml", "[node\n",
            ":1:6: found a mistake in the TOML (Error while parsing table header: expected ']', saw '\\n'), expected "
            "TOML 1.0"},
        Row{"ANumberOutOfItsRange", "description = \"x\"\n[hop]\ndistance_km = 0.09\n",
            ":3:15: hop.distance_km: found 0.09, expected a number from 0.1 to 100"},
        Row{"AnUnknownKey", "[node]\nradio_chanels = 2\n",
            ":2:1: found an unknown key \"radio_chanels\", expected a key of node (did you mean radio_channels?)"},
        Row{"AnUnknownTable", "[nodes]\n",
            ":1:2: found an unknown key \"nodes\", expected a key or table of a scenario (did you mean node?)"},
        Row{"AWholeNumberOutOfItsRange", "[channel.1]\nxpic_preamble = 4\n",
            ":2:17: channel.1.xpic_preamble: found 4, expected a whole number from 0 to 3"},
        Row{"AChannelThatIsNotThere", "[channel.3]\n",
            ":1:10: found an unknown key \"3\", expected the tables channel.1 and channel.2"},
        Row{"ModulationsTheWrongWayRound",
            "[channel.1]\nlowest_modulation = \"4096QAM\"\nhighest_modulation = \"16QAM\"\n",
            ":3:22: channel.1.highest_modulation: found \"16QAM\", expected \"4096QAM\" or a higher one, for that "
            "is the lowest modulation"},
        Row{"TimesThatDoNotRise",
            "[weather]\nrain = [\n    { at_s = 0, rate_mm_per_h = 1 },\n    { at_s = 0, rate_mm_per_h = 2 },\n]\n",
            ":4:14: weather.rain[2].at_s: found 0, expected a time after 0, that of the point before"},
        Row{"AFaultThatItsCallCannotHave",
            "[[fault]]\ncall = \"tiManageXpic\"\n[[fault]]\ncall = \"CModuleManager.RegisterModule\"\n",
            ":3:1: fault[2].throws: found false, expected true: CModuleManager.RegisterModule answers nothing"},
        Row{"AWordThatIsNoChoice", "[broker]\nIRlbspKelApi = \"gone\"\n",
            ":2:16: broker.IRlbspKelApi: found \"gone\", expected one of \"service\", \"absent\", \"empty\", \"other "
            "type\""},
        Row{"AFrequencyThatThePlanDoesNotHave", "[hop]\nfrequency_plan = \"13 GHz\"\nfrequency_number = 9\n",
            ":3:20: hop.frequency_number: found 9, expected a whole number from 1 to 8, the channels of the 13 GHz "
            "plan"},
        Row{"ASecondChannelOfOne", "[node]\nradio_channels = 1\n[channel.2]\ntransmitter_on = false\n",
            ":3:1: channel.2: found a second channel, expected none where node.radio_channels is 1"},
        Row{"ANumberForAText", "description = 7\n", ":1:15: description: found 7, expected a text"}),
    [](const auto& row) { return row.param.name; });

} // namespace
