#include <optional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/scenario/KeyList.h"
#include "node/scenario/Keys.h"
#include "support/Portrait.h"

namespace scenario = node::scenario;
using ::testing::Contains;
using ::testing::ElementsAreArray;

namespace
{

/// What a list says of one key: name, form and default.
using Facts = std::vector<std::string>;

template <typename Target>
void add(std::vector<Facts>& facts, const std::string& table, const scenario::Keys<Target>& keys)
{
    for (const auto& key : keys)
    {
        facts.push_back({table, key.name, key.form, key.defaultText});
    }
}

TEST(KeyListTest, NamesTheKeysOfTheProductWithTheirFormsAndDefaults)
{
    std::vector<Facts> ofProduct;
    add(ofProduct, "", scenario::headingKeys());
    add(ofProduct, "node", scenario::nodeKeys());
    add(ofProduct, "broker", scenario::brokerKeys());
    add(ofProduct, "hop", scenario::hopKeys());
    add(ofProduct, "weather", scenario::weatherKeys());
    add(ofProduct, "weather.rain", scenario::rainKeys());
    add(ofProduct, "weather.fade", scenario::fadeKeys());
    add(ofProduct, "channel.1", scenario::channelKeys());
    add(ofProduct, "channel.2", scenario::channelKeys());
    add(ofProduct, "fault", scenario::faultKeys());

    std::vector<Facts> listed;
    for (const key_list::Row& row : key_list::all())
    {
        listed.push_back({row.table, row.name, row.form, row.defaultText});
    }
    EXPECT_THAT(ofProduct, ElementsAreArray(listed));
}

TEST(KeyListTest, AKeyIsFoundByItsExactNameAlone)
{
    const auto* const found = scenario::find(scenario::hopKeys(), "noise_figure_dB");
    ASSERT_NE(nullptr, found);
    EXPECT_EQ("noise_figure_dB", found->name);
    for (const std::string name : {"", "noise_figure_db", "noise_figure_dB ", "noise_figure"})
    {
        EXPECT_EQ(nullptr, scenario::find(scenario::hopKeys(), name)) << '"' << name << '"';
    }
}

TEST(KeyListTest, ADefaultIsShownAsItStandsInAFile)
{
    EXPECT_EQ("24.2", scenario::shown(24.2));
    EXPECT_EQ("false", scenario::shown(false));
    EXPECT_EQ("-7", scenario::shown(std::optional(-7)));
    EXPECT_EQ("", scenario::shown(std::optional<int>()));
}

/// The default that the reference tells is the one that a scenario without the key has.
TEST(KeyListTest, AScenarioWithoutKeysHasTheDefaultsOfTheList)
{
    const std::vector<std::string> lines = portrait::of(scenario::parse("", "link.toml"));
    for (const key_list::Row& row : key_list::all())
    {
        const bool shownByItsKey = row.name != "description" && row.name != "channel_width_MHz" &&
                                   row.table != "weather.rain" && row.table != "weather.fade" && row.table != "fault";
        if (shownByItsKey)
        {
            const std::string value = row.defaultText.empty() ? "none" : row.defaultText;
            EXPECT_THAT(lines, Contains(path(row) + " = " + value));
        }
    }
}

/// Documentation is made of the rows; a bar would break its tables.
TEST(KeyListTest, EveryKeyHasAMeaningThatFitsIntoATable)
{
    const auto check = [](const auto& keys)
    {
        for (const auto& key : keys)
        {
            EXPECT_NE("", key.meaning) << key.name;
            EXPECT_EQ(std::string::npos, (key.name + key.form + key.defaultText + key.meaning).find_first_of("|\n"))
                << key.name;
        }
    };
    check(scenario::headingKeys());
    check(scenario::nodeKeys());
    check(scenario::brokerKeys());
    check(scenario::hopKeys());
    check(scenario::weatherKeys());
    check(scenario::rainKeys());
    check(scenario::fadeKeys());
    check(scenario::channelKeys());
    check(scenario::faultKeys());
}

} // namespace
