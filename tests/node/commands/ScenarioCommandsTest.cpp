#include <cstdlib>
#include <filesystem>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/cli/SessionTest.h"
#include "support/TemporaryFolder.h"

using node::cli::Status;
using node::radio::Ticks;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace
{

/// A session whose ready scenarios are in a folder of the test.
class ScenarioCommandsTest : public SessionTest
{
protected:
    ScenarioCommandsTest()
    {
        setenv("KEL_NODE_SCENARIOS", folder.path().c_str(), 1);
    }

    ~ScenarioCommandsTest() override
    {
        unsetenv("KEL_NODE_SCENARIOS");
    }

    TemporaryFolder folder;
};

TEST_F(ScenarioCommandsTest, TheReadyOnesAreListedByTheAlphabet)
{
    folder.write("short.toml", "description = \"A short hop\"\n[hop]\ndistance_km = 1\n");
    folder.write("a-name-as-long-as-its-column.toml", "description = \"A long name\"\n");
    folder.write("another-name-that-is-long-ok.toml", "description = \"A longer name\"\n");
    folder.write("notes.txt", "no scenario");
    folder.write("toml", "no scenario");
    EXPECT_EQ("a-name-as-long-as-its-column A long name\n"
              "another-name-that-is-long-ok A longer name\n"
              "short                       A short hop\n",
              done("listScenarios"));
    EXPECT_THAT(desk.started, IsEmpty());
}

TEST_F(ScenarioCommandsTest, OneIsListedWithTheFirstLineOfItsDescription)
{
    folder.write("short.toml", "description = \"A short hop\\nin three\\nlines\"\n");
    EXPECT_EQ("short                       A short hop\n", done("listScenarios"));
}

TEST_F(ScenarioCommandsTest, NoneAreListedWhereThereAreNone)
{
    EXPECT_EQ("", done("listScenarios"));
}

TEST_F(ScenarioCommandsTest, AFolderThatIsNotThereIsTold)
{
    setenv("KEL_NODE_SCENARIOS", folder.pathOf("absent").c_str(), 1);
    EXPECT_EQ(folder.pathOf("absent") + ": found no such folder, expected the folder of scenarios",
              complaint(Status::NotUnderstood, "listScenarios"));
}

TEST_F(ScenarioCommandsTest, OneThatDoesNotFitIsListedWithWhatIsWrong)
{
    folder.write("a.toml", "description = \"Good\"\n");
    const std::string bad = folder.write("b.toml", "description = \"Bad\"\n[hop]\ndistance_km = 0\n");
    EXPECT_EQ("a                           Good\n"
              "b                           " +
                  bad + ":3:15: hop.distance_km: found 0, expected a number from 0.1 to 100\n",
              done("listScenarios"));
}

TEST_F(ScenarioCommandsTest, OneIsLoadedByItsName)
{
    folder.write("short.toml", "[hop]\ndistance_km = 1.5\n[[fault]]\ncall = \"tiManageXpic\"\n");
    desk.link().advance(Ticks(50));
    EXPECT_EQ("", done("loadScenario short"));
    ASSERT_THAT(desk.started, SizeIs(1));
    EXPECT_EQ(1.5, desk.started[0].link.hop.distance_km);
    EXPECT_THAT(desk.started[0].faults, SizeIs(1));
    EXPECT_EQ(Ticks(0), desk.link().conditions().time);
    EXPECT_THAT(commands.calls, IsEmpty());
}

TEST_F(ScenarioCommandsTest, OneIsLoadedFromAFile)
{
    std::filesystem::create_directory(folder.pathOf("my own"));
    const std::string file = folder.write("my own/hop", "[hop]\ndistance_km = 2.5\n");
    done("loadScenario \"" + file + "\"");
    ASSERT_THAT(desk.started, SizeIs(1));
    EXPECT_EQ(2.5, desk.started[0].link.hop.distance_km);
}

TEST_F(ScenarioCommandsTest, ANameThatNoneHasLeavesTheNode)
{
    folder.write("rain-front.toml", "");
    desk.link().advance(Ticks(50));
    EXPECT_EQ(
        "scenario: found \"rainfront\", expected a .toml file, or a name that \"listScenarios\" lists (did you mean "
        "rain-front?)",
        complaint(Status::NotUnderstood, "loadScenario rainfront"));
    EXPECT_EQ("scenario: found \"\", expected a .toml file, or a name that \"listScenarios\" lists",
              complaint(Status::NotUnderstood, "loadScenario \"\""));
    EXPECT_THAT(desk.started, IsEmpty());
    EXPECT_EQ(Ticks(50), desk.link().conditions().time);
}

TEST_F(ScenarioCommandsTest, AFileThatIsNotUnderstoodLeavesTheNode)
{
    const std::string file = folder.write("bad.toml", "[node]\nradio_channels = 3\n");
    const std::string absent = folder.pathOf("absent.toml");
    desk.link().advance(Ticks(50));
    for (const std::string& name : {file, std::string("bad")})
    {
        EXPECT_EQ(file + ":2:18: node.radio_channels: found 3, expected a whole number from 1 to 2",
                  complaint(Status::NotUnderstood, "loadScenario " + name));
    }
    EXPECT_EQ(absent + ": found no such file, expected a scenario file",
              complaint(Status::NotUnderstood, "loadScenario " + absent));
    EXPECT_THAT(desk.started, IsEmpty());
    EXPECT_EQ(Ticks(50), desk.link().conditions().time);
}

TEST_F(ScenarioCommandsTest, ANodeThatDoesNotStartIsToldWithItsReason)
{
    folder.write("good.toml", "");
    desk.refuses = true;
    EXPECT_EQ("the desk refuses", complaint(Status::NotStarted, "loadScenario good"));
    EXPECT_FALSE(desk.hasNode());
}

TEST_F(ScenarioCommandsTest, NeedNoNode)
{
    folder.write("good.toml", "description = \"Good\"");
    desk.clear();
    EXPECT_EQ("good                        Good\n", done("listScenarios"));
    done("loadScenario good");
    EXPECT_TRUE(desk.hasNode());
}

} // namespace
