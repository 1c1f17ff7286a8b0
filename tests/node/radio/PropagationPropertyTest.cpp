#include <algorithm>
#include <cstdint>
#include <string>

#include <gtest/gtest.h>

#include "node/radio/CrossPolarisation.h"
#include "node/radio/Propagation.h"
#include "node/radio/Rain.h"
#include "node/radio/RandomLink.h"

using node::radio::clearSkyDiscrimination_dB;
using node::radio::discrimination_dB;
using node::radio::Polarisation;
using node::radio::rainAttenuation_dB;
using node::radio::rainDiscrimination_dB;
using node::radio::snir_dB;

namespace
{

constexpr int Rounds = 2000;

/// Relative; of powers and logarithms that are exact but for their rounding.
constexpr double Rounding = 1e-12;

/// What two and three equal disturbances add to one, in dB, rounded up.
constexpr double Twice_dB = 3.0103;
constexpr double ThreeTimes_dB = 4.7713;

class PropagationPropertyTest : public ::testing::TestWithParam<std::uint64_t>
{
protected:
    static std::string where(int round)
    {
        return "seed " + std::to_string(GetParam()) + ", round " + std::to_string(round);
    }

    Random random{GetParam()};
};

TEST_P(PropagationPropertyTest, MoreRainNeverTakesLess)
{
    for (int round = 0; round < Rounds; ++round)
    {
        SCOPED_TRACE(where(round));
        const double frequency_GHz = random.scaled(1, 80);
        const double distance_km = random.scaled(0.1, 100);
        const auto polarisation = random.flag() ? Polarisation::Horizontal : Polarisation::Vertical;
        const double rate = random.scaled(0.001, 100);
        // A little more meets the kink where the largest factor ends, much more meets the far side of it.
        const double more = rate * (random.flag() ? 1.02 : random.real(1, 4));
        const double less_dB = rainAttenuation_dB(frequency_GHz, polarisation, rate, distance_km);
        const double more_dB = rainAttenuation_dB(frequency_GHz, polarisation, more, distance_km);
        EXPECT_LT(0, less_dB);
        EXPECT_LE(less_dB * (1 - Rounding), more_dB)
            << frequency_GHz << " GHz, " << distance_km << " km, " << rate << " to " << more << " mm/h";
    }
}

TEST_P(PropagationPropertyTest, DiscriminationIsBelowThatOfClearSkyAndThatOfRainByNoMoreThanTheirSum)
{
    for (int round = 0; round < Rounds; ++round)
    {
        SCOPED_TRACE(where(round));
        const double antenna_dB = random.real(10, 60);
        const double frequency_GHz = random.scaled(1, 80);
        const double attenuation_dB = random.scaled(0.001, 1000);
        const double lower_dB =
            std::min(clearSkyDiscrimination_dB(antenna_dB), rainDiscrimination_dB(frequency_GHz, attenuation_dB));
        const double found_dB = discrimination_dB(antenna_dB, frequency_GHz, attenuation_dB);
        EXPECT_LT(found_dB, lower_dB);
        EXPECT_GT(found_dB, lower_dB - Twice_dB);
    }
}

TEST_P(PropagationPropertyTest, MoreAttenuationNeverKeepsThePolarisationsFurtherApart)
{
    for (int round = 0; round < Rounds; ++round)
    {
        SCOPED_TRACE(where(round));
        const double antenna_dB = random.real(10, 60);
        const double frequency_GHz = random.scaled(1, 80);
        const double attenuation_dB = random.flag() ? 0 : random.scaled(0.001, 1000);
        EXPECT_GE(discrimination_dB(antenna_dB, frequency_GHz, attenuation_dB),
                  discrimination_dB(antenna_dB, frequency_GHz, attenuation_dB + random.scaled(0.01, 10)));
    }
}

TEST_P(PropagationPropertyTest, SnirIsBelowEachOfItsTermsByNoMoreThanTheirSum)
{
    for (int round = 0; round < Rounds; ++round)
    {
        SCOPED_TRACE(where(round));
        const double noise_dB = random.real(-30, 80);
        const double interference_dB = random.real(-30, 120);
        const double floor_dB = random.real(35, 45);
        const double lowest_dB = std::min({noise_dB, interference_dB, floor_dB});
        const double found_dB = snir_dB(noise_dB, interference_dB, floor_dB);
        EXPECT_LT(found_dB, lowest_dB);
        EXPECT_GT(found_dB, lowest_dB - ThreeTimes_dB);
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, PropagationPropertyTest, ::testing::Values(1, 7, 42, 1234, 987654321));

} // namespace
