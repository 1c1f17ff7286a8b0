#include <ostream>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/radio/Weather.h"

using node::radio::Profile;
using node::radio::Ticks;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

struct Row
{
    const char* what;
    std::vector<Profile::Point> points;
    Ticks time;
    double value;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << row.what << " at tick " << row.time.count();
}

class ProfileTest : public ::testing::TestWithParam<Row>
{
};

TEST_P(ProfileTest, HasItsValueAtATime)
{
    EXPECT_DOUBLE_EQ(GetParam().value, Profile(GetParam().points).valueAt(GetParam().time));
}

const std::vector<Profile::Point> Shower{{10, 2}, {20, 42}, {40, 12}};
const std::vector<Profile::Point> Jump{{10, 1}, {10, 5}, {20, 6}};

// clang-format off
INSTANTIATE_TEST_SUITE_P(EachPlace, ProfileTest, ::testing::Values(
    Row{"no point",    {},       Ticks(0),    0},
    Row{"no point",    {},       Ticks(1000), 0},
    Row{"one point",   {{5, 3}}, Ticks(0),    3},
    Row{"one point",   {{5, 3}}, Ticks(50),   3},
    Row{"one point",   {{5, 3}}, Ticks(51),   3},
    Row{"before",      Shower,   Ticks(0),    2},
    Row{"before",      Shower,   Ticks(99),   2},
    Row{"first point", Shower,   Ticks(100),  2},
    Row{"rising",      Shower,   Ticks(101),  2.4},
    Row{"rising",      Shower,   Ticks(150),  22},
    Row{"middle",      Shower,   Ticks(200),  42},
    Row{"falling",     Shower,   Ticks(202),  41.7},
    Row{"falling",     Shower,   Ticks(300),  27},
    Row{"last point",  Shower,   Ticks(400),  12},
    Row{"after",       Shower,   Ticks(401),  12},
    Row{"before jump", Jump,     Ticks(99),   1},
    Row{"at jump",     Jump,     Ticks(100),  5},
    Row{"after jump",  Jump,     Ticks(150),  5.5}));
// clang-format on

TEST(ProfileTurnTest, AtOnceTheValueIsThereAndStays)
{
    Profile profile(Shower);
    profile.turnTo(7, Ticks(150), Ticks(0));
    EXPECT_THAT(profile.points(), ElementsAre(Profile::Point{15, 7}));
    EXPECT_EQ(7, profile.valueAt(Ticks(150)));
    EXPECT_EQ(7, profile.valueAt(Ticks(10'000)));
}

TEST(ProfileTurnTest, OverATimeTheValueGoesInAStraightLineFromWhereItIs)
{
    Profile profile(Shower);
    profile.turnTo(7, Ticks(150), Ticks(50));
    EXPECT_THAT(profile.points(), ElementsAre(Profile::Point{15, 22}, Profile::Point{20, 7}));
    EXPECT_DOUBLE_EQ(22, profile.valueAt(Ticks(150)));
    EXPECT_DOUBLE_EQ(14.5, profile.valueAt(Ticks(175)));
    EXPECT_DOUBLE_EQ(7, profile.valueAt(Ticks(200)));
    EXPECT_DOUBLE_EQ(7, profile.valueAt(Ticks(400)));
}

TEST(ProfileTurnTest, ASecondTurnLeavesFromHalfOfTheFirst)
{
    Profile profile;
    EXPECT_THAT(profile.points(), IsEmpty());
    profile.turnTo(10, Ticks(0), Ticks(100));
    profile.turnTo(0, Ticks(50), Ticks(10));
    EXPECT_THAT(profile.points(), ElementsAre(Profile::Point{5, 5}, Profile::Point{6, 0}));
}

TEST(ProfileTurnTest, OverASingleTickTheValueIsThereAtTheNext)
{
    Profile profile;
    profile.turnTo(4, Ticks(20), Ticks(1));
    EXPECT_EQ(0, profile.valueAt(Ticks(20)));
    EXPECT_EQ(4, profile.valueAt(Ticks(21)));
}

} // namespace
