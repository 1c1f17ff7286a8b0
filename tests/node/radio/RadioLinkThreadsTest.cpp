#include <cmath>
#include <latch>
#include <thread>

#include <gtest/gtest.h>

#include "node/radio/RadioLink.h"

using node::radio::Channel;
using node::radio::Dpd;
using node::radio::RadioLink;
using node::radio::Ticks;

namespace
{

constexpr int Rounds = 3000;

TEST(RadioLinkThreadsTest, ChangesThatAreMadeAtOnceAreAllKept)
{
    RadioLink link;
    std::latch start(2);
    const auto changeAgainAndAgain = [&]
    {
        start.arrive_and_wait();
        for (int round = 0; round < Rounds; ++round)
        {
            link.change(1, [](Channel& channel) { ++channel.pps.sourceParameter; });
        }
    };
    std::jthread other(changeAgainAndAgain);
    changeAgainAndAgain();
    other.join();
    EXPECT_EQ(2 * Rounds, link.snapshot(1).state.pps.sourceParameter);
}

TEST(RadioLinkThreadsTest, TimeThatPassesAtOnceAllPasses)
{
    RadioLink link;
    std::latch start(2);
    const auto advanceAgainAndAgain = [&]
    {
        start.arrive_and_wait();
        for (int round = 0; round < Rounds; ++round)
        {
            link.advance(Ticks(1));
        }
    };
    std::jthread other(advanceAgainAndAgain);
    advanceAgainAndAgain();
    other.join();
    EXPECT_EQ(Ticks(2 * Rounds), link.conditions().time);
}

TEST(RadioLinkThreadsTest, ASnapshotIsOfOneMoment)
{
    RadioLink link;
    std::latch start(2);
    const std::jthread switcher(
        [&]
        {
            start.arrive_and_wait();
            for (int round = 0; round < Rounds; ++round)
            {
                link.change(1, [](Channel& channel) { channel.dpd.stop(); });
                link.change(1, [](Channel& channel) { channel.dpd = Dpd(); });
            }
        });
    start.arrive_and_wait();
    int torn = 0;
    for (int round = 0; round < Rounds; ++round)
    {
        const auto& [hop, state, readings] = link.snapshot(1);
        torn += std::abs(readings.snir_dB - (state.dpd.running ? 43.91 : 34.88)) < 0.01 ? 0 : 1;
    }
    EXPECT_EQ(0, torn);
}

TEST(RadioLinkThreadsTest, WhileWeatherAndTimeMoveALockedModemHoldsWhatItNeeds)
{
    RadioLink link;
    std::latch start(3);
    const std::jthread weather(
        [&]
        {
            start.arrive_and_wait();
            for (int round = 0; round < Rounds; ++round)
            {
                link.turnRain(round % 100, Ticks(round % 3));
                link.turnFade(round % 41, Ticks(round % 2));
                link.setDistance(1 + round % 20);
            }
        });
    const std::jthread time(
        [&]
        {
            start.arrive_and_wait();
            for (int round = 0; round < Rounds; ++round)
            {
                link.advance(Ticks(1));
                link.calibratePps(2, node::radio::PpsRequest::Auto, 0);
            }
        });
    start.arrive_and_wait();
    int broken = 0;
    for (int round = 0; round < Rounds; ++round)
    {
        const auto& [hop, state, readings] = link.snapshot(1);
        broken += state.modem.locked && readings.snir_dB < state.modem.modulation().requiredSnir_dB ? 1 : 0;
        broken += link.conditions().distance_km <= 20 ? 0 : 1;
    }
    EXPECT_EQ(0, broken);
}

} // namespace
