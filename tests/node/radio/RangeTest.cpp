#include <cmath>
#include <limits>
#include <ostream>

#include <gtest/gtest.h>

#include "node/radio/Range.h"

using node::radio::Distance_km;
using node::radio::FadeDepth_dB;
using node::radio::RainRate_mm_per_h;
using node::radio::Range;

namespace
{

struct RangeRow
{
    const char* name;
    Range<double> range;
    double lowest;
    double highest;
};

std::ostream& operator<<(std::ostream& out, const RangeRow& row)
{
    return out << row.name;
}

class RangeTest : public ::testing::TestWithParam<RangeRow>
{
};

TEST_P(RangeTest, ReachesFromItsLowestToItsHighestValue)
{
    const auto& [name, range, lowest, highest] = GetParam();
    constexpr double Infinity = std::numeric_limits<double>::infinity();
    EXPECT_FALSE(range.contains(std::nextafter(lowest, -Infinity)));
    EXPECT_TRUE(range.contains(lowest));
    EXPECT_TRUE(range.contains(highest));
    EXPECT_FALSE(range.contains(std::nextafter(highest, Infinity)));
}

TEST_P(RangeTest, DoesNotContainWhatIsNoNumber)
{
    EXPECT_FALSE(GetParam().range.contains(std::numeric_limits<double>::quiet_NaN()));
}

INSTANTIATE_TEST_SUITE_P(EachOne, RangeTest,
                         ::testing::Values(RangeRow{"rain rate", RainRate_mm_per_h, 0, 250},
                                           RangeRow{"fade depth", FadeDepth_dB, 0, 100},
                                           RangeRow{"distance", Distance_km, 0.1, 100}));

} // namespace
