#include <filesystem>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <unistd.h>

#include "node/scenario/ScenarioFolder.h"
#include "node/scenario/ScenarioText.h"

namespace scenario = node::scenario;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

constexpr uid_t Nobody = 65534;

/// Permissions do not hold the superuser: as such a one, the process is nobody for as long as the object lives.
class NoSuperuser
{
public:
    NoSuperuser()
    {
        EXPECT_TRUE(m_before != 0 || seteuid(Nobody) == 0);
    }

    ~NoSuperuser()
    {
        EXPECT_EQ(0, seteuid(m_before));
    }

private:
    uid_t m_before = geteuid();
};

std::string refusalOf(const std::string& nameOrFile)
{
    return scenario_text::refusalOf([&] { scenario::load(nameOrFile); });
}

class LibraryTest : public ScenarioFolderTest
{
};

TEST_F(LibraryTest, ReadyScenariosAreTheTomlFilesOfTheFolderSorted)
{
    for (const std::string name :
         {"rain.toml", "fog.toml", "clear-sky.toml", "notes.md", "toml", "dry.TOML", "a.toml~", "b.toml.toml"})
    {
        write(name, "");
    }
    EXPECT_THAT(scenario::readyScenarios(), ElementsAre("clear-sky", "fog", "rain"));
}

TEST_F(LibraryTest, AnEmptyFolderHasNoScenarios)
{
    EXPECT_THAT(scenario::readyScenarios(), IsEmpty());
}

TEST_F(LibraryTest, AFolderThatIsNotThereIsRefused)
{
    setenv("KEL_NODE_SCENARIOS", pathOf("nowhere").c_str(), 1);
    const std::string refusal = pathOf("nowhere") + ": found no such folder, expected the folder of scenarios";
    EXPECT_EQ(refusal, scenario_text::refusalOf([] { scenario::readyScenarios(); }));
    EXPECT_EQ(refusal, refusalOf("rain"));
}

TEST_F(LibraryTest, AnEmptyVariableNamesNoFolder)
{
    setenv("KEL_NODE_SCENARIOS", "", 1);
    EXPECT_THAT(scenario::readyScenarios(), Contains("clear-sky"));
}

TEST_F(LibraryTest, ANameLoadsTheReadyScenario)
{
    write("rain.toml", "description = \"Rain\"\n[hop]\ndistance_km = 7\n");
    write("fog.toml", "description = \"Fog\"\n");
    const auto loaded = scenario::load("rain");
    EXPECT_EQ("Rain", loaded.description);
    EXPECT_EQ(7.0, loaded.configuration.link.hop.distance_km);
}

TEST_F(LibraryTest, AMistakeInAReadyScenarioIsNamedWithItsFile)
{
    write("rain.toml", "x = 1\n");
    EXPECT_EQ(pathOf("rain.toml") + ":1:1: found an unknown key \"x\", expected a key or table of a scenario",
              refusalOf("rain"));
}

TEST_F(LibraryTest, AWordWithASlashIsAFile)
{
    write("other", "description = \"other\"\n");
    EXPECT_EQ("other", scenario::load(pathOf("other")).description);
}

TEST_F(LibraryTest, AWordThatEndsInTomlIsAFileOfTheWorkingDirectory)
{
    write("rain.toml", "description = \"ready\"\n");
    makeFolder("work");
    write("work/rain.toml", "description = \"own\"\n");
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(pathOf("work"));
    EXPECT_EQ("own", scenario::load("rain.toml").description);
    EXPECT_EQ("ready", scenario::load("rain").description);
    std::filesystem::current_path(before);
}

TEST_F(LibraryTest, AMistakeInAFileIsNamedWithTheFileAsItWasGiven)
{
    write("own.toml", "\n[hop]\nlength = 1\n");
    EXPECT_EQ(pathOf("own.toml") + ":3:1: found an unknown key \"length\", expected a key of hop",
              refusalOf(pathOf("own.toml")));
}

TEST_F(LibraryTest, AnUnknownNameIsRefusedWithTheNameThatIsSpeltAlike)
{
    write("rain-fade.toml", "");
    write("clear-sky.toml", "");
    const std::string expected = ", expected a .toml file, or a name that \"listScenarios\" lists";
    EXPECT_EQ("scenario: found \"clear_sky\"" + expected + " (did you mean clear-sky?)", refusalOf("clear_sky"));
    EXPECT_EQ("scenario: found \"Rain-Fade\"" + expected + " (did you mean rain-fade?)", refusalOf("Rain-Fade"));
    EXPECT_EQ("scenario: found \"storm\"" + expected, refusalOf("storm"));
    EXPECT_EQ("scenario: found \"\"" + expected, refusalOf(""));
    EXPECT_EQ("scenario: found \"a\\nb\"" + expected, refusalOf("a\nb"));
}

TEST_F(LibraryTest, AMissingFileIsRefused)
{
    EXPECT_EQ(pathOf("none.toml") + ": found no such file, expected a scenario file", refusalOf(pathOf("none.toml")));
    EXPECT_EQ("none.toml: found no such file, expected a scenario file", refusalOf("none.toml"));
    write("file", "");
    EXPECT_EQ(pathOf("file/none.toml") + ": found no such file, expected a scenario file",
              refusalOf(pathOf("file/none.toml")));
}

TEST_F(LibraryTest, AFolderInPlaceOfAFileIsRefused)
{
    makeFolder("folder.toml");
    EXPECT_EQ(pathOf("folder.toml") + ": found a folder, expected a scenario file", refusalOf(pathOf("folder.toml")));
    EXPECT_EQ(pathOf("folder.toml") + ": found a folder, expected a scenario file", refusalOf("folder"));
}

TEST_F(LibraryTest, AFileThatMayNotBeReadIsRefused)
{
    write("secret.toml", "");
    std::filesystem::permissions(pathOf(""), std::filesystem::perms::all);
    std::filesystem::permissions(pathOf("secret.toml"), std::filesystem::perms::none);
    const NoSuperuser nobody;
    EXPECT_EQ(pathOf("secret.toml") + ": found no permission, expected a scenario file",
              refusalOf(pathOf("secret.toml")));
}

TEST_F(LibraryTest, AFileInAFolderThatMayNotBeEnteredIsRefused)
{
    makeFolder("closed");
    write("closed/own.toml", "");
    std::filesystem::permissions(pathOf(""), std::filesystem::perms::all);
    std::filesystem::permissions(pathOf("closed"), std::filesystem::perms::none);
    {
        const NoSuperuser nobody;
        EXPECT_EQ(pathOf("closed/own.toml") + ": found no permission, expected a scenario file",
                  refusalOf(pathOf("closed/own.toml")));
    }
    std::filesystem::permissions(pathOf("closed"), std::filesystem::perms::owner_all);
}

TEST_F(LibraryTest, ANameThatIsLongerThanAFileNameMayBeIsRefused)
{
    std::string name(5000, 'a');
    name += ".toml";
    EXPECT_EQ(name + ": found it unusable (File name too long), expected a scenario file", refusalOf(name));
}

} // namespace
