#include <cstdint>
#include <ostream>

#include <gtest/gtest.h>

#include "node/radio/Propagation.h"
#include "node/radio/RadioLink.h"
#include "node/radio/Rain.h"

using node::radio::Channel;
using node::radio::noisePower_dBm;
using node::radio::Polarisation;
using node::radio::RadioLink;
using node::radio::rainAttenuation_dB;
using node::radio::Readings;
using node::radio::snir_dB;

namespace
{

/// Half of the last digit of a value that is given with two decimals; the rest is for sums of such values.
constexpr double TwoDecimals = 0.006;

struct Row
{
    std::uint32_t channel;
    double rain_mm_per_h;
    double attenuation_dB;
    double level_dBm;
    double discrimination_dB;
    double snirWithoutXpic_dB;
    double snirWithXpic_dB;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << "channel " << row.channel << ", " << row.rain_mm_per_h << " mm/h";
}

void muteBothSlaves(RadioLink& link)
{
    for (const std::uint32_t channel : {1U, 2U})
    {
        link.change(channel, [](Channel& state) { state.xpic.slaveMuted = true; });
    }
}

class GoldenLinkTest : public ::testing::TestWithParam<Row>
{
protected:
    GoldenLinkTest()
    {
        link.turnRain(GetParam().rain_mm_per_h);
    }

    Readings readings() const
    {
        return link.snapshot(GetParam().channel).readings;
    }

    RadioLink link;
};

TEST_P(GoldenLinkTest, RainTakesItsAttenuation)
{
    const auto polarisation = GetParam().channel == 1 ? Polarisation::Vertical : Polarisation::Horizontal;
    const double attenuation_dB = rainAttenuation_dB(17.7275, polarisation, GetParam().rain_mm_per_h, 10);
    EXPECT_NEAR(GetParam().attenuation_dB, attenuation_dB, TwoDecimals);
}

TEST_P(GoldenLinkTest, ReceivesItsLevel)
{
    EXPECT_NEAR(GetParam().level_dBm, readings().level_dBm, TwoDecimals);
    EXPECT_DOUBLE_EQ(18, readings().txPower_dBm);
}

TEST_P(GoldenLinkTest, KeepsThePolarisationsApart)
{
    EXPECT_NEAR(GetParam().discrimination_dB, readings().discrimination_dB, TwoDecimals);
    EXPECT_NEAR(GetParam().discrimination_dB, readings().interference_dB, TwoDecimals);
}

TEST_P(GoldenLinkTest, HasItsSnirWithoutTheCanceller)
{
    muteBothSlaves(link);
    EXPECT_NEAR(GetParam().snirWithoutXpic_dB, readings().snir_dB, TwoDecimals);
}

TEST_P(GoldenLinkTest, HasItsSnirWithTheCancellerUnlessTheOtherChannelIsLost)
{
    const bool bothLocked = GetParam().rain_mm_per_h < 100;
    EXPECT_EQ(bothLocked, link.snapshot(2).state.modem.locked);
    EXPECT_TRUE(link.snapshot(1).state.modem.locked);
    EXPECT_NEAR(bothLocked ? GetParam().snirWithXpic_dB : GetParam().snirWithoutXpic_dB, readings().snir_dB,
                TwoDecimals);
}

TEST_P(GoldenLinkTest, HasItsSnirByTheFormula)
{
    const double signalToNoise_dB = readings().level_dBm - noisePower_dBm(25e6, 6);
    EXPECT_NEAR(GetParam().snirWithXpic_dB, snir_dB(signalToNoise_dB, readings().discrimination_dB + 20, 45),
                TwoDecimals);
}

INSTANTIATE_TEST_SUITE_P(VerticalChannel, GoldenLinkTest,
                         ::testing::Values(Row{1, 0, 0, -43.02, 40.00, 38.55, 43.91},
                                           Row{1, 10, 6.30, -49.32, 33.65, 33.03, 41.55},
                                           Row{1, 30, 15.31, -58.33, 26.09, 25.58, 34.85},
                                           Row{1, 60, 27.17, -70.19, 20.71, 18.97, 23.69},
                                           Row{1, 100, 41.67, -84.69, 16.64, 8.56, 9.29}));

INSTANTIATE_TEST_SUITE_P(HorizontalChannel, GoldenLinkTest,
                         ::testing::Values(Row{2, 0, 0, -43.02, 40.00, 38.55, 43.91},
                                           Row{2, 10, 6.67, -49.69, 33.23, 32.64, 41.34},
                                           Row{2, 30, 17.49, -60.51, 24.86, 24.26, 32.90},
                                           Row{2, 60, 32.61, -75.63, 18.98, 15.65, 18.32},
                                           Row{2, 100, 51.91, -94.93, 14.54, -1.05, -0.93}));

} // namespace
