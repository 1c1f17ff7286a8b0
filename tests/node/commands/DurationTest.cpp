#include <cstdint>
#include <optional>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "node/commands/Value.h"

using node::commands::Duration;

namespace
{

constexpr auto None = std::nullopt;

/// A typed time and the tenths of a second that it is; none when it is not accepted.
struct Row
{
    std::string word;
    std::optional<std::int64_t> tenths;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << '"' << row.word << '"';
}

class DurationTest : public ::testing::TestWithParam<Row>
{
};

TEST_P(DurationTest, IsReadInTenthsOfASecond)
{
    const auto duration = Duration::parse(GetParam().word);
    EXPECT_EQ(GetParam().tenths, duration ? std::optional(duration->ticks.count()) : None);
}

INSTANTIATE_TEST_SUITE_P(Units, DurationTest,
                         ::testing::Values(Row{"1", 10}, Row{"1s", 10}, Row{"1min", 600}, Row{"1h", 36000},
                                           Row{"30", 300}, Row{"1.5s", 15}, Row{"10min", 6000}, Row{"2h", 72000},
                                           Row{"0.1min", 60}, Row{"0.5h", 18000}, Row{"007s", 70}, Row{"1e2", 1000}));

INSTANTIATE_TEST_SUITE_P(UnknownUnits, DurationTest,
                         ::testing::Values(Row{"1m", None}, Row{"1ms", None}, Row{"1S", None}, Row{"1H", None},
                                           Row{"1Min", None}, Row{"1mins", None}, Row{"1d", None}, Row{"1sec", None},
                                           Row{"1h30min", None}, Row{"1hs", None}, Row{"1sh", None}, Row{"1minh", None},
                                           Row{"1minmin", None}, Row{"1ss", None}, Row{"1:30", None}));

INSTANTIATE_TEST_SUITE_P(Bounds, DurationTest,
                         ::testing::Values(Row{"-0.1", None}, Row{"-1", None}, Row{"0", None}, Row{"0h", None},
                                           Row{"-0", None}, Row{"0.0", None}, Row{"0.1", 1}, Row{"0.2", 2},
                                           Row{"99.9h", 3596400}, Row{"359999.9", 3599999}, Row{"100h", 3600000},
                                           Row{"6000min", 3600000}, Row{"360000", 3600000}, Row{"360000.1", None},
                                           Row{"100.001h", None}, Row{"6000.1min", None}, Row{"101h", None},
                                           Row{"1e300", None}, Row{"1e400", None}, Row{"1e-300", None}));

INSTANTIATE_TEST_SUITE_P(Steps, DurationTest,
                         ::testing::Values(Row{"0.01", None}, Row{"0.04", None}, Row{"0.05", None}, Row{"0.06", None},
                                           Row{"0.09", None}, Row{"0.11", None}, Row{"0.15", None}, Row{"0.3", 3},
                                           Row{"0.7", 7}, Row{"1.05", None}, Row{"1.1", 11}, Row{"1.11", None},
                                           Row{"2.3s", 23}, Row{"4.35", None}, Row{"0.01min", 6}, Row{"0.001min", None},
                                           Row{"0.005min", 3}, Row{"0.0001h", None}, Row{"0.00025h", 9},
                                           Row{"359999.95", None}, Row{"0.10000001", 1}, Row{"0.1000002", None}));

INSTANTIATE_TEST_SUITE_P(NoNumbers, DurationTest,
                         ::testing::Values(Row{"", None}, Row{"s", None}, Row{"min", None}, Row{"h", None},
                                           Row{" ", None}, Row{" 1", None}, Row{"1 ", None}, Row{"1 s", None},
                                           Row{"+1", None}, Row{"1,5s", None}, Row{"0x10", None}, Row{"nan", None},
                                           Row{"inf", None}, Row{"infh", None}, Row{"nans", None}, Row{"one", None},
                                           Row{"1s1", None}, Row{"--1", None}, Row{"1\n", None}));

TEST(DurationFormTest, IsWorded)
{
    EXPECT_EQ("a time from 0.1s to 100h in steps of 0.1s, such as 30, 1.5s, 10min or 2h", Duration::form());
}

TEST(DurationFormTest, EveryTenthIsReadBack)
{
    constexpr std::int64_t Hour = 36000;
    for (std::int64_t tenths = 1; tenths <= Hour; ++tenths)
    {
        const auto duration = Duration::parse(std::to_string(tenths / 10) + "." + std::to_string(tenths % 10) + "s");
        ASSERT_TRUE(duration) << tenths;
        ASSERT_EQ(tenths, duration->ticks.count());
    }
}

} // namespace
