#include <cstdint>
#include <ostream>

#include <gtest/gtest.h>

#include "node/radio/RadioLink.h"

using node::radio::Channel;
using node::radio::LinkSetup;
using node::radio::Profile;
using node::radio::RadioLink;
using node::radio::Ticks;

namespace
{

struct Counts
{
    std::int32_t errored;
    std::int32_t background;

    bool operator==(const Counts&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Counts& counts)
{
    return out << counts.errored << " errored, " << counts.background << " background";
}

Counts countsOf(const RadioLink& link, std::uint32_t channel = 1)
{
    const auto modem = link.snapshot(channel).state.modem;
    return {modem.erroredBlocks, modem.backgroundBlocks};
}

TEST(BlockCountTest, AFallSpoilsTheBlockOfItsTick)
{
    RadioLink link;
    link.turnFade(30);
    EXPECT_EQ((Counts{0, 0}), countsOf(link));
    link.advance(Ticks(1));
    EXPECT_EQ((Counts{1, 0}), countsOf(link));
    EXPECT_EQ((Counts{1, 0}), countsOf(link, 2));
    link.advance(Ticks(100));
    EXPECT_EQ((Counts{1, 1}), countsOf(link));
}

TEST(BlockCountTest, FallsWithinATickSpoilOneBlock)
{
    RadioLink link;
    link.turnFade(30);
    link.turnFade(33);
    link.turnFade(36);
    ASSERT_TRUE(link.snapshot(1).state.modem.locked);
    link.advance(Ticks(1));
    EXPECT_EQ((Counts{1, 0}), countsOf(link));
}

TEST(BlockCountTest, AChangeThatTheModulationOutlivesSpoilsNothing)
{
    RadioLink link;
    link.change(1, [](Channel& state) { state.xpic.preamble = 1; });
    link.turnFade(2);
    link.advance(Ticks(20));
    EXPECT_EQ((Counts{0, 0}), countsOf(link));
}

TEST(BlockCountTest, AChannelsFallSpoilsItsOwnBlocksAlone)
{
    RadioLink link;
    link.turnRain(10);
    link.change(2, [](Channel& state) { state.xpic.slaveMuted = true; });
    link.advance(Ticks(10));
    EXPECT_EQ((Counts{0, 0}), countsOf(link, 1));
    EXPECT_EQ((Counts{1, 1}), countsOf(link, 2));
}

TEST(BlockCountTest, WithoutLockEveryBlockIsErroredAndItsSecondsAreSevere)
{
    RadioLink link;
    link.turnFade(100);
    link.advance(Ticks(25));
    EXPECT_EQ((Counts{25, 0}), countsOf(link));
    link.turnFade(0);
    link.advance(Ticks(100));
    EXPECT_EQ((Counts{25, 0}), countsOf(link));
}

TEST(BlockCountTest, ALossOfTwoTicksIsOfTheBackground)
{
    RadioLink link;
    link.turnFade(100);
    link.advance(Ticks(2));
    link.turnFade(0);
    link.advance(Ticks(100));
    EXPECT_EQ((Counts{2, 2}), countsOf(link));
}

TEST(BlockCountTest, AFallByTheWeatherOfATickSpoilsThatTicksBlock)
{
    LinkSetup setup;
    setup.weather.fade_dB = Profile({{0.4, 0}, {0.5, 30}});
    RadioLink link(setup);
    link.advance(Ticks(4));
    EXPECT_EQ((Counts{0, 0}), countsOf(link));
    link.advance(Ticks(1));
    EXPECT_EQ((Counts{1, 0}), countsOf(link));
    link.advance(Ticks(5));
    EXPECT_EQ((Counts{1, 1}), countsOf(link));
}

TEST(BlockCountTest, TheLossBeforeTheBeginningSpoilsNothing)
{
    LinkSetup setup;
    setup.weather.fade_dB = Profile({{0, 40}});
    RadioLink link(setup);
    link.advance(Ticks(100));
    EXPECT_EQ((Counts{0, 0}), countsOf(link));
}

} // namespace
