#include <array>
#include <cmath>
#include <cstdint>
#include <ostream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/radio/Modulation.h"
#include "node/radio/Propagation.h"
#include "node/radio/RadioLink.h"

using node::radio::backOff_dB;
using node::radio::Channel;
using node::radio::freeSpaceLoss_dB;
using node::radio::Hop;
using node::radio::hopLengthTime_ns;
using node::radio::noisePower_dBm;
using node::radio::PpsCalibration;
using node::radio::PpsFailure;
using node::radio::RadioLink;
using node::radio::Readings;
using node::radio::snir_dB;
using ::testing::Each;

namespace
{

/// Half of the last digit of a value that is given with two decimals.
constexpr double TwoDecimals = 0.005;

TEST(PropagationTest, FreeSpaceLossHasItsReferenceValues)
{
    EXPECT_NEAR(92.44778, freeSpaceLoss_dB(1, 1), 0.0001);
    EXPECT_NEAR(132.4478, freeSpaceLoss_dB(10, 10), 0.0001);
}

TEST(PropagationTest, FreeSpaceLossGrowsBy6dBWithEachDoubling)
{
    EXPECT_NEAR(20 * std::log10(2.0), freeSpaceLoss_dB(36, 10) - freeSpaceLoss_dB(18, 10), 1e-9);
    EXPECT_NEAR(20 * std::log10(2.0), freeSpaceLoss_dB(18, 20) - freeSpaceLoss_dB(18, 10), 1e-9);
}

TEST(PropagationTest, NoiseHasItsReferenceValues)
{
    EXPECT_NEAR(-94.00, noisePower_dBm(25e6, 6), TwoDecimals);
    EXPECT_NEAR(-90.99, noisePower_dBm(50e6, 6), TwoDecimals);
    EXPECT_NEAR(-87.97, noisePower_dBm(100e6, 6), 2 * TwoDecimals); // -87.975
    EXPECT_NEAR(-173.975, noisePower_dBm(1, 0), 1e-9);
}

TEST(PropagationTest, SnirAddsThreeDisturbancesAsPowers)
{
    constexpr double Absent = 1000;
    EXPECT_NEAR(30, snir_dB(30, Absent, Absent), 1e-9);
    EXPECT_NEAR(30, snir_dB(Absent, 30, Absent), 1e-9);
    EXPECT_NEAR(30, snir_dB(Absent, Absent, 30), 1e-9);
    EXPECT_NEAR(30 - 10 * std::log10(3.0), snir_dB(30, 30, 30), 1e-9);
    EXPECT_NEAR(-3.2331, snir_dB(-3, 10, 20), 0.0001);
}

TEST(PropagationTest, HopLengthTimeHasItsReferenceValues)
{
    EXPECT_NEAR(3336.69, hopLengthTime_ns(1), TwoDecimals);
    EXPECT_NEAR(33366.92, hopLengthTime_ns(10), TwoDecimals);
}

struct BackOff
{
    std::uint32_t constellationSize;
    double ofStrongCode_dB;
};

std::ostream& operator<<(std::ostream& out, const BackOff& row)
{
    return out << row.constellationSize << " points";
}

class BackOffTest : public ::testing::TestWithParam<BackOff>
{
};

TEST_P(BackOffTest, GrowsByTwoTenthsOfADecibelPerLighterCode)
{
    const auto& [size, strong_dB] = GetParam();
    EXPECT_NEAR(strong_dB, backOff_dB({size, 0}), 1e-9);
    EXPECT_NEAR(strong_dB + 0.2, backOff_dB({size, 1}), 1e-9);
    EXPECT_NEAR(strong_dB + 0.4, backOff_dB({size, 2}), 1e-9);
}

INSTANTIATE_TEST_SUITE_P(EveryModulation, BackOffTest,
                         ::testing::Values(BackOff{2, 0}, BackOff{4, 0}, BackOff{16, 1.2}, BackOff{32, 1.8},
                                           BackOff{64, 2.4}, BackOff{128, 3.0}, BackOff{256, 3.6}, BackOff{512, 4.2},
                                           BackOff{1024, 4.8}, BackOff{2048, 5.4}, BackOff{4096, 6.0},
                                           BackOff{8192, 6.6}, BackOff{16384, 7.2}));

class RadioLinkTest : public ::testing::TestWithParam<std::uint32_t>
{
protected:
    std::uint32_t channel = GetParam();
    std::uint32_t otherChannel = 3 - GetParam();
    RadioLink link;
};

TEST_P(RadioLinkTest, StartsAsTheLinkInClearSky)
{
    const Readings readings = link.snapshot(channel).readings;
    EXPECT_NEAR(18, readings.txPower_dBm, 1e-9);
    EXPECT_NEAR(-43.02, readings.level_dBm, TwoDecimals);
    EXPECT_NEAR(43.91, readings.snir_dB, TwoDecimals);
    EXPECT_NEAR(40, readings.discrimination_dB, 1e-9);
    EXPECT_NEAR(33366.92, readings.hopLengthTime_ns, TwoDecimals);
}

TEST_P(RadioLinkTest, WithoutACancellerTheOtherPolarisationIsHeard)
{
    link.change(channel, [](Channel& state) { state.xpic.acquired = false; });
    EXPECT_NEAR(38.55, link.snapshot(channel).readings.snir_dB, TwoDecimals);
}

TEST_P(RadioLinkTest, AMutedSlaveCancelsNothing)
{
    link.change(channel, [](Channel& state) { state.xpic.slaveMuted = true; });
    EXPECT_NEAR(38.55, link.snapshot(channel).readings.snir_dB, TwoDecimals);
}

TEST_P(RadioLinkTest, WithoutPredistortionTheAmplifierLimitsTheSnir)
{
    link.change(channel, [](Channel& state) { state.dpd.running = false; });
    EXPECT_NEAR(34.88, link.snapshot(channel).readings.snir_dB, TwoDecimals);
}

TEST_P(RadioLinkTest, NeitherCancellerNorPredistortionTouchesTheLevel)
{
    link.change(channel,
                [](Channel& state)
                {
                    state.dpd.running = false;
                    state.xpic.acquired = false;
                });
    EXPECT_NEAR(-43.02, link.snapshot(channel).readings.level_dBm, TwoDecimals);
    EXPECT_NEAR(18, link.snapshot(channel).readings.txPower_dBm, 1e-9);
}

TEST_P(RadioLinkTest, StartsWithPredistortionRunningAndTheCancellerAcquired)
{
    const Channel state = link.snapshot(channel).state;
    EXPECT_TRUE(state.dpd.running);
    EXPECT_THAT(state.dpd.coefficients, Each(0));
    EXPECT_TRUE(state.xpic.acquired);
    EXPECT_FALSE(state.xpic.slaveMuted);
    EXPECT_EQ(0U, state.xpic.preamble);
    EXPECT_EQ(0U, state.xpic.acquireMode);
    EXPECT_EQ(0U, state.xpic.acquireOption);
    EXPECT_EQ(PpsCalibration::Never, state.pps.calibration);
    EXPECT_EQ(PpsFailure::None, state.pps.failure);
    EXPECT_EQ(0U, state.pps.correction_ns);
    EXPECT_EQ(0U, state.pps.source);
    EXPECT_EQ(0, state.pps.sourceParameter);
    EXPECT_EQ(0U, state.pps.outputMode);
}

TEST_P(RadioLinkTest, RemembersWhatIsSetOnAChannelAndLeavesTheOtherAlone)
{
    link.change(channel,
                [](Channel& state)
                {
                    state.dpd.coefficients.fill(7);
                    state.dpd.running = false;
                    state.xpic.preamble = 3;
                    state.pps.source = 2;
                });
    link.change(channel, [](Channel& state) { state.xpic.slaveMuted = true; });
    const Channel state = link.snapshot(channel).state;
    EXPECT_THAT(state.dpd.coefficients, Each(7));
    EXPECT_FALSE(state.dpd.running);
    EXPECT_EQ(3U, state.xpic.preamble);
    EXPECT_EQ(2U, state.pps.source);
    EXPECT_TRUE(state.xpic.slaveMuted);

    const Channel other = link.snapshot(otherChannel).state;
    EXPECT_THAT(other.dpd.coefficients, Each(0));
    EXPECT_TRUE(other.dpd.running);
    EXPECT_EQ(0U, other.xpic.preamble);
    EXPECT_EQ(0U, other.pps.source);
    EXPECT_FALSE(other.xpic.slaveMuted);
    EXPECT_NEAR(43.91, link.snapshot(otherChannel).readings.snir_dB, TwoDecimals);
}

INSTANTIATE_TEST_SUITE_P(EachChannel, RadioLinkTest, ::testing::Values(1, 2));

TEST(HopTest, CarrierOffsetsOfTheTwoChannelsAreOpposite)
{
    // Half a millionth of 17.7275 GHz.
    const RadioLink link;
    EXPECT_NEAR(8863.75, link.snapshot(1).readings.slaveCarrierOffset_Hz, TwoDecimals);
    EXPECT_NEAR(-8863.75, link.snapshot(2).readings.slaveCarrierOffset_Hz, TwoDecimals);
}

TEST(HopTest, AnotherHopIsCalculatedFromItsOwnValues)
{
    const Hop hop{.distance_km = 20, .modulation = {4, 0}, .gasLoss_dB = 1.2, .symbolRate_Bd = 50e6};
    const RadioLink link(hop);
    EXPECT_EQ(20, link.hop().distance_km);
    const Readings readings = link.snapshot(1).readings;
    EXPECT_NEAR(24.2, readings.txPower_dBm, 1e-9);
    EXPECT_NEAR(24.2 + 77 - 143.44136 - 1.2, readings.level_dBm, 0.0002);
    EXPECT_NEAR(2 * 33366.92, readings.hopLengthTime_ns, 2 * TwoDecimals);
}

} // namespace
