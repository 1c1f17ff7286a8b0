#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/scenario/KeyList.h"
#include "node/scenario/Reference.h"
#include "node/scenario/Scenario.h"
#include "support/Portrait.h"

namespace scenario = node::scenario;
using ::testing::Contains;
using ::testing::ElementsAreArray;

namespace
{

/// The project's own scenarios.
std::vector<std::string> filesOfTheProject()
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(KEL_SOURCE_DIR "/scenarios"))
    {
        if (entry.path().extension() == ".toml")
        {
            names.push_back(entry.path().stem().string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

TEST(ReadyScenarioTest, EveryScenarioOfTheProjectIsListed)
{
    EXPECT_THAT(scenario::readyScenarios(), ElementsAreArray(filesOfTheProject()));
    EXPECT_THAT(scenario::readyScenarios(), Contains("clear-sky"));
}

TEST(ReadyScenarioTest, EveryScenarioLoadsAndHasItsOwnDescriptionOnOneLine)
{
    std::vector<std::string> descriptions;
    for (const std::string& name : filesOfTheProject())
    {
        SCOPED_TRACE(name);
        const std::string description = scenario::load(name).description;
        EXPECT_NE("", description);
        EXPECT_EQ(std::string::npos, description.find('\n'));
        EXPECT_THAT(descriptions, ::testing::Not(Contains(description)));
        descriptions.push_back(description);
    }
}

/// What somebody gets who names no scenario, and what a file that sets one key starts from.
TEST(ReadyScenarioTest, ClearSkyIsTheDefault)
{
    scenario::Scenario clearSky = scenario::load("clear-sky");
    clearSky.description = "";
    EXPECT_THAT(portrait::of(clearSky), ElementsAreArray(portrait::of({})));
}

/// "hop.distance_km = 10" for each line of a file that sets a key.
std::vector<std::string> settingsOf(const std::string& fileName)
{
    std::vector<std::string> settings;
    std::string table;
    std::ifstream file(fileName);
    for (std::string line; std::getline(file, line);)
    {
        if (line.starts_with('['))
        {
            table = line.substr(1, line.find(']') - 1) + ".";
        }
        else if (line.find(" = ") != std::string::npos)
        {
            settings.push_back(table + line);
        }
    }
    return settings;
}

/// People copy it to begin a scenario of their own.
TEST(ReadyScenarioTest, ClearSkyWritesOutEveryDefault)
{
    const std::vector<std::string> settings = settingsOf(KEL_SOURCE_DIR "/scenarios/clear-sky.toml");
    for (const key_list::Row& row : key_list::all())
    {
        const bool standsAlone = row.table != "weather.rain" && row.table != "weather.fade" && row.table != "fault";
        if (standsAlone && !row.defaultText.empty())
        {
            EXPECT_THAT(settings, Contains(path(row) + " = " + row.defaultText));
        }
    }
}

TEST(ReadyScenarioTest, TheDocumentIsTheReference)
{
    std::ifstream file(KEL_SOURCE_DIR "/docs/scenarios.md", std::ios::binary);
    const std::string document{std::istreambuf_iterator<char>(file), {}};
    EXPECT_EQ(scenario::reference(), document);
}

} // namespace
