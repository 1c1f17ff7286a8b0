#include <cstdint>

#include <gtest/gtest.h>

#include "node/radio/RadioLink.h"

using node::radio::Channel;
using node::radio::indexOf;
using node::radio::RadioLink;
using node::radio::Readings;
using node::radio::Ticks;
using node::radio::XpicState;

namespace
{

/// Half of the last digit of a value that is given with two decimals; the rest is for sums of such values.
constexpr double TwoDecimals = 0.006;

/// In which tick a full sweep meets the carrier of the channel.
int ticksOfFullSweep(std::uint32_t channel)
{
    return channel == 1 ? 55 : 46;
}

/// What one channel does to the other.
class PolarisationsTest : public ::testing::TestWithParam<std::uint32_t>
{
protected:
    Readings readings() const
    {
        return link.snapshot(channel).readings;
    }

    XpicState xpicState() const
    {
        return link.snapshot(channel).state.xpic.state;
    }

    std::uint32_t channel = GetParam();
    std::uint32_t otherChannel = 3 - GetParam();
    RadioLink link;
};

TEST_P(PolarisationsTest, WithTheOtherTransmitterOffNothingInterferes)
{
    link.change(otherChannel, [](Channel& state) { state.transmitter.on = false; });
    EXPECT_EQ(99.9, readings().interference_dB);
    EXPECT_NEAR(44.02, readings().snir_dB, TwoDecimals);
    EXPECT_EQ(-110.0, readings().slaveLevel_dBm);
    EXPECT_FALSE(readings().slaveSignal);
    EXPECT_DOUBLE_EQ(40, readings().discrimination_dB);
}

TEST_P(PolarisationsTest, WithTheOtherTransmitterOffTheCancellerLosesItsSlave)
{
    link.change(channel, [](Channel& state) { state.xpic.reacquires = false; });
    link.change(otherChannel, [](Channel& state) { state.transmitter.on = false; });
    EXPECT_EQ(XpicState::Lost, xpicState());
    link.change(otherChannel, [](Channel& state) { state.transmitter.on = true; });
    link.advance(Ticks(300));
    EXPECT_EQ(XpicState::Lost, xpicState());
    EXPECT_NEAR(38.55, readings().snir_dB, TwoDecimals);
}

TEST_P(PolarisationsTest, ASwitchedOffChannelHearsNothing)
{
    link.change(channel, [](Channel& state) { state.transmitter.on = false; });
    EXPECT_EQ(-110.0, readings().txPower_dBm);
    EXPECT_EQ(-110.0, readings().level_dBm);
    EXPECT_FALSE(link.snapshot(channel).state.modem.locked);
    EXPECT_EQ(indexOf(4, 0), link.snapshot(channel).state.modem.current);
    EXPECT_EQ(XpicState::Acquiring, xpicState());
    EXPECT_TRUE(link.snapshot(otherChannel).state.modem.locked);
}

TEST_P(PolarisationsTest, AfterATransmitterWasOffBothCancellersReacquireByTheirSweeps)
{
    link.change(channel, [](Channel& state) { state.transmitter.on = false; });
    link.change(channel, [](Channel& state) { state.transmitter.on = true; });
    for (int tick = 1; tick <= 60; ++tick)
    {
        link.advance(Ticks(1));
        for (const std::uint32_t each : {1U, 2U})
        {
            EXPECT_EQ(tick < ticksOfFullSweep(each) ? XpicState::Acquiring : XpicState::Acquired,
                      link.snapshot(each).state.xpic.state)
                << "channel " << each << ", tick " << tick;
        }
    }
    EXPECT_NEAR(43.91, readings().snir_dB, TwoDecimals);
}

TEST_P(PolarisationsTest, ALouderOtherChannelInterferesMore)
{
    link.change(channel, [](Channel& state) { state.transmitter.power_dBm = 10; });
    EXPECT_DOUBLE_EQ(32, readings().interference_dB);
    EXPECT_DOUBLE_EQ(48, link.snapshot(otherChannel).readings.interference_dB);
}

TEST_P(PolarisationsTest, AMutedSlaveCancelsNothingUntilItIsUnmuted)
{
    link.change(channel, [](Channel& state) { state.xpic.slaveMuted = true; });
    EXPECT_NEAR(38.55, readings().snir_dB, TwoDecimals);
    EXPECT_NEAR(43.91, link.snapshot(otherChannel).readings.snir_dB, TwoDecimals);
    EXPECT_EQ(XpicState::Acquired, xpicState());
    link.change(channel, [](Channel& state) { state.xpic.slaveMuted = false; });
    EXPECT_NEAR(43.91, readings().snir_dB, TwoDecimals);
}

TEST_P(PolarisationsTest, WithoutTheCableOneCancellerLosesItsSlave)
{
    link.change(channel, [](Channel& state) { state.xpic.cableConnected = false; });
    EXPECT_EQ(XpicState::Acquiring, xpicState());
    EXPECT_NEAR(38.55, readings().snir_dB, TwoDecimals);
    EXPECT_FALSE(readings().slaveSignal);
    EXPECT_NEAR(-43.02, readings().slaveLevel_dBm, TwoDecimals);
    EXPECT_EQ(XpicState::Acquired, link.snapshot(otherChannel).state.xpic.state);
    EXPECT_TRUE(link.snapshot(otherChannel).readings.slaveSignal);
}

TEST_P(PolarisationsTest, DifferentPreamblesTakeBothCancellersAway)
{
    link.change(otherChannel, [](Channel& state) { state.xpic.preamble = 3; });
    EXPECT_EQ(3U, readings().slavePreamble);
    EXPECT_TRUE(readings().slaveSignal);
    EXPECT_EQ(XpicState::Acquiring, xpicState());
    EXPECT_EQ(XpicState::Acquiring, link.snapshot(otherChannel).state.xpic.state);
    link.advance(Ticks(200));
    EXPECT_EQ(XpicState::Acquiring, xpicState());
    link.change(channel, [](Channel& state) { state.xpic.preamble = 3; });
    link.advance(Ticks(100));
    EXPECT_EQ(XpicState::Acquired, xpicState());
    EXPECT_EQ(XpicState::Acquired, link.snapshot(otherChannel).state.xpic.state);
}

TEST_P(PolarisationsTest, ALossOfTheOtherLockIsFeltInTheSameChange)
{
    link.turnRain(12);
    link.change(otherChannel, [](Channel& state) { state.modem.lowest = state.modem.highest; });
    ASSERT_TRUE(link.snapshot(otherChannel).state.modem.locked);
    ASSERT_EQ(indexOf(4096, 1), link.snapshot(channel).state.modem.current);
    link.change(otherChannel, [](Channel& state) { state.xpic.slaveMuted = true; });
    EXPECT_FALSE(link.snapshot(otherChannel).state.modem.locked);
    EXPECT_EQ(XpicState::Acquiring, xpicState());
    EXPECT_FALSE(readings().slaveSignal);
    EXPECT_NEAR(channel == 1 ? 31.99 : 31.47, readings().snir_dB, TwoDecimals);
    EXPECT_EQ(indexOf(2048, 1), link.snapshot(channel).state.modem.current);
}

INSTANTIATE_TEST_SUITE_P(EachChannel, PolarisationsTest, ::testing::Values(1, 2));

} // namespace
