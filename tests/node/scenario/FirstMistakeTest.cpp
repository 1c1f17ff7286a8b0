#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/scenario/ScenarioText.h"
#include "support/Portrait.h"

using scenario_text::parse;
using scenario_text::refusal;
using ::testing::ElementsAreArray;

namespace
{

TEST(FirstMistakeTest, OfTwoTablesIsNamedWhateverTheAlphabetSays)
{
    EXPECT_EQ("link.toml:2:15: hop.distance_km: found 0, expected a number from 0.1 to 100",
              refusal("[hop]\ndistance_km = 0\n[broker]\nIRlbspKelApi = 1\n"));
    EXPECT_EQ("link.toml:2:16: broker.IRlbspKelApi: found 1, expected one of \"service\", \"absent\", \"empty\", "
              "\"other type\"",
              refusal("[broker]\nIRlbspKelApi = 1\n[hop]\ndistance_km = 0\n"));
}

TEST(FirstMistakeTest, OfTwoKeysInATableIsNamedWhateverTheAlphabetSays)
{
    EXPECT_EQ("link.toml:2:18: node.radio_channels: found 3, expected a whole number from 1 to 2",
              refusal("[node]\nradio_channels = 3\n\ncolour = 1\n"));
    EXPECT_EQ("link.toml:2:1: found an unknown key \"colour\", expected a key of node",
              refusal("[node]\ncolour = 1\nradio_channels = 3\n"));
}

TEST(FirstMistakeTest, OfTwoKeysInALineIsNamed)
{
    EXPECT_EQ("link.toml:1:17: node.seed: found -1, expected a whole number from 0 to 9007199254740991",
              refusal("node = { seed = -1, radio_channels = 3 }\n"));
    EXPECT_EQ("link.toml:1:27: node.radio_channels: found 3, expected a whole number from 1 to 2",
              refusal("node = { radio_channels = 3, seed = -1 }\n"));
}

TEST(FirstMistakeTest, OfTwoPointsOrFaultsIsNamed)
{
    EXPECT_EQ("link.toml:2:8: weather.rain[1].at_s: found -1, expected a number from 0 to 1000000",
              refusal("[[weather.rain]]\nat_s = -1\n[[weather.rain]]\nat_s = -2\n"));
    EXPECT_EQ("link.toml:1:1: fault[1].call: found no call, expected the key \"call\"",
              refusal("[[fault]]\n[[fault]]\ncall = 1\n"));
}

TEST(FirstMistakeTest, OfTwoChannelsIsNamed)
{
    EXPECT_EQ("link.toml:2:14: channel.2.pps_source: found 3, expected a whole number from 0 to 2",
              refusal("[channel.2]\npps_source = 3\n[channel.1]\npps_source = 4\n"));
}

/// The whole file is held against TOML before any of it against what a scenario is.
TEST(FirstMistakeTest, AMistakeInTheTomlComesFirst)
{
    EXPECT_THAT(refusal("[hop]\ndistance_km = 0\n[hop]\n"), ::testing::StartsWith("link.toml:3:1: found a mistake"));
}

TEST(FirstMistakeTest, IsNamedWithTheFileThatItIsIn)
{
    EXPECT_EQ("some/where.toml:1:1: found an unknown key \"x\", expected a key or table of a scenario",
              scenario_text::refusalOf([] { node::scenario::parse("x = 1\n", "some/where.toml"); }));
}

/// Tables may stand in any order: what one of them needs of another is found all the same.
TEST(OrderOfTablesTest, DoesNotMatter)
{
    const std::string node = "[node]\nradio_channels_told = 7\nseed = 5\n";
    const std::string hop = "[hop]\nfrequency_number = 40\nfrequency_plan = \"23 GHz\"\n"
                            "channel_1_polarisation = \"horizontal\"\n";
    const std::string first = "[channel.1]\nhighest_modulation = \"16QAM\"\nlowest_modulation = \"16QAM\"\n";
    const std::string second = "[channel.2]\ntransmitter_on = false\n";
    const std::string rain = "[[weather.rain]]\nrate_mm_per_h = 9\nat_s = 1\n";

    const auto lines = portrait::of(parse(node + hop + first + second + rain));
    EXPECT_THAT(portrait::of(parse(rain + second + first + hop + node)), ElementsAreArray(lines));
    EXPECT_THAT(portrait::of(parse(second + hop + rain + node + first)), ElementsAreArray(lines));
}

/// Every way in which TOML writes a table is the same table.
TEST(OrderOfTablesTest, TablesMayBeWrittenInEveryWayOfToml)
{
    const auto lines = portrait::of(parse("[hop]\ndistance_km = 7\n[channel.2]\npps_source = 2\n"
                                          "[[weather.fade]]\nat_s = 3\ndepth_dB = 4\n"));
    EXPECT_THAT(portrait::of(parse("hop.distance_km = 7\nchannel.2.pps_source = 2\n"
                                   "weather.fade = [{ at_s = 3, depth_dB = 4 }]\n")),
                ElementsAreArray(lines));
    EXPECT_THAT(portrait::of(parse("hop = { distance_km = 7 }\nchannel = { 2 = { pps_source = 2 } }\n"
                                   "weather = { fade = [{ depth_dB = 4, at_s = 3 }] }\n")),
                ElementsAreArray(lines));
    EXPECT_THAT(portrait::of(parse("[\"hop\"]\n'distance_km' = 7\n[channel.\"2\"]\npps_source = 2\n"
                                   "[weather]\n[[weather.fade]]\nat_s = 3\ndepth_dB = 4\n")),
                ElementsAreArray(lines));
}

} // namespace
