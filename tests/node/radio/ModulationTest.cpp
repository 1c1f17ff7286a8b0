#include <cstddef>
#include <ostream>

#include <gtest/gtest.h>

#include "node/radio/Modulation.h"

using node::radio::backOff_dB;
using node::radio::indexOf;
using node::radio::Modulation;
using node::radio::ModulationIndex;
using node::radio::modulations;

namespace
{

/// Of sums of tenths.
constexpr double Rounding = 1e-9;

struct Row
{
    ModulationIndex index;
    Modulation modulation;
    double backOff_dB;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << "place " << row.index << ": " << row.modulation.constellationSize << " points, code "
               << row.modulation.strength;
}

class ModulationTest : public ::testing::TestWithParam<Row>
{
};

TEST_P(ModulationTest, StandsAtItsPlaceWithItsRequiredSnir)
{
    const Row& row = GetParam();
    const Modulation& modulation = modulations()[row.index];
    EXPECT_EQ(row.modulation.constellationSize, modulation.constellationSize);
    EXPECT_EQ(row.modulation.strength, modulation.strength);
    EXPECT_EQ(row.modulation.halfBand, modulation.halfBand);
    EXPECT_EQ(row.modulation.requiredSnir_dB, modulation.requiredSnir_dB);
}

TEST_P(ModulationTest, StaysBelowThePeakPowerByItsBackOff)
{
    EXPECT_NEAR(GetParam().backOff_dB, backOff_dB(GetParam().modulation), Rounding);
}

TEST_P(ModulationTest, IsFoundBySizeAndCodeUnlessItIsHalfBand)
{
    const auto& [index, modulation, ignored] = GetParam();
    // BPSK alone stands there twice, three places apart.
    const ModulationIndex expected = modulation.halfBand ? index + 3 : index;
    EXPECT_EQ(expected, indexOf(modulation.constellationSize, modulation.strength));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(EveryOne, ModulationTest, ::testing::Values(
    Row{0,  {2, 0, true, -0.14},      0.0}, Row{1,  {2, 1, true, 0.33},       0.2}, Row{2,  {2, 2, true, 0.85},       0.4},
    Row{3,  {2, 0, false, 2.87},      0.0}, Row{4,  {2, 1, false, 3.34},      0.2}, Row{5,  {2, 2, false, 3.86},      0.4},
    Row{6,  {4, 0, false, 5.88},      0.0}, Row{7,  {4, 1, false, 6.35},      0.2}, Row{8,  {4, 2, false, 6.87},      0.4},
    Row{9,  {16, 0, false, 12.01},    1.2}, Row{10, {16, 1, false, 12.57},    1.4}, Row{11, {16, 2, false, 13.18},    1.6},
    Row{12, {32, 0, false, 14.68},    1.8}, Row{13, {32, 1, false, 15.29},    2.0}, Row{14, {32, 2, false, 15.95},    2.2},
    Row{15, {64, 0, false, 17.35},    2.4}, Row{16, {64, 1, false, 18.02},    2.6}, Row{17, {64, 2, false, 18.72},    2.8},
    Row{18, {128, 0, false, 19.93},   3.0}, Row{19, {128, 1, false, 20.65},   3.2}, Row{20, {128, 2, false, 21.41},   3.4},
    Row{21, {256, 0, false, 22.50},   3.6}, Row{22, {256, 1, false, 23.28},   3.8}, Row{23, {256, 2, false, 24.10},   4.0},
    Row{24, {512, 0, false, 25.04},   4.2}, Row{25, {512, 1, false, 25.89},   4.4}, Row{26, {512, 2, false, 26.78},   4.6},
    Row{27, {1024, 0, false, 27.58},  4.8}, Row{28, {1024, 1, false, 28.50},  5.0}, Row{29, {1024, 2, false, 29.45},  5.2},
    Row{30, {2048, 0, false, 30.11},  5.4}, Row{31, {2048, 1, false, 31.09},  5.6}, Row{32, {2048, 2, false, 32.11},  5.8},
    Row{33, {4096, 0, false, 32.64},  6.0}, Row{34, {4096, 1, false, 33.69},  6.2}, Row{35, {4096, 2, false, 34.78},  6.4},
    Row{36, {8192, 0, false, 35.17},  6.6}, Row{37, {8192, 1, false, 36.29},  6.8}, Row{38, {8192, 2, false, 37.44},  7.0},
    Row{39, {16384, 0, false, 37.70}, 7.2}, Row{40, {16384, 1, false, 38.89}, 7.4}, Row{41, {16384, 2, false, 40.11}, 7.6}));
// clang-format on

TEST(ModulationsTest, ThereAreFourteenInThreeCodesEach)
{
    EXPECT_EQ(14U * 3U, modulations().size());
}

TEST(ModulationsTest, EachNeedsMoreThanTheOneBefore)
{
    for (std::size_t index = 1; index < modulations().size(); ++index)
    {
        EXPECT_LT(modulations()[index - 1].requiredSnir_dB, modulations()[index].requiredSnir_dB) << "place " << index;
    }
}

} // namespace
