#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "node/scenario/KeyList.h"
#include "node/scenario/ScenarioText.h"

using key_list::Row;
using key_list::Takes;

namespace
{

/// A value of TOML, and how an error shows it.
struct Sample
{
    std::string value;
    std::string found;
    std::vector<Takes> acceptedBy = {};
};

const std::vector<Sample>& samples()
{
    static const std::vector<Sample> all = {
        {R"("?")", R"("?")"},
        {"'?'", R"("?")"},
        {"\"\"\"\n?\t\"\"\"", R"("?\t")"},
        {R"("true")", R"("true")"},
        {R"("1")", R"("1")"},
        {"1", "1", {Takes::Number, Takes::Whole}},
        {"1.5", "1.5", {Takes::Number}},
        {"nan", "nan"},
        {"inf", "inf"},
        {"-inf", "-inf"},
        {"true", "true", {Takes::Flag}},
        {"false", "false", {Takes::Flag}},
        {"[1]", "an array"},
        {"[]", "an array"},
        {"{ a = 1 }", "a table"},
        {"{}", "a table"},
        {"1979-05-27", "a date or time"},
        {"07:32:00", "a date or time"},
        {"1979-05-27T07:32:00", "a date or time"},
        {"1979-05-27T07:32:00Z", "a date or time"},
    };
    return all;
}

bool accepts(const Row& row, const Sample& sample)
{
    const bool anyText = row.form == "a text" && sample.found.starts_with('"');
    const bool anyNumber = !row.lowest.empty() || row.takes == Takes::Flag;
    return anyText || (anyNumber && std::find(sample.acceptedBy.begin(), sample.acceptedBy.end(), row.takes) !=
                                        sample.acceptedBy.end());
}

class WrongTypeTest : public ::testing::TestWithParam<Row>
{
};

TEST_P(WrongTypeTest, IsRefusedWithPlaceAndValueAndForm)
{
    const Row& row = GetParam();
    for (const Sample& sample : samples())
    {
        if (!accepts(row, sample))
        {
            EXPECT_EQ(refusal(row, sample.found, row.form),
                      scenario_text::refusal(header(row) + row.name + " = " + sample.value + "\n"))
                << sample.value;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(EveryKey, WrongTypeTest, ::testing::ValuesIn(key_list::all()),
                         [](const auto& row) { return identifier(row.param); });

/// Shown without its point it would be what is expected.
TEST(WrongTypeFloatTest, AFloatWithoutAFractionIsNoWholeNumberAndShowsWhy)
{
    EXPECT_EQ("link.toml:2:18: node.radio_channels: found 2.0, expected a whole number from 1 to 2",
              scenario_text::refusal("[node]\nradio_channels = 2.0\n"));
}

/// A table, a line that puts something else in its place, and the error about it.
struct TableRow
{
    std::string text;
    std::string error;
};

TEST(WrongTypeTableTest, ATableMustBeATable)
{
    for (const std::string name : {"node", "broker", "hop", "weather"})
    {
        const std::string column = std::to_string(name.size() + 4);
        for (const Sample& sample : samples())
        {
            if (sample.found != "a table")
            {
                EXPECT_EQ("link.toml:1:" + column + ": " + name + ": found " + sample.found + ", expected a table",
                          scenario_text::refusal(name + " = " + sample.value + "\n"));
            }
        }
        EXPECT_EQ("link.toml:1:1: " + name + ": found an array, expected a table",
                  scenario_text::refusal("[[" + name + "]]\n"));
    }
}

TEST(WrongTypeTableTest, AnArrayOfTablesMustBeOne)
{
    const std::vector<TableRow> rows = {
        {"fault = 1\n", "link.toml:1:9: fault: found 1, expected an array of tables"},
        {"[fault]\n", "link.toml:1:1: fault: found a table, expected an array of tables"},
        {"fault = [ 7 ]\n", "link.toml:1:11: fault[1]: found 7, expected a table"},
        {"fault = [ { call = \"tiManageXpic\" }, \"x\" ]\n", "link.toml:1:38: fault[2]: found \"x\", expected a table"},
        {"[weather]\nrain = 1.5\n", "link.toml:2:8: weather.rain: found 1.5, expected an array of tables"},
        {"[weather.rain]\n", "link.toml:1:1: weather.rain: found a table, expected an array of tables"},
        {"[weather]\nrain = [ {}, [] ]\n", "link.toml:2:14: weather.rain[2]: found an array, expected a table"},
        {"[weather]\nfade = true\n", "link.toml:2:8: weather.fade: found true, expected an array of tables"},
        {"[weather]\nfade = [ 2000-01-01 ]\n",
         "link.toml:2:10: weather.fade[1]: found a date or time, expected a table"},
    };
    for (const TableRow& row : rows)
    {
        EXPECT_EQ(row.error, scenario_text::refusal(row.text));
    }
}

TEST(WrongTypeTableTest, TheChannelsAreTwoTablesInATable)
{
    const std::vector<TableRow> rows = {
        {"channel = 2\n", "link.toml:1:11: channel: found 2, expected the tables channel.1 and channel.2"},
        {"[[channel]]\n", "link.toml:1:1: channel: found an array, expected the tables channel.1 and channel.2"},
        {"[channel]\n1 = \"on\"\n", "link.toml:2:5: channel.1: found \"on\", expected a table"},
        {"[[channel.2]]\n", "link.toml:1:1: channel.2: found an array, expected a table"},
    };
    for (const TableRow& row : rows)
    {
        EXPECT_EQ(row.error, scenario_text::refusal(row.text));
    }
}

} // namespace
