#include <ostream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/scenario/ScenarioText.h"
#include "support/Portrait.h"

using node::radio::Profile;
using scenario_text::parse;
using scenario_text::refusal;
using ::testing::ElementsAre;

namespace
{

/// A text whose keys fit each on its own, and the error about them together; "" where they fit.
struct CrossRow
{
    std::string text;
    std::string error;
};

std::ostream& operator<<(std::ostream& stream, const CrossRow& row)
{
    return stream << row.text;
}

class CrossCheckTest : public ::testing::TestWithParam<CrossRow>
{
};

TEST_P(CrossCheckTest, KeysAreHeldAgainstEachOther)
{
    EXPECT_EQ(GetParam().error, refusal(GetParam().text));
}

const CrossRow FrequencyRows[] = {
    {"[hop]\nfrequency_plan = \"13 GHz\"\nfrequency_number = 8\n", ""},
    {"[hop]\nfrequency_plan = \"13 GHz\"\nfrequency_number = 9\n",
     "link.toml:3:20: hop.frequency_number: found 9, expected a whole number from 1 to 8, the channels of the 13 GHz "
     "plan"},
    {"[hop]\nfrequency_number = 9\nfrequency_plan = \"13 GHz\"\n",
     "link.toml:2:20: hop.frequency_number: found 9, expected a whole number from 1 to 8, the channels of the 13 GHz "
     "plan"},
    {"[hop]\nfrequency_number = 35\n", ""},
    {"[hop]\nfrequency_number = 36\n",
     "link.toml:2:20: hop.frequency_number: found 36, expected a whole number from 1 to 35, the channels of the 18 GHz "
     "plan"},
    {"[hop]\nfrequency_plan = \"23 GHz\"\nfrequency_number = 40\n", ""},
};
INSTANTIATE_TEST_SUITE_P(Frequencies, CrossCheckTest, ::testing::ValuesIn(FrequencyRows));

const CrossRow ModulationRows[] = {
    {"[channel.1]\nlowest_modulation = \"16QAM\"\nhighest_modulation = \"16QAM\"\n", ""},
    {"[channel.1]\nlowest_modulation = \"16QAM\"\nhighest_modulation = \"16QAM_STRONG\"\n",
     "link.toml:3:22: channel.1.highest_modulation: found \"16QAM_STRONG\", expected \"16QAM\" or a higher one, for "
     "that is the lowest modulation"},
    {"[channel.2]\nhighest_modulation = \"BPSK\"\nlowest_modulation = \"4QAM\"\n",
     "link.toml:2:22: channel.2.highest_modulation: found \"BPSK\", expected \"4QAM\" or a higher one, for that is "
     "the lowest modulation"},
    {"[channel.1]\n\n[channel.2]\nlowest_modulation = \"4096QAM_LIGHT\"\n",
     "link.toml:4:21: channel.2.lowest_modulation: found \"4096QAM_LIGHT\", expected \"4096QAM\" or a lower one, for "
     "that is the highest modulation"},
    {"[channel.1]\nhighest_modulation = \"BPSK_LIGHT\"\n",
     "link.toml:2:22: channel.1.highest_modulation: found \"BPSK_LIGHT\", expected \"4QAM_STRONG\" or a higher one, "
     "for that is the lowest modulation"},
};
INSTANTIATE_TEST_SUITE_P(Modulations, CrossCheckTest, ::testing::ValuesIn(ModulationRows));

const CrossRow ChannelRows[] = {
    {"[node]\nradio_channels = 1\n[channel.1]\n", ""},
    {"[node]\nradio_channels = 2\n[channel.2]\n", ""},
    {"[node]\nradio_channels = 1\n[channel.2]\n",
     "link.toml:3:1: channel.2: found a second channel, expected none where node.radio_channels is 1"},
    {"[channel.2]\ntransmitter_on = false\n[node]\nradio_channels = 1\n",
     "link.toml:1:1: channel.2: found a second channel, expected none where node.radio_channels is 1"},
    {"[node]\nradio_channels = 1\nradio_channels_told = 2\n[channel.1]\n", ""},
    {"[node]\nradio_channels = 1\n[broker]\nIDpdControllerSplit_1 = \"empty\"\n", ""},
    {"[node]\nradio_channels = 1\n[broker]\nIDpdControllerSplit_2 = \"empty\"\n",
     "link.toml:4:25: broker.IDpdControllerSplit_2: found a second channel's controller, expected none where "
     "node.radio_channels is 1"},
};
INSTANTIATE_TEST_SUITE_P(Channels, CrossCheckTest, ::testing::ValuesIn(ChannelRows));

const CrossRow TimeRows[] = {
    {"[[weather.rain]]\nat_s = 5\n[[weather.rain]]\nat_s = 5.000001\n", ""},
    {"[[weather.rain]]\nat_s = 5\n[[weather.rain]]\nat_s = 5\n",
     "link.toml:4:8: weather.rain[2].at_s: found 5, expected a time after 5, that of the point before"},
    {"[[weather.rain]]\nat_s = 5\n[[weather.rain]]\nrate_mm_per_h = 2\nat_s = 4.5\n",
     "link.toml:5:8: weather.rain[2].at_s: found 4.5, expected a time after 5, that of the point before"},
    {"[[weather.fade]]\n[[weather.fade]]\ndepth_dB = 2\n",
     "link.toml:2:1: weather.fade[2].at_s: found 0, expected a time after 0, that of the point before"},
    {"[[weather.fade]]\nat_s = 1\n[[weather.fade]]\nat_s = 9\n[[weather.fade]]\nat_s = 5\n",
     "link.toml:6:8: weather.fade[3].at_s: found 5, expected a time after 9, that of the point before"},
    {"[[weather.rain]]\nat_s = 5\n[[weather.fade]]\nat_s = 1\n", ""},
};
INSTANTIATE_TEST_SUITE_P(Times, CrossCheckTest, ::testing::ValuesIn(TimeRows));

TEST(ProfileTest, PointsKeepTheirOrderAndTheirProfile)
{
    const auto weather = parse("[[weather.rain]]\n"
                               "rate_mm_per_h = 12.5\n"
                               "[[weather.rain]]\n"
                               "at_s = 60\n"
                               "rate_mm_per_h = 3\n"
                               "[[weather.fade]]\n"
                               "at_s = 0.25\n"
                               "depth_dB = 40\n")
                             .configuration.link.weather;
    EXPECT_THAT(weather.rain_mm_per_h.points(), ElementsAre(Profile::Point{0, 12.5}, Profile::Point{60, 3}));
    EXPECT_THAT(weather.fade_dB.points(), ElementsAre(Profile::Point{0.25, 40}));
}

/// Channel 2 has the polarisation that channel 1 leaves, wherever the hop stands in the file.
TEST(PolarisationTest, TheChannelsHaveBothPolarisations)
{
    using enum node::radio::Polarisation;
    for (const std::string text : {"[hop]\nchannel_1_polarisation = \"horizontal\"\n[channel.2]\n[channel.1]\n",
                                   "[channel.1]\n[channel.2]\n[hop]\nchannel_1_polarisation = \"horizontal\"\n"})
    {
        const auto channels = parse(text).configuration.link.channels;
        EXPECT_EQ(Horizontal, channels[0].polarisation) << text;
        EXPECT_EQ(Vertical, channels[1].polarisation) << text;
    }
    const auto channels = parse("[hop]\nchannel_1_polarisation = \"vertical\"\n").configuration.link.channels;
    EXPECT_EQ(Vertical, channels[0].polarisation);
    EXPECT_EQ(Horizontal, channels[1].polarisation);
}

TEST(PredistortionTest, WhatRunsFromTheStartIsAdaptedAlready)
{
    const auto channels =
        parse("[channel.1]\ndpd_running = true\n[channel.2]\ndpd_running = false\n").configuration.link.channels;
    EXPECT_EQ(std::chrono::seconds(10), channels[0].dpd.adapted);
    EXPECT_EQ(std::chrono::seconds(0), channels[1].dpd.adapted);
}

} // namespace
