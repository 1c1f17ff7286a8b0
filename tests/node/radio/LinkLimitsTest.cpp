#include <cmath>
#include <cstdint>
#include <stdexcept>

#include <gtest/gtest.h>

#include "node/radio/RadioLink.h"

using node::radio::Channel;
using node::radio::Dpd;
using node::radio::LinkSetup;
using node::radio::PpsCalibration;
using node::radio::PpsFailure;
using node::radio::PpsRequest;
using node::radio::RadioLink;
using node::radio::Ticks;
using node::radio::XpicState;

namespace
{

/// What is measured is rounded to a millionth of a decibel.
constexpr double MeasuredTo_dB = 1e-6;

TEST(LinkLimitsTest, AChannelThatTheLinkDoesNotHaveIsRefused)
{
    LinkSetup setup;
    setup.numberOfChannels = 1;
    RadioLink link(setup);
    for (const std::uint32_t channel : {0U, 2U, 3U})
    {
        EXPECT_THROW(link.snapshot(channel), std::out_of_range);
        EXPECT_THROW(link.change(channel, [](Channel& /*state*/) {}), std::out_of_range);
        EXPECT_THROW(link.calibratePps(channel, PpsRequest::Coarse, 0), std::out_of_range);
    }
}

TEST(LinkLimitsTest, ASilentChannelHearsTheOtherOneAboveItsOwnLevel)
{
    RadioLink link;
    const double level_dBm = link.snapshot(2).readings.level_dBm;
    link.change(1, [](Channel& state) { state.transmitter.on = false; });
    EXPECT_NEAR(40.0 - 110.0 - level_dBm, link.snapshot(1).readings.interference_dB, MeasuredTo_dB);
}

TEST(LinkLimitsTest, WhatIsMeasuredIsRoundedToAMillionthOfADecibel)
{
    RadioLink link;
    link.turnRain(37.1);
    const auto readings = link.snapshot(1).readings;
    for (const double value : {readings.level_dBm, readings.snir_dB, readings.discrimination_dB,
                               readings.interference_dB, readings.slaveLevel_dBm})
    {
        EXPECT_DOUBLE_EQ(std::round(value * 1e6) / 1e6, value);
    }
}

TEST(LinkLimitsTest, PredistortionAdaptsWithLockAlone)
{
    RadioLink link;
    link.change(1,
                [](Channel& state)
                {
                    state.dpd.stop();
                    state.dpd.start();
                    state.transmitter.on = false;
                });
    link.advance(Ticks(50));
    EXPECT_EQ(Ticks(0), link.snapshot(1).state.dpd.adapted);
    link.change(1, [](Channel& state) { state.transmitter.on = true; });
    link.advance(Ticks(1) + Dpd::AdaptationTime);
    EXPECT_EQ(Dpd::AdaptationTime, link.snapshot(1).state.dpd.adapted);
}

TEST(LinkLimitsTest, AModulationThatRisesInItsLastTickFailsACalibration)
{
    RadioLink link;
    link.turnFade(25);
    link.calibratePps(1, PpsRequest::Coarse, 0);
    link.advance(Ticks(99));
    link.turnFade(0);
    link.advance(Ticks(1));
    EXPECT_EQ(PpsCalibration::Failed, link.snapshot(1).state.pps.calibration);
    EXPECT_EQ(PpsFailure::ModulationChange, link.snapshot(1).state.pps.failure);
}

/// 100 kHz, the reach of a full sweep, in parts of a million of the transmit frequency.
constexpr double Reach_ppm = 100e3 / 17'727.5;

TEST(LinkLimitsTest, ACancellerDoesNotBeginAcquiredBeyondTheReachOfItsSweep)
{
    LinkSetup setup;
    setup.hop.referenceDifference_ppm = Reach_ppm * 1.001;
    RadioLink link(setup);
    EXPECT_EQ(XpicState::Acquiring, link.snapshot(1).state.xpic.state);
    link.advance(Ticks(1000));
    EXPECT_EQ(XpicState::Acquiring, link.snapshot(1).state.xpic.state);

    setup.channels[1].xpic.reacquires = false;
    EXPECT_EQ(XpicState::Lost, RadioLink(setup).snapshot(2).state.xpic.state);
}

TEST(LinkLimitsTest, ACancellerBeginsAcquiredWithinTheReachOfItsSweep)
{
    LinkSetup setup;
    setup.hop.referenceDifference_ppm = Reach_ppm * 0.999;
    EXPECT_EQ(XpicState::Acquired, RadioLink(setup).snapshot(1).state.xpic.state);
    EXPECT_EQ(XpicState::Acquired, RadioLink(setup).snapshot(2).state.xpic.state);
}

/// Both channels send more than a fast modulation carries: what a slower one takes off its back-off comes on top.
LinkSetup loud()
{
    LinkSetup setup;
    for (Channel& channel : setup.channels)
    {
        channel.transmitter.power_dBm = 24;
    }
    return setup;
}

TEST(LinkLimitsTest, TheLockHoldsWhereTheLowestModulationHoldsWithItsOwnPower)
{
    for (const double fade_dB : {46.0, 48.0, 50.0})
    {
        SCOPED_TRACE(fade_dB);
        RadioLink link(loud());
        link.turnFade(fade_dB);
        const auto [hop, state, readings] = link.snapshot(1);
        EXPECT_TRUE(state.modem.locked);
        EXPECT_GE(readings.snir_dB, state.modem.modulation().requiredSnir_dB);
        EXPECT_EQ(XpicState::Acquired, state.xpic.state);
    }
}

TEST(LinkLimitsTest, EqualChannelsFareEqually)
{
    LinkSetup setup = loud();
    for (Channel& channel : setup.channels)
    {
        channel.xpic.state = XpicState::Idle;
    }
    for (int discrimination_dB = 10; discrimination_dB <= 36; ++discrimination_dB)
    {
        setup.hop.antennaDiscrimination_dB = discrimination_dB;
        RadioLink link(setup);
        for (const double fade_dB : {0.0, 21.3, 38.0, 44.7, 10.0})
        {
            SCOPED_TRACE(::testing::Message() << "antennas " << discrimination_dB << " dB, fade " << fade_dB << " dB");
            link.turnFade(fade_dB);
            for (const int ticks : {0, 1, 100})
            {
                link.advance(Ticks(ticks));
                const auto first = link.snapshot(1);
                const auto second = link.snapshot(2);
                EXPECT_EQ(first.state.modem.current, second.state.modem.current) << ticks;
                EXPECT_EQ(first.readings.snir_dB, second.readings.snir_dB) << ticks;
            }
        }
    }
}

} // namespace
