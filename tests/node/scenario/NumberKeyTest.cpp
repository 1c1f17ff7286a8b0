#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fmt/format.h>

#include "node/scenario/KeyList.h"
#include "node/scenario/ScenarioText.h"
#include "support/Portrait.h"

using key_list::Row;
using key_list::Takes;
using scenario_text::parse;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

constexpr double Infinity = std::numeric_limits<double>::infinity();

std::vector<Row> numbersWithRange()
{
    std::vector<Row> rows = taking(Takes::Number);
    std::erase_if(rows, [](const Row& row) { return row.lowest.empty(); });
    return rows;
}

std::string nameOf(const ::testing::TestParamInfo<Row>& info)
{
    return identifier(info.param);
}

/// The key with a value, in a file that differs from opening() by nothing else.
std::string with(const Row& row, const std::string& value)
{
    return opening(row) + row.name + " = " + value + "\n";
}

std::vector<std::string> changesOf(const Row& row, const std::string& value)
{
    return portrait::changes(parse(opening(row)), parse(with(row, value)));
}

std::string refusalOf(const Row& row, const std::string& value)
{
    return scenario_text::refusal(header(row) + row.name + " = " + value + "\n");
}

class NumberKeyTest : public ::testing::TestWithParam<Row>
{
protected:
    const Row& row = GetParam();
    const double lowest = std::stod(row.lowest);
    const double highest = std::stod(row.highest);
};

TEST_P(NumberKeyTest, SetsItsMemberAndNoOtherToEachBound)
{
    for (const std::string& value : {row.lowest, row.highest})
    {
        const bool isDefault = value == row.defaultText;
        EXPECT_THAT(changesOf(row, value),
                    ::testing::ElementsAreArray(isDefault ? std::vector<std::string>{}
                                                          : std::vector{path(row) + " = " + value}));
    }
}

TEST_P(NumberKeyTest, TakesTheClosestNumbersWithinItsBounds)
{
    for (const double value : {std::nextafter(lowest, Infinity), std::nextafter(highest, -Infinity)})
    {
        const std::string text = fmt::format("{}", value);
        EXPECT_THAT(changesOf(row, text), ElementsAre(path(row) + " = " + text));
    }
}

TEST_P(NumberKeyTest, RefusesTheClosestNumbersBeyondItsBounds)
{
    for (const double value : {std::nextafter(lowest, -Infinity), std::nextafter(highest, Infinity)})
    {
        const std::string text = fmt::format("{}", value);
        EXPECT_EQ(refusal(row, text, row.form), refusalOf(row, text));
    }
}

TEST_P(NumberKeyTest, RefusesWholeNumbersBeyondItsBounds)
{
    for (const double value : {std::ceil(lowest) - 1, std::floor(highest) + 1})
    {
        const std::string text = fmt::format("{:.0f}", value);
        EXPECT_EQ(refusal(row, text, row.form), refusalOf(row, text));
    }
}

TEST_P(NumberKeyTest, SetToItsDefaultChangesNothing)
{
    EXPECT_THAT(changesOf(row, row.defaultText), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(EveryKey, NumberKeyTest, ::testing::ValuesIn(numbersWithRange()), nameOf);

class WholeKeyTest : public ::testing::TestWithParam<Row>
{
protected:
    const Row& row = GetParam();
    const std::int64_t lowest = std::stoll(row.lowest);
    const std::int64_t highest = std::stoll(row.highest);

    /// The highest number of a frequency belongs to another plan than the default.
    std::string openingOf(std::int64_t value) const
    {
        return opening(row) + (row.name == "frequency_number" && value > 35 ? "frequency_plan = \"23 GHz\"\n" : "");
    }
};

TEST_P(WholeKeyTest, SetsItsMemberAndNoOtherUpToEachBound)
{
    for (const std::int64_t value : {lowest, lowest + 1, highest - 1, highest})
    {
        const std::string text = std::to_string(value);
        const std::string before = openingOf(value);
        const auto changes = portrait::changes(parse(before), parse(before + row.name + " = " + text + "\n"));
        if (text == row.defaultText)
        {
            EXPECT_THAT(changes, IsEmpty());
        }
        else
        {
            EXPECT_THAT(changes, ElementsAre(path(row) + " = " + text));
        }
    }
}

TEST_P(WholeKeyTest, RefusesWhatIsBeyondItsBounds)
{
    for (const std::int64_t value :
         {lowest - 1, highest + 1, lowest + 4294967296, std::int64_t{-4294967296},
          std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max()})
    {
        if (value < lowest || value > highest)
        {
            const std::string text = std::to_string(value);
            EXPECT_EQ(refusal(row, text, row.form), refusalOf(row, text));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(EveryKey, WholeKeyTest, ::testing::ValuesIn(taking(Takes::Whole)), nameOf);

TEST(WholeKeyFormTest, AWholeNumberIsWrittenInEveryWayOfToml)
{
    for (const std::string number : {"201", "+201", "2_01", "0xC9", "0xc9", "0o311", "0b11001001"})
    {
        EXPECT_EQ(201U, parse("[node]\nseed = " + number + "\n").configuration.link.weather.seed) << number;
    }
}

TEST(NumberKeyFormTest, ANumberIsWrittenInEveryWayOfToml)
{
    for (const std::string number : {"50", "50.0", "+50", "5e1", "5.0E+1", "500e-1", "5_0", "0x32"})
    {
        EXPECT_EQ(50.0, parse("[hop]\ndistance_km = " + number + "\n").configuration.link.hop.distance_km) << number;
    }
}

/// Symbol rates from the table of the link model: a channel is 1.12 times as wide.
TEST(ChannelWidthTest, EachWidthHasItsSymbolRate)
{
    struct Width
    {
        std::string text;
        double symbolRate_Bd;
    };
    for (const Width& width :
         {Width{"28", 25e6}, Width{"28.0", 25e6}, Width{"56", 50e6}, Width{"112", 100e6}, Width{"1.12e2", 100e6}})
    {
        const auto changes = portrait::changes(parse("[hop]\nchannel_width_MHz = 56\n"),
                                               parse("[hop]\nchannel_width_MHz = " + width.text + "\n"));
        if (width.symbolRate_Bd == 50e6)
        {
            EXPECT_THAT(changes, IsEmpty());
        }
        else
        {
            EXPECT_THAT(changes, ElementsAre(fmt::format("symbol rate in Bd = {}", width.symbolRate_Bd)));
        }
    }
    EXPECT_EQ(50e6, parse("[hop]\nchannel_width_MHz = 56\n").configuration.link.hop.symbolRate_Bd);
}

TEST(ChannelWidthTest, OtherWidthsAreRefused)
{
    for (const std::string value : {"27", "29", "28.5", "0", "-28", "55", "57", "111", "113", "28.000000000000004"})
    {
        EXPECT_EQ("link.toml:2:21: hop.channel_width_MHz: found " + value + ", expected 28, 56 or 112",
                  scenario_text::refusal("[hop]\nchannel_width_MHz = " + value + "\n"));
    }
}

} // namespace
