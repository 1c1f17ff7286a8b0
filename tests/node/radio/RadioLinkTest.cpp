#include <cstdint>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/radio/RadioLink.h"

using node::radio::Channel;
using node::radio::findFrequencyPlan;
using node::radio::indexOf;
using node::radio::LinkSetup;
using node::radio::Polarisation;
using node::radio::PpsCalibration;
using node::radio::RadioLink;
using node::radio::Readings;
using node::radio::Snapshot;
using node::radio::Ticks;
using node::radio::XpicAcquireMode;
using node::radio::XpicState;
using ::testing::Each;

namespace
{

/// Half of the last digit of a value that is given with two decimals; the rest is for sums of such values.
constexpr double TwoDecimals = 0.006;

/// Of sums that are exact but for their rounding.
constexpr double Rounding = 1e-9;

class EachChannelTest : public ::testing::TestWithParam<std::uint32_t>
{
protected:
    std::uint32_t channel = GetParam();
    std::uint32_t otherChannel = 3 - GetParam();
    RadioLink link;
};

TEST_P(EachChannelTest, StartsAsTheLinkInClearSky)
{
    const auto& [hop, state, readings] = link.snapshot(channel);
    EXPECT_EQ(10.0, hop.distance_km);
    EXPECT_DOUBLE_EQ(18, readings.txPower_dBm);
    EXPECT_NEAR(-43.02, readings.level_dBm, TwoDecimals);
    EXPECT_NEAR(43.91, readings.snir_dB, TwoDecimals);
    EXPECT_DOUBLE_EQ(40, readings.discrimination_dB);
    EXPECT_DOUBLE_EQ(40, readings.interference_dB);
    EXPECT_TRUE(readings.slaveSignal);
    EXPECT_NEAR(-43.02, readings.slaveLevel_dBm, TwoDecimals);
    EXPECT_EQ(0U, readings.slavePreamble);
    EXPECT_EQ(33'000, readings.hopLengthTime_ns);
}

TEST_P(EachChannelTest, StartsSettled)
{
    const Channel before = link.snapshot(channel).state;
    EXPECT_TRUE(before.modem.locked);
    EXPECT_EQ(indexOf(4096, 1), before.modem.current);
    EXPECT_EQ(XpicState::Acquired, before.xpic.state);
    EXPECT_EQ(PpsCalibration::Never, before.pps.calibration);
    link.advance(Ticks(500));
    const Channel after = link.snapshot(channel).state;
    EXPECT_TRUE(after.modem.locked);
    EXPECT_EQ(indexOf(4096, 1), after.modem.current);
    EXPECT_EQ(0, after.modem.erroredBlocks);
    EXPECT_EQ(XpicState::Acquired, after.xpic.state);
}

TEST_P(EachChannelTest, TheSlaveStandsAtItsCarrierOfHalfAPartInAMillion)
{
    const double offset_Hz = channel == 1 ? 8863.75 : -8863.75;
    const Snapshot snapshot = link.snapshot(channel);
    EXPECT_DOUBLE_EQ(offset_Hz, snapshot.readings.slaveCarrierOffset_Hz);
    EXPECT_DOUBLE_EQ(offset_Hz, snapshot.state.xpic.lastCarrier_Hz);
}

TEST_P(EachChannelTest, RemembersWhatIsSetAndLeavesTheOtherChannelAlone)
{
    link.change(channel,
                [](Channel& state)
                {
                    state.dpd.coefficients.fill(7);
                    state.dpd.stop();
                    state.pps.source = 2;
                });
    link.change(channel, [](Channel& state) { state.xpic.slaveMuted = true; });
    const Channel state = link.snapshot(channel).state;
    EXPECT_THAT(state.dpd.coefficients, Each(7));
    EXPECT_FALSE(state.dpd.running);
    EXPECT_EQ(2U, state.pps.source);
    EXPECT_TRUE(state.xpic.slaveMuted);

    const auto& [hop, other, readings] = link.snapshot(otherChannel);
    EXPECT_THAT(other.dpd.coefficients, Each(0));
    EXPECT_TRUE(other.dpd.running);
    EXPECT_EQ(0U, other.pps.source);
    EXPECT_FALSE(other.xpic.slaveMuted);
    EXPECT_NEAR(43.91, readings.snir_dB, TwoDecimals);
}

TEST_P(EachChannelTest, AChangeAnswersTheChannelRightAfterIt)
{
    const Snapshot after = link.change(channel, [](Channel& state) { state.transmitter.on = false; });
    EXPECT_FALSE(after.state.transmitter.on);
    EXPECT_FALSE(after.state.modem.locked);
    EXPECT_EQ(-110.0, after.readings.level_dBm);
}

TEST_P(EachChannelTest, TheSetPowerIsSentAsFarAsTheModulationCarriesIt)
{
    EXPECT_DOUBLE_EQ(10.0, link.change(channel, [](Channel& c) { c.transmitter.power_dBm = 10; }).readings.txPower_dBm);
    EXPECT_DOUBLE_EQ(18.0, link.change(channel, [](Channel& c) { c.transmitter.power_dBm = 30; }).readings.txPower_dBm);
    const auto restrictTo16Qam = [](Channel& state)
    { state.modem.lowest = state.modem.highest = state.modem.current = indexOf(16, 0); };
    EXPECT_DOUBLE_EQ(23.0, link.change(channel, restrictTo16Qam).readings.txPower_dBm);
}

TEST_P(EachChannelTest, TheLevelFollowsThePowerThatIsSent)
{
    const double before_dBm = link.snapshot(channel).readings.level_dBm;
    const Readings after = link.change(channel, [](Channel& c) { c.transmitter.power_dBm = 10; }).readings;
    EXPECT_NEAR(before_dBm - 8, after.level_dBm, Rounding);
    EXPECT_NEAR(before_dBm, after.slaveLevel_dBm, Rounding);
    EXPECT_NEAR(before_dBm - 8, link.snapshot(otherChannel).readings.slaveLevel_dBm, Rounding);
}

INSTANTIATE_TEST_SUITE_P(EachChannel, EachChannelTest, ::testing::Values(1, 2));

TEST(RadioLinkTest, HasTwoChannelsThatCountFrom1)
{
    const RadioLink link;
    EXPECT_EQ(2U, link.numberOfChannels());
    EXPECT_FALSE(link.hasChannel(0));
    EXPECT_TRUE(link.hasChannel(1));
    EXPECT_TRUE(link.hasChannel(2));
    EXPECT_FALSE(link.hasChannel(3));
}

TEST(RadioLinkTest, ChannelsAreTheTwoPolarisationsOfOneFrequency)
{
    const RadioLink link;
    EXPECT_EQ(Polarisation::Vertical, link.snapshot(1).state.polarisation);
    EXPECT_EQ(Polarisation::Horizontal, link.snapshot(2).state.polarisation);
    EXPECT_EQ(17'727'500U, link.snapshot(1).hop.txFrequency_kHz());
    EXPECT_EQ(18'737'500U, link.snapshot(2).hop.rxFrequency_kHz());
}

TEST(RadioLinkTest, AnotherHopIsCalculatedFromItsOwnValues)
{
    LinkSetup setup;
    setup.hop = {.distance_km = 20,
                 .plan = findFrequencyPlan("23 GHz"),
                 .frequencyNumber = 3,
                 .symbolRate_Bd = 50e6,
                 .peakPower_dBm = 20.2,
                 .noiseFigure_dB = 5,
                 .antennaGain_dBi = 40,
                 .antennaDiscrimination_dB = 30,
                 .gasLoss_dB_per_km = 0.1,
                 .referenceDifference_ppm = -1};
    const RadioLink link(setup);
    const auto& [hop, state, readings] = link.snapshot(1);
    EXPECT_EQ(21'294'000U, hop.txFrequency_kHz());
    EXPECT_DOUBLE_EQ(14, readings.txPower_dBm);
    // Free space takes 145.034 dB; the noise is at -91.985 dBm.
    EXPECT_NEAR(14 + 80 - 145.034 - 2, readings.level_dBm, TwoDecimals);
    EXPECT_DOUBLE_EQ(35, readings.discrimination_dB);
    EXPECT_NEAR(37.90, readings.snir_dB, TwoDecimals);
    EXPECT_DOUBLE_EQ(-21'294, readings.slaveCarrierOffset_Hz);
}

TEST(RadioLinkTest, NothingIsReceivedOfASilentTransmitterHoweverNearItIs)
{
    LinkSetup setup;
    setup.hop.distance_km = 0.1;
    setup.hop.antennaGain_dBi = 60;
    setup.channels[0].transmitter.on = false;
    const RadioLink link(setup);
    EXPECT_EQ(-110.0, link.snapshot(1).readings.level_dBm);
    EXPECT_EQ(-110.0, link.snapshot(2).readings.slaveLevel_dBm);
}

TEST(RadioLinkTest, ALinkThatStartsInRainStartsAtTheModulationThatItCarries)
{
    LinkSetup setup;
    setup.weather.rain_mm_per_h.turnTo(60, Ticks(0), Ticks(0));
    RadioLink link(setup);
    EXPECT_EQ(indexOf(256, 1), link.snapshot(1).state.modem.current);
    EXPECT_EQ(indexOf(64, 1), link.snapshot(2).state.modem.current);
    link.advance(Ticks(1));
    EXPECT_EQ(0, link.snapshot(1).state.modem.erroredBlocks);
    EXPECT_EQ(0, link.snapshot(2).state.modem.erroredBlocks);
}

TEST(RadioLinkTest, ACancellerThatStartsIdleHasFoundNoCarrier)
{
    LinkSetup setup;
    setup.channels[0].xpic.state = XpicState::Idle;
    const RadioLink link(setup);
    EXPECT_EQ(XpicState::Idle, link.snapshot(1).state.xpic.state);
    EXPECT_EQ(0, link.snapshot(1).state.xpic.lastCarrier_Hz);
    EXPECT_NEAR(38.55, link.snapshot(1).readings.snir_dB, TwoDecimals);
    EXPECT_NEAR(43.91, link.snapshot(2).readings.snir_dB, TwoDecimals);
}

LinkSetup oneChannel()
{
    LinkSetup setup;
    setup.numberOfChannels = 1;
    return setup;
}

TEST(OneChannelLinkTest, HasChannel1Alone)
{
    const RadioLink link(oneChannel());
    EXPECT_EQ(1U, link.numberOfChannels());
    EXPECT_FALSE(link.hasChannel(0));
    EXPECT_TRUE(link.hasChannel(1));
    EXPECT_FALSE(link.hasChannel(2));
}

TEST(OneChannelLinkTest, HearsNoOtherPolarisation)
{
    const RadioLink link(oneChannel());
    const auto& [hop, state, readings] = link.snapshot(1);
    EXPECT_EQ(XpicState::Idle, state.xpic.state);
    EXPECT_EQ(99.9, readings.interference_dB);
    EXPECT_FALSE(readings.slaveSignal);
    EXPECT_EQ(-110.0, readings.slaveLevel_dBm);
    EXPECT_EQ(0U, readings.slavePreamble);
    EXPECT_EQ(0.0, readings.slaveCarrierOffset_Hz);
    EXPECT_NEAR(44.02, readings.snir_dB, TwoDecimals);
}

TEST(OneChannelLinkTest, AnAcquisitionFindsNothing)
{
    RadioLink link(oneChannel());
    link.change(1,
                [](Channel& state)
                {
                    state.xpic.mode = XpicAcquireMode::Direct;
                    state.xpic.retries = false;
                    state.xpic.startAcquisition();
                });
    link.advance(Ticks(10));
    EXPECT_EQ(XpicState::Failed, link.snapshot(1).state.xpic.state);
}

} // namespace
