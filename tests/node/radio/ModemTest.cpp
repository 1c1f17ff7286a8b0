#include <cstdint>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "node/radio/Modem.h"

using node::radio::indexOf;
using node::radio::Modem;
using node::radio::ModulationIndex;

namespace
{

const ModulationIndex Qam4 = indexOf(4, 0);       // from 5.88 dB
const ModulationIndex Qam16 = indexOf(16, 1);     // from 12.57 dB
const ModulationIndex Qam256 = indexOf(256, 0);   // from 22.50 dB
const ModulationIndex Qam1024 = indexOf(1024, 1); // from 28.50 dB
const ModulationIndex Qam4096 = indexOf(4096, 1); // from 33.69 dB
const ModulationIndex Fastest = indexOf(16384, 2);

struct State
{
    ModulationIndex current;
    bool locked;

    bool operator==(const State&) const = default;
};

std::ostream& operator<<(std::ostream& out, const State& state)
{
    return out << (state.locked ? "locked" : "unlocked") << " at place " << state.current;
}

struct Transition
{
    const char* what;
    ModulationIndex lowest;
    ModulationIndex highest;
    State before;
    double snir_dB;
    State after;
};

std::ostream& operator<<(std::ostream& out, const Transition& row)
{
    return out << row.what << ": " << row.before << ", " << row.snir_dB << " dB";
}

class ModemTransitionTest : public ::testing::TestWithParam<Transition>
{
protected:
    ModemTransitionTest()
    {
        modem.lowest = GetParam().lowest;
        modem.highest = GetParam().highest;
        modem.current = GetParam().before.current;
        modem.locked = GetParam().before.locked;
    }

    State state() const
    {
        return {modem.current, modem.locked};
    }

    Modem modem;
};

class ModemFallTest : public ModemTransitionTest
{
protected:
    void fallAsFarAsItMust()
    {
        const std::size_t most = node::radio::modulations().size() + 1;
        for (std::size_t steps = 0; modem.fall(GetParam().snir_dB); ++steps)
        {
            ASSERT_LT(steps, most);
        }
    }
};

TEST_P(ModemFallTest, GivesUpNoMoreThanItMust)
{
    fallAsFarAsItMust();
    EXPECT_EQ(GetParam().after, state());
}

TEST_P(ModemFallTest, GivesUpOneStepAtATime)
{
    const bool falls = GetParam().before != GetParam().after;
    const std::size_t place = modem.current;
    modem.fall(GetParam().snir_dB);
    EXPECT_EQ(place - (falls && place > modem.lowest ? 1 : 0), modem.current);
    EXPECT_EQ(GetParam().before.locked && !(falls && place == modem.lowest), modem.locked);
}

TEST_P(ModemFallTest, TellsWhetherItGaveSomethingUp)
{
    EXPECT_EQ(GetParam().before != GetParam().after, modem.fall(GetParam().snir_dB));
}

TEST_P(ModemFallTest, ASecondFallAtTheSameSnirGivesUpNothing)
{
    fallAsFarAsItMust();
    EXPECT_FALSE(modem.fall(GetParam().snir_dB));
    EXPECT_EQ(GetParam().after, state());
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(EachCase, ModemFallTest, ::testing::Values(
    Transition{"enough",               Qam4,   Qam4096, {Qam4096, true},  40.0,  {Qam4096, true}},
    Transition{"just enough",          Qam4,   Qam4096, {Qam4096, true},  33.69, {Qam4096, true}},
    Transition{"one too high",         Qam4,   Qam4096, {Qam4096, true},  33.68, {Qam4096 - 1, true}},
    Transition{"many too high",        Qam4,   Qam4096, {Qam4096, true},  12.57, {Qam16, true}},
    Transition{"one more too high",    Qam4,   Qam4096, {Qam4096, true},  12.56, {Qam16 - 1, true}},
    Transition{"the lowest is left",   Qam4,   Qam4096, {Qam4096, true},  5.88,  {Qam4, true}},
    Transition{"nothing is left",      Qam4,   Qam4096, {Qam4096, true},  5.87,  {Qam4, false}},
    Transition{"below the lowest",     Qam4,   Qam4096, {Qam4, true},     -50.0, {Qam4, false}},
    Transition{"a higher lowest one",  Qam256, Qam4096, {Qam1024, true},  22.0,  {Qam256, false}},
    Transition{"a single one",         Qam256, Qam256,  {Qam256, true},   22.50, {Qam256, true}},
    Transition{"the most robust one",  0,      Fastest, {Fastest, true},  -0.14, {0, true}},
    Transition{"no signal",            0,      Fastest, {Fastest, true},  -0.15, {0, false}},
    Transition{"unlocked, too little", Qam4,   Qam4096, {Qam1024, false}, -50.0, {Qam1024, false}},
    Transition{"unlocked, enough",     Qam4,   Qam4096, {Qam4, false},    50.0,  {Qam4, false}}));
// clang-format on

class ModemRiseTest : public ModemTransitionTest
{
};

TEST_P(ModemRiseTest, TakesOneThingATickWithADecibelToSpare)
{
    modem.rise(GetParam().snir_dB);
    EXPECT_EQ(GetParam().after, state());
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(EachCase, ModemRiseTest, ::testing::Values(
    Transition{"enough for the next",        Qam4,    Qam4096, {Qam1024 - 1, true},  29.50, {Qam1024, true}},
    Transition{"nearly enough",              Qam4,    Qam4096, {Qam1024 - 1, true},  29.49, {Qam1024 - 1, true}},
    Transition{"enough for many",            Qam4,    Qam4096, {Qam4, true},         50.0,  {Qam4 + 1, true}},
    Transition{"up to the highest",          Qam4,    Qam4096, {Qam4096 - 1, true},  50.0,  {Qam4096, true}},
    Transition{"the highest",                Qam4,    Qam4096, {Qam4096, true},      50.0,  {Qam4096, true}},
    Transition{"the fastest of all",         Qam4,    Fastest, {Fastest, true},      99.0,  {Fastest, true}},
    Transition{"too little, and no fall",    Qam4,    Qam4096, {Qam1024, true},      -50.0, {Qam1024, true}},
    Transition{"unlocked, enough",           Qam256,  Qam4096, {Qam256, false},      23.50, {Qam256, true}},
    Transition{"unlocked, nearly enough",    Qam256,  Qam4096, {Qam256, false},      23.49, {Qam256, false}},
    Transition{"unlocked, enough for more",  Qam4,    Qam4096, {Qam4, false},        50.0,  {Qam4, true}},
    Transition{"unlocked, a single one",     Qam1024, Qam1024, {Qam1024, false},     29.50, {Qam1024, true}}));
// clang-format on

TEST(ModemTest, StartsLockedAtItsHighestModulation)
{
    const Modem modem;
    EXPECT_TRUE(modem.locked);
    EXPECT_EQ(Qam4, modem.lowest);
    EXPECT_EQ(Qam4096, modem.highest);
    EXPECT_EQ(Qam4096, modem.current);
    EXPECT_EQ(0, modem.erroredBlocks);
    EXPECT_EQ(0, modem.backgroundBlocks);
}

TEST(ModemTest, ItsModulationIsTheOneAtItsPlace)
{
    Modem modem;
    EXPECT_EQ((node::radio::Modulation{4096, 1, false, 33.69}), modem.modulation());
    modem.current = 0;
    EXPECT_EQ((node::radio::Modulation{2, 0, true, -0.14}), modem.modulation());
}

struct Blocks
{
    std::string sequence; ///< x for an errored block, a second after the other
    std::int32_t errored;
    std::int32_t background;
};

std::ostream& operator<<(std::ostream& out, const Blocks& row)
{
    return out << '"' << row.sequence << '"';
}

class ModemBlocksTest : public ::testing::TestWithParam<Blocks>
{
};

TEST_P(ModemBlocksTest, AreCountedAndOutsideOfSeverelyErroredSecondsOnceMore)
{
    Modem modem;
    for (const char block : GetParam().sequence)
    {
        modem.countBlock(block == 'x');
    }
    EXPECT_EQ(GetParam().errored, modem.erroredBlocks);
    EXPECT_EQ(GetParam().background, modem.backgroundBlocks);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(EachCase, ModemBlocksTest, ::testing::Values(
    Blocks{"",                                 0,  0},
    Blocks{"..........",                       0,  0},
    Blocks{"x........",                        1,  0}, // before the second is over
    Blocks{"x.........",                       1,  1},
    Blocks{".........x",                       1,  1},
    Blocks{"x........x",                       2,  2},
    Blocks{"x...x....x",                       3,  0},
    Blocks{"xxxxxxxxxx",                       10, 0},
    Blocks{"xx........" "xx........",          4,  4}, // three in ten, but not of one second
    Blocks{"........xx" "xx........",          4,  4},
    Blocks{"xxx......." "..........",          3,  0},
    Blocks{"xxx......." "x.........",          4,  1}, // a severe second leaves nothing for the next
    Blocks{"x........." "xxxx......" "x.",     6,  1}));
// clang-format on

} // namespace
