#include <cmath>

#include <gtest/gtest.h>

#include "node/radio/Decibel.h"
#include "node/radio/Propagation.h"

using node::radio::decibels;
using node::radio::freeSpaceLoss_dB;
using node::radio::linear;
using node::radio::noisePower_dBm;
using node::radio::snir_dB;
using node::radio::travelTime_ns;

namespace
{

/// Half of the last digit of a value that is given with so many decimals.
constexpr double TwoDecimals = 0.005;
constexpr double FourDecimals = 0.00005;

/// Of sums and logarithms that are exact but for their rounding.
constexpr double Rounding = 1e-9;

TEST(DecibelTest, AFactorOfTenIsTenDecibels)
{
    EXPECT_DOUBLE_EQ(10.0, linear(10.0));
    EXPECT_DOUBLE_EQ(0.001, linear(-30.0));
    EXPECT_DOUBLE_EQ(1.0, linear(0.0));
    EXPECT_DOUBLE_EQ(20.0, decibels(100.0));
    EXPECT_DOUBLE_EQ(-10.0, decibels(0.1));
}

TEST(PropagationTest, FreeSpaceLossHasItsReferenceValues)
{
    EXPECT_NEAR(92.4478, freeSpaceLoss_dB(1, 1), FourDecimals);
    EXPECT_NEAR(132.4478, freeSpaceLoss_dB(10, 10), FourDecimals);
}

TEST(PropagationTest, FreeSpaceLossGrowsBy6dBWithEachDoubling)
{
    EXPECT_NEAR(20 * std::log10(2.0), freeSpaceLoss_dB(36, 10) - freeSpaceLoss_dB(18, 10), Rounding);
    EXPECT_NEAR(20 * std::log10(2.0), freeSpaceLoss_dB(18, 20) - freeSpaceLoss_dB(18, 10), Rounding);
}

TEST(PropagationTest, NoiseHasItsReferenceValues)
{
    EXPECT_NEAR(-173.975, noisePower_dBm(1, 0), Rounding);
    EXPECT_NEAR(-94.00, noisePower_dBm(25e6, 6), TwoDecimals);
    EXPECT_NEAR(-90.99, noisePower_dBm(50e6, 6), TwoDecimals);
    EXPECT_NEAR(-87.975, noisePower_dBm(100e6, 6), Rounding);
}

TEST(PropagationTest, SnirAddsThreeDisturbancesAsPowers)
{
    constexpr double Absent = 1000;
    EXPECT_NEAR(30, snir_dB(30, Absent, Absent), Rounding);
    EXPECT_NEAR(30, snir_dB(Absent, 30, Absent), Rounding);
    EXPECT_NEAR(30, snir_dB(Absent, Absent, 30), Rounding);
    EXPECT_NEAR(30 - 10 * std::log10(3.0), snir_dB(30, 30, 30), Rounding);
    EXPECT_NEAR(-3.2331, snir_dB(-3, 10, 20), FourDecimals);
}

TEST(PropagationTest, TravelTimeHasItsReferenceValues)
{
    EXPECT_NEAR(3336.69, travelTime_ns(1), TwoDecimals);
    EXPECT_NEAR(33366.92, travelTime_ns(10), TwoDecimals);
}

} // namespace
