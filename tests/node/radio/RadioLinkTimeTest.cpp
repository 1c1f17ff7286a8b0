#include <cstdint>

#include <gtest/gtest.h>

#include "node/radio/RadioLink.h"

using node::radio::Channel;
using node::radio::Conditions;
using node::radio::indexOf;
using node::radio::LinkSetup;
using node::radio::Modem;
using node::radio::Profile;
using node::radio::RadioLink;
using node::radio::Readings;
using node::radio::Ticks;
using node::radio::Tremor;

namespace
{

/// Half of the last digit of a value that is given with two decimals; the rest is for sums of such values.
constexpr double TwoDecimals = 0.006;

/// Of sums that are exact but for their rounding.
constexpr double Rounding = 1e-9;

/// What is measured is rounded to a millionth of a decibel: here, twice.
constexpr double MeasuredTo_dB = 1e-6;

Modem modemOf(const RadioLink& link, std::uint32_t channel = 1)
{
    return link.snapshot(channel).state.modem;
}

TEST(WeatherOverTheLinkTest, ConditionsAreThoseOfTheMoment)
{
    LinkSetup setup;
    setup.hop.distance_km = 7;
    setup.weather.rain_mm_per_h = Profile({{0, 10}, {10, 30}});
    setup.weather.fade_dB = Profile({{0, 0}, {20, 8}});
    RadioLink link(setup);
    const Conditions first = link.conditions();
    EXPECT_EQ(Ticks(0), first.time);
    EXPECT_EQ(7, first.distance_km);
    EXPECT_EQ(10, first.rain_mm_per_h);
    EXPECT_EQ(0, first.fade_dB);
    link.advance(Ticks(50));
    const Conditions then = link.conditions();
    EXPECT_EQ(Ticks(50), then.time);
    EXPECT_DOUBLE_EQ(20, then.rain_mm_per_h);
    EXPECT_DOUBLE_EQ(2, then.fade_dB);
}

TEST(WeatherOverTheLinkTest, TheScintillationIsPartOfTheFade)
{
    LinkSetup setup;
    setup.weather.fade_dB = Profile({{0, 5}});
    setup.weather.scintillation = {1.5, 10.0};
    setup.weather.seed = 77;
    RadioLink link(setup);
    Tremor tremor({1.5, 10.0}, 77);
    const double level_dBm = link.snapshot(1).readings.level_dBm;
    for (int tick = 0; tick < 20; ++tick)
    {
        EXPECT_DOUBLE_EQ(5 + tremor.value_dB(), link.conditions().fade_dB);
        EXPECT_NEAR(level_dBm - tremor.value_dB(), link.snapshot(1).readings.level_dBm, MeasuredTo_dB);
        link.advance(Ticks(1));
        tremor.move();
    }
}

TEST(WeatherOverTheLinkTest, AFadeTakesItsDepthFromBothChannels)
{
    RadioLink link;
    const double clear_dBm = link.snapshot(1).readings.level_dBm;
    link.turnFade(12.5);
    EXPECT_NEAR(clear_dBm - 12.5, link.snapshot(1).readings.level_dBm, Rounding);
    EXPECT_NEAR(clear_dBm - 12.5, link.snapshot(2).readings.level_dBm, Rounding);
    EXPECT_DOUBLE_EQ(40, link.snapshot(1).readings.discrimination_dB);
}

TEST(WeatherOverTheLinkTest, TheLevelEndsAtMinus110dBm)
{
    RadioLink link;
    link.turnFade(66.97);
    EXPECT_NEAR(-109.99, link.snapshot(1).readings.level_dBm, TwoDecimals);
    link.turnFade(67);
    EXPECT_EQ(-110.0, link.snapshot(1).readings.level_dBm);
}

TEST(WeatherOverTheLinkTest, RainAndFadeTurnInAStraightLineOverTheirTime)
{
    RadioLink link;
    link.advance(Ticks(30));
    link.turnRain(40, Ticks(100));
    link.turnFade(10, Ticks(200));
    EXPECT_EQ(0, link.conditions().rain_mm_per_h);
    link.advance(Ticks(50));
    EXPECT_DOUBLE_EQ(20, link.conditions().rain_mm_per_h);
    EXPECT_DOUBLE_EQ(2.5, link.conditions().fade_dB);
    link.advance(Ticks(500));
    EXPECT_EQ(40, link.conditions().rain_mm_per_h);
    EXPECT_EQ(10, link.conditions().fade_dB);
}

TEST(WeatherOverTheLinkTest, ALongerHopTakesMoreOfEverything)
{
    RadioLink link;
    link.turnRain(30);
    link.setDistance(20);
    EXPECT_EQ(20, link.conditions().distance_km);
    const auto& [hop, state, readings] = link.snapshot(1);
    EXPECT_EQ(20, hop.distance_km);
    EXPECT_NEAR(-75.31, readings.level_dBm, TwoDecimals);
    EXPECT_EQ(67'000, readings.hopLengthTime_ns);
}

TEST(LinkTimeTest, NoTimeChangesNothing)
{
    RadioLink link;
    link.change(1, [](Channel& state) { state.transmitter.on = false; });
    link.change(1, [](Channel& state) { state.transmitter.on = true; });
    link.advance(Ticks(0));
    EXPECT_EQ(Ticks(0), link.conditions().time);
    EXPECT_FALSE(modemOf(link).locked);
}

TEST(LinkTimeTest, AFadeLowersTheModulationAtOnce)
{
    RadioLink link;
    link.turnFade(30);
    EXPECT_EQ(indexOf(128, 1), modemOf(link).current);
    EXPECT_TRUE(modemOf(link).locked);
}

TEST(LinkTimeTest, RainLowersTheModulationAtOnce)
{
    RadioLink link;
    link.turnRain(60);
    EXPECT_EQ(indexOf(256, 1), modemOf(link).current);
}

TEST(LinkTimeTest, ALongerHopLowersTheModulationAtOnce)
{
    RadioLink link;
    link.turnFade(15);
    ASSERT_EQ(indexOf(4096, 1), modemOf(link).current);
    link.setDistance(30);
    EXPECT_EQ(indexOf(512, 0), modemOf(link).current);
}

TEST(LinkTimeTest, AfterAFadeTheModulationRisesAStepATick)
{
    RadioLink link;
    link.turnFade(30);
    const auto lowered = modemOf(link).current;
    link.turnFade(0);
    EXPECT_EQ(lowered, modemOf(link).current);
    link.advance(Ticks(1));
    EXPECT_EQ(lowered + 1, modemOf(link).current);
    link.advance(Ticks(4));
    EXPECT_EQ(lowered + 5, modemOf(link).current);
    link.advance(Ticks(100));
    EXPECT_EQ(indexOf(4096, 1), modemOf(link).current);
}

TEST(LinkTimeTest, AfterALossTheLockComesBackInOneTickAndTheModulationsOneByOne)
{
    RadioLink link;
    link.turnFade(100);
    EXPECT_FALSE(modemOf(link).locked);
    EXPECT_EQ(indexOf(4, 0), modemOf(link).current);
    link.turnFade(0);
    EXPECT_FALSE(modemOf(link).locked);
    link.advance(Ticks(1));
    EXPECT_TRUE(modemOf(link).locked);
    EXPECT_EQ(indexOf(4, 0), modemOf(link).current);
    link.advance(Ticks(27));
    EXPECT_EQ(indexOf(4096, 0), modemOf(link).current);
    link.advance(Ticks(1));
    EXPECT_EQ(indexOf(4096, 1), modemOf(link).current);
}

TEST(LinkTimeTest, WithoutPredistortionTheAmplifierLimitsTheSnirAtOnce)
{
    RadioLink link;
    const Readings readings = link.change(1, [](Channel& state) { state.dpd.stop(); }).readings;
    EXPECT_NEAR(34.88, readings.snir_dB, TwoDecimals);
    EXPECT_NEAR(-43.02, readings.level_dBm, TwoDecimals);
    EXPECT_NEAR(43.91, link.snapshot(2).readings.snir_dB, TwoDecimals);
}

TEST(LinkTimeTest, PredistortionAdaptsInTenSeconds)
{
    RadioLink link;
    link.change(1, [](Channel& state) { state.dpd.stop(); });
    link.advance(Ticks(100));
    EXPECT_NEAR(34.88, link.change(1, [](Channel& state) { state.dpd.start(); }).readings.snir_dB, TwoDecimals);
    link.advance(Ticks(50));
    EXPECT_NEAR(39.63, link.snapshot(1).readings.snir_dB, TwoDecimals);
    link.advance(Ticks(49));
    EXPECT_GT(43.90, link.snapshot(1).readings.snir_dB);
    link.advance(Ticks(1));
    EXPECT_NEAR(43.91, link.snapshot(1).readings.snir_dB, TwoDecimals);
}

TEST(LinkTimeTest, TheSlavesReceiverIsSeenSweeping)
{
    RadioLink link;
    const Readings readings = link.change(1, [](Channel& state) { state.xpic.startAcquisition(); }).readings;
    EXPECT_EQ(-100'000, readings.slaveCarrierOffset_Hz);
    link.advance(Ticks(10));
    EXPECT_EQ(-80'000, link.snapshot(1).readings.slaveCarrierOffset_Hz);
}

} // namespace
