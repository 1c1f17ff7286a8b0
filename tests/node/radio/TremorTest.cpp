#include <cmath>
#include <cstddef>
#include <cstdint>
#include <ostream>
#include <vector>

#include <gtest/gtest.h>

#include "node/radio/Weather.h"

using node::radio::Scintillation;
using node::radio::Tremor;

namespace
{

std::vector<double> values(const Scintillation& scintillation, std::uint64_t seed, int ticks)
{
    Tremor tremor(scintillation, seed);
    std::vector<double> result;
    for (int tick = 0; tick < ticks; ++tick)
    {
        tremor.move();
        result.push_back(tremor.value_dB());
    }
    return result;
}

struct Row
{
    Scintillation scintillation;
    std::uint64_t seed;
    std::vector<double> first_dB;
    double thousandth_dB;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << row.scintillation.deviation_dB << " dB, " << row.scintillation.correlation_s << " s, seed "
               << row.seed;
}

class TremorValuesTest : public ::testing::TestWithParam<Row>
{
};

TEST_P(TremorValuesTest, AreTheSameOnEveryMachine)
{
    const Row& row = GetParam();
    const std::vector<double> found = values(row.scintillation, row.seed, 1000);
    for (std::size_t tick = 0; tick < row.first_dB.size(); ++tick)
    {
        EXPECT_DOUBLE_EQ(row.first_dB[tick], found[tick]) << "tick " << tick + 1;
    }
    EXPECT_DOUBLE_EQ(row.thousandth_dB, found.back());
}

// Made with a generator and an arithmetic of their own, not with the standard library's.
// clang-format off
INSTANTIATE_TEST_SUITE_P(EachKind, TremorValuesTest, ::testing::Values(
    Row{{1.0, 10.0}, 1,
        {-0.22561373923051545, -0.31946535325752662, -0.47647411328782979, -0.42763072123599011}, -0.62240379454431194},
    Row{{0.5, 0.1}, 1, // remembers nothing from tick to tick
        {-0.79966669666082124, -0.34064489318383284, -0.56782594426451016, 0.15623263589287584}, 0.64303583760315863},
    Row{{2.0, 1.0}, 7,
        {0.84528615022539988, 0.72132407886594041, -0.1137448088699623, -1.3108781674016563}, -1.3035755922288585}));
// clang-format on

TEST(TremorTest, BeginsAtNothing)
{
    EXPECT_EQ(0.0, Tremor({3.0, 10.0}, 1).value_dB());
}

TEST(TremorTest, WithoutDeviationNothingMoves)
{
    for (const double value : values({0.0, 10.0}, 1, 100))
    {
        EXPECT_EQ(0.0, value);
    }
}

TEST(TremorTest, AnotherSeedTremblesOtherwise)
{
    EXPECT_NE(values({1.0, 10.0}, 1, 10), values({1.0, 10.0}, 2, 10));
}

TEST(TremorTest, ItsMeanDeviationAndMemoryAreThoseAskedFor)
{
    // 200,000 ticks are 1000 times the memory of 20 s: a mean is then right to 1/22 of the deviation, one sigma.
    constexpr int Ticks = 200'000;
    constexpr int Memory = 200;
    constexpr double Deviation_dB = 2.0;
    const std::vector<double> found = values({Deviation_dB, Memory / 10.0}, 5, Ticks);
    double sum = 0;
    double squares = 0;
    double products = 0;
    for (std::size_t tick = Memory; tick < found.size(); ++tick)
    {
        sum += found[tick];
        squares += found[tick] * found[tick];
        products += found[tick] * found[tick - Memory];
    }
    const double count = static_cast<double>(found.size()) - Memory;
    EXPECT_NEAR(0, sum / count, 0.15 * Deviation_dB);
    EXPECT_NEAR(Deviation_dB, std::sqrt(squares / count), 0.1 * Deviation_dB);
    EXPECT_NEAR(std::exp(-1.0), products / squares, 0.1);
}

} // namespace
