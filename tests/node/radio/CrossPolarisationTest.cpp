#include <cmath>
#include <ostream>

#include <gtest/gtest.h>

#include "node/radio/CrossPolarisation.h"

using node::radio::clearSkyDiscrimination_dB;
using node::radio::discrimination_dB;
using node::radio::rainDiscrimination_dB;

namespace
{

/// Half of the last digit of a value that is given with four decimals.
constexpr double FourDecimals = 0.00005;

/// Of sums and logarithms that are exact but for their rounding.
constexpr double Rounding = 1e-9;

TEST(CrossPolarisationTest, AntennasOf35dBAndLessGive5dBMoreInClearSky)
{
    EXPECT_DOUBLE_EQ(15.0, clearSkyDiscrimination_dB(10.0));
    EXPECT_DOUBLE_EQ(39.9, clearSkyDiscrimination_dB(34.9));
    EXPECT_DOUBLE_EQ(40.0, clearSkyDiscrimination_dB(35.0));
}

TEST(CrossPolarisationTest, BetterAntennasGive40dBInClearSky)
{
    EXPECT_EQ(40.0, clearSkyDiscrimination_dB(35.1));
    EXPECT_EQ(40.0, clearSkyDiscrimination_dB(60.0));
}

struct RainRow
{
    double frequency_GHz;
    double attenuation_dB;
    double discrimination_dB;
};

std::ostream& operator<<(std::ostream& out, const RainRow& row)
{
    return out << row.frequency_GHz << " GHz, " << row.attenuation_dB << " dB";
}

class RainDiscriminationTest : public ::testing::TestWithParam<RainRow>
{
};

TEST_P(RainDiscriminationTest, HasItsReferenceValue)
{
    const RainRow& row = GetParam();
    EXPECT_NEAR(row.discrimination_dB, rainDiscrimination_dB(row.frequency_GHz, row.attenuation_dB), FourDecimals);
}

INSTANTIATE_TEST_SUITE_P(AcrossTheBands, RainDiscriminationTest,
                         ::testing::Values(RainRow{10, 1, 45.0}, RainRow{10, 10, 25.1751}, RainRow{10, 0.1, 64.8249},
                                           RainRow{17.7275, 10, 30.3563}, RainRow{20, 10, 31.4154},
                                           RainRow{20.0001, 10, 31.4310}, RainRow{30, 10, 36.7136}));

TEST(CrossPolarisationTest, FrequenciesOutsideOf8To35GHzAreTakenAsTheNearestOne)
{
    EXPECT_NEAR(23.0908, rainDiscrimination_dB(8, 10), FourDecimals);
    EXPECT_EQ(rainDiscrimination_dB(8, 10), rainDiscrimination_dB(7.9, 10));
    EXPECT_EQ(rainDiscrimination_dB(8, 10), rainDiscrimination_dB(1, 10));
    EXPECT_LT(rainDiscrimination_dB(8, 10), rainDiscrimination_dB(8.1, 10));
    EXPECT_NEAR(38.7220, rainDiscrimination_dB(35, 10), FourDecimals);
    EXPECT_EQ(rainDiscrimination_dB(35, 10), rainDiscrimination_dB(35.1, 10));
    EXPECT_EQ(rainDiscrimination_dB(35, 10), rainDiscrimination_dB(80, 10));
    EXPECT_GT(rainDiscrimination_dB(35, 10), rainDiscrimination_dB(34.9, 10));
}

TEST(CrossPolarisationTest, WithoutAttenuationTheDiscriminationIsThatOfClearSky)
{
    EXPECT_EQ(40.0, discrimination_dB(36, 18, 0));
    EXPECT_EQ(40.0, discrimination_dB(36, 18, -0.1));
    EXPECT_EQ(25.0, discrimination_dB(20, 18, 0));
}

TEST(CrossPolarisationTest, WhatClearSkyAndRainLeaveIsAddedAsPowers)
{
    EXPECT_NEAR(25.0345, discrimination_dB(36, 10, 10), FourDecimals);
    EXPECT_NEAR(22.0764, discrimination_dB(20, 10, 10), FourDecimals);
    EXPECT_NEAR(40 - 10 * std::log10(2.0), discrimination_dB(36, 10, std::pow(10.0, 5 / (12.8 * std::pow(10.0, 0.19)))),
                Rounding);
}

} // namespace
