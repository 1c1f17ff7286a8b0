#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "node/radio/RadioLink.h"
#include "node/radio/RandomLink.h"

using node::radio::Channel;
using node::radio::LinkSetup;
using node::radio::ModulationIndex;
using node::radio::RadioLink;
using node::radio::Ticks;

namespace
{

/// In dB; of sums that are exact but for their rounding.
constexpr double Rounding = 1e-9;

class RadioLinkPropertyTest : public ::testing::TestWithParam<std::uint64_t>
{
protected:
    static std::string where(int round)
    {
        return "seed " + std::to_string(GetParam()) + ", round " + std::to_string(round);
    }

    /// A link whose transmitters send what is set, whichever modulation is used: the level is the path's alone.
    LinkSetup setupOfConstantPower()
    {
        constexpr double LargestBackOff_dB = 7.6;
        LinkSetup setup = randomSetup(random);
        for (Channel& channel : setup.channels)
        {
            channel.transmitter.power_dBm = setup.hop.peakPower_dBm - LargestBackOff_dB;
        }
        return setup;
    }

    static void changeAgainAndAgain(Random& source, RadioLink& link, int times)
    {
        for (int i = 0; i < times; ++i)
        {
            changeSomething(source, link);
            link.advance(Ticks(source.whole(0, 15)));
        }
    }

    Random random{GetParam()};
};

std::vector<ModulationIndex> modulationsOf(const RadioLink& link)
{
    std::vector<ModulationIndex> result;
    for (std::uint32_t channel = 1; channel <= link.numberOfChannels(); ++channel)
    {
        const auto modem = link.snapshot(channel).state.modem;
        // A lost lock as a modulation of its own.
        result.push_back(modem.locked ? modem.current + 1 : 0);
    }
    return result;
}

TEST_P(RadioLinkPropertyTest, MoreRainNeverRaisesTheLevel)
{
    for (int round = 0; round < 100; ++round)
    {
        SCOPED_TRACE(where(round));
        RadioLink link(setupOfConstantPower());
        const std::uint32_t channel = random.whole(1, link.numberOfChannels());
        double rate = 0;
        double level_dBm = link.snapshot(channel).readings.level_dBm;
        for (int step = 0; step < 10; ++step)
        {
            rate = step == 0 ? random.scaled(0.01, 1) : rate * random.real(1, 2);
            link.turnRain(rate);
            const double next_dBm = link.snapshot(channel).readings.level_dBm;
            EXPECT_LE(next_dBm, level_dBm + Rounding) << "at " << rate << " mm/h";
            level_dBm = next_dBm;
        }
    }
}

TEST_P(RadioLinkPropertyTest, ADeeperFadeNeverRaisesTheLevel)
{
    for (int round = 0; round < 100; ++round)
    {
        SCOPED_TRACE(where(round));
        RadioLink link(setupOfConstantPower());
        const std::uint32_t channel = random.whole(1, link.numberOfChannels());
        double depth_dB = 0;
        double level_dBm = link.snapshot(channel).readings.level_dBm;
        for (int step = 0; step < 10; ++step)
        {
            depth_dB += random.real(0, 15);
            link.turnFade(depth_dB);
            const double next_dBm = link.snapshot(channel).readings.level_dBm;
            EXPECT_LE(next_dBm, level_dBm + Rounding) << "at " << depth_dB << " dB";
            level_dBm = next_dBm;
        }
    }
}

void expectWithinBounds(const RadioLink& link, std::uint32_t channel)
{
    const auto& [hop, state, readings] = link.snapshot(channel);
    EXPECT_GE(readings.level_dBm, -110);
    EXPECT_LE(readings.level_dBm, hop.peakPower_dBm + 2 * hop.antennaGain_dBi);
    EXPECT_LE(readings.interference_dB, 99.9);
    EXPECT_LE(readings.discrimination_dB, 40);
    EXPECT_LT(readings.snir_dB, state.dpd.floor_dB());
    EXPECT_LT(readings.snir_dB, readings.interference_dB + (state.xpic.cancels() ? 20 : 0));
    EXPECT_LE(state.modem.lowest, state.modem.current);
    EXPECT_LE(state.modem.current, state.modem.highest);
    EXPECT_LE(state.modem.backgroundBlocks, state.modem.erroredBlocks);
}

TEST_P(RadioLinkPropertyTest, WhateverHappensReadingsStayWithinTheirBounds)
{
    for (int round = 0; round < 20; ++round)
    {
        SCOPED_TRACE(where(round));
        RadioLink link(randomSetup(random));
        for (int step = 0; step < 20; ++step)
        {
            changeAgainAndAgain(random, link, 1);
            for (std::uint32_t channel = 1; channel <= link.numberOfChannels(); ++channel)
            {
                expectWithinBounds(link, channel);
            }
        }
    }
}

void expectEverythingHolds(const RadioLink& link, std::uint32_t channel)
{
    const auto& [hop, state, readings] = link.snapshot(channel);
    if (state.modem.locked)
    {
        EXPECT_GE(readings.snir_dB, state.modem.modulation().requiredSnir_dB);
    }
    if (state.xpic.state == node::radio::XpicState::Acquired)
    {
        EXPECT_TRUE(state.modem.locked && readings.slaveSignal && readings.slavePreamble == state.xpic.preamble);
    }
    if (state.pps.calibration == node::radio::PpsCalibration::Auto)
    {
        EXPECT_TRUE(state.modem.locked);
    }
}

TEST_P(RadioLinkPropertyTest, WhateverHappensWhatIsHeldHasWhatItNeeds)
{
    for (int round = 0; round < 30; ++round)
    {
        SCOPED_TRACE(where(round));
        LinkSetup setup = randomSetup(random);
        setup.weather.scintillation.deviation_dB = random.flag() ? 0 : 1.0;
        RadioLink link(setup);
        for (int step = 0; step < 30; ++step)
        {
            changeSomething(random, link);
            for (std::uint32_t channel = 1; channel <= link.numberOfChannels(); ++channel)
            {
                expectEverythingHolds(link, channel);
            }
            link.advance(Ticks(random.whole(0, 15)));
            for (std::uint32_t channel = 1; channel <= link.numberOfChannels(); ++channel)
            {
                expectEverythingHolds(link, channel);
            }
        }
    }
}

TEST_P(RadioLinkPropertyTest, TimeMayPassInAnyPieces)
{
    for (int round = 0; round < 10; ++round)
    {
        SCOPED_TRACE(where(round));
        LinkSetup setup = randomSetup(random);
        setup.weather.scintillation.deviation_dB = 2.0;
        RadioLink whole(setup);
        RadioLink pieces(setup);
        const std::uint32_t changes = random.whole(1, 1000);
        Random ofWhole(changes);
        Random ofPieces(changes);
        for (int step = 0; step < 8; ++step)
        {
            changeSomething(ofWhole, whole);
            changeSomething(ofPieces, pieces);
            const Ticks first(random.whole(0, 30));
            const Ticks second(random.whole(0, 30));
            whole.advance(first + second);
            pieces.advance(first);
            pieces.advance(second);
            EXPECT_EQ(everythingOf(whole), everythingOf(pieces)) << "step " << step;
        }
    }
}

TEST_P(RadioLinkPropertyTest, TheSameSeedGivesTheSameReadingsAndAnotherOneOthers)
{
    LinkSetup setup;
    setup.weather.scintillation.deviation_dB = 2.0;
    setup.weather.seed = GetParam();
    RadioLink link(setup);
    RadioLink same(setup);
    setup.weather.seed = GetParam() + 1;
    RadioLink other(setup);
    EXPECT_EQ(everythingOf(link), everythingOf(other));
    for (int tick = 0; tick < 50; ++tick)
    {
        SCOPED_TRACE(where(tick));
        link.advance(Ticks(1));
        same.advance(Ticks(1));
        other.advance(Ticks(1));
        EXPECT_EQ(everythingOf(link), everythingOf(same));
        EXPECT_NE(link.snapshot(1).readings.level_dBm, other.snapshot(1).readings.level_dBm);
    }
}

TEST_P(RadioLinkPropertyTest, InConstantWeatherTheModulationsSettle)
{
    // Predistortion, two sweeps in a row and every step of modulation after each of them take less.
    constexpr Ticks Settling(600);
    constexpr int Settled = 120;
    for (int round = 0; round < 40; ++round)
    {
        SCOPED_TRACE(where(round));
        RadioLink link(randomSetup(random));
        changeAgainAndAgain(random, link, 6);
        link.turnRain(random.flag() ? 0 : random.scaled(0.1, 50));
        link.turnFade(random.real(0, 30));
        link.advance(Settling);
        const std::vector<ModulationIndex> settled = modulationsOf(link);
        for (int tick = 0; tick < Settled; ++tick)
        {
            link.advance(Ticks(1));
            ASSERT_EQ(settled, modulationsOf(link)) << "tick " << tick;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RadioLinkPropertyTest, ::testing::Values(1, 7, 42, 1234, 987654321));

} // namespace
