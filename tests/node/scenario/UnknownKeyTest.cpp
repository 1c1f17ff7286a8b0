#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <fmt/format.h>

#include "node/scenario/KeyList.h"
#include "node/scenario/ScenarioText.h"

using key_list::Row;
using scenario_text::refusal;

namespace
{

/// A key, and what an error suggests in its place; "" for nothing.
struct Spelling
{
    std::string text;
    std::string found;
    std::string suggestion;
};

std::string suggestionText(const std::string& suggestion)
{
    return suggestion.empty() ? "" : " (did you mean " + suggestion + "?)";
}

/// One key of each table.
std::vector<Row> oneOfEachTable()
{
    std::set<std::string> seen = {""};
    std::vector<Row> rows;
    for (const Row& row : key_list::all())
    {
        if (seen.insert(row.table).second)
        {
            rows.push_back(row);
        }
    }
    return rows;
}

/// "weather.rain[1]"
std::string tablePath(const Row& row)
{
    const std::string whole = path(row);
    return whole.substr(0, whole.size() - row.name.size() - 1);
}

class UnknownKeyTest : public ::testing::TestWithParam<Row>
{
};

TEST_P(UnknownKeyTest, IsRefusedWithItsTable)
{
    const Row& row = GetParam();
    EXPECT_EQ(fmt::format("link.toml:2:1: found an unknown key \"colour\", expected a key of {}", tablePath(row)),
              refusal(header(row) + "colour = 1\n"));
}

TEST_P(UnknownKeyTest, IsRefusedWithTheKeyThatIsSpeltAlike)
{
    const Row& row = GetParam();
    EXPECT_EQ(fmt::format("link.toml:2:3: found an unknown key \"{0}x\", expected a key of {1} (did you mean {0}?)",
                          row.name, tablePath(row)),
              refusal(header(row) + "  " + row.name + "x = 1\n"));
}

INSTANTIATE_TEST_SUITE_P(EveryTable, UnknownKeyTest, ::testing::ValuesIn(oneOfEachTable()),
                         [](const auto& row) { return identifier(row.param); });

TEST(UnknownTopKeyTest, IsRefusedWithTheKeyOrTableThatIsSpeltAlike)
{
    const std::vector<Spelling> spellings = {
        {"descripton = \"x\"\n", "descripton", "description"},
        {"nodes = 1\n", "nodes", "node"},
        {"Node = 1\n", "Node", "node"},
        {"borker = 1\n", "borker", "broker"},
        {"hopp = 1\n", "hopp", "hop"},
        {"whether = 1\n", "whether", "weather"},
        {"channels = 1\n", "channels", "channel"},
        {"faults = 1\n", "faults", "fault"},
        {"rain = 1\n", "rain", ""},
        {"\"\" = 1\n", "", ""},
        {"\"hop.distance_km\" = 1\n", "hop.distance_km", ""},
    };
    for (const Spelling& spelling : spellings)
    {
        EXPECT_EQ("link.toml:1:1: found an unknown key \"" + spelling.found +
                      "\", expected a key or table of a scenario" + suggestionText(spelling.suggestion),
                  refusal(spelling.text));
    }
}

TEST(UnknownTopKeyTest, TheNameOfATableStandsBehindItsBrackets)
{
    EXPECT_EQ("link.toml:3:2: found an unknown key \"hops\", expected a key or table of a scenario (did you mean hop?)",
              refusal("# one\n\n[hops]\n"));
    EXPECT_EQ("link.toml:1:3: found an unknown key \"faults\", expected a key or table of a scenario "
              "(did you mean fault?)",
              refusal("[[faults]]\n"));
}

TEST(UnknownWeatherKeyTest, ProfilesAreSuggestedToo)
{
    const std::string place = "link.toml:2:1: found an unknown key ";
    EXPECT_EQ(place + "\"rains\", expected a key of weather (did you mean rain?)", refusal("[weather]\nrains = []\n"));
    EXPECT_EQ(place + "\"fades\", expected a key of weather (did you mean fade?)", refusal("[weather]\nfades = []\n"));
}

TEST(UnknownChannelTest, ThereAreTwoChannels)
{
    EXPECT_EQ("link.toml:1:10: found an unknown key \"0\", expected the tables channel.1 and channel.2",
              refusal("[channel.0]\n"));
    EXPECT_EQ("link.toml:2:10: found an unknown key \"3\", expected the tables channel.1 and channel.2",
              refusal("[channel.1]\n[channel.3]\n"));
    EXPECT_EQ("link.toml:2:1: found an unknown key \"transmitter_on\", expected the tables channel.1 and channel.2",
              refusal("[channel]\ntransmitter_on = false\n"));
}

/// A point or fault is named by its place among those of its array.
TEST(UnknownKeyInArrayTest, TheNumberOfThePointIsTold)
{
    EXPECT_EQ("link.toml:4:1: found an unknown key \"at\", expected a key of weather.fade[2] (did you mean at_s?)",
              refusal("[[weather.fade]]\nat_s = 1\n[[weather.fade]]\nat = 2\n"));
    EXPECT_EQ("link.toml:4:1: found an unknown key \"chanel\", expected a key of fault[2] (did you mean channel?)",
              refusal("[[fault]]\ncall = \"tiManageXpic\"\n[[fault]]\nchanel = 1\n"));
}

TEST(UnknownKeyTextTest, AKeyThatCannotBeSeenIsShown)
{
    EXPECT_EQ(R"(link.toml:2:1: found an unknown key "a\n\"b\"", expected a key of hop)",
              refusal("[hop]\n\"a\\n\\\"b\\\"\" = 1\n"));
}

} // namespace
