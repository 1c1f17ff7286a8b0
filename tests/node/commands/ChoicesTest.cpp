#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/commands/Command.h"
#include "node/scenario/Scenario.h"
#include "node/trace/TraceLibrary.h"
#include "support/TemporaryFolder.h"

using node::commands::commandNamed;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

namespace
{

/// The choices for the last of the words of a command's argument.
std::vector<std::string> choices(const std::string& command, std::size_t argument,
                                 const std::vector<std::string>& words = {""})
{
    const auto& offer = commandNamed(command).arguments.at(argument).choices;
    return offer ? offer(words) : std::vector<std::string>{"no choices"};
}

TEST(ChoicesTest, ChannelsAndSwitches)
{
    for (const std::string command : {"getCtStatus", "setXpicPreamble", "setTransmitter"})
    {
        EXPECT_THAT(choices(command, 0), ElementsAre("1", "2")) << command;
    }
    for (const std::string command : {"setTransmitter", "setXpicCable", "setPpsMaster"})
    {
        EXPECT_THAT(choices(command, 1), ElementsAre("on", "off")) << command;
    }
}

TEST(ChoicesTest, NumbersTimesAndCommandsHaveNone)
{
    EXPECT_THAT(choices("setXpicPreamble", 1), ElementsAre("no choices"));
    EXPECT_THAT(choices("setDpdCoefficients", 1), ElementsAre("no choices"));
    EXPECT_THAT(choices("advance", 0), ElementsAre("no choices"));
    EXPECT_THAT(choices("setRain", 0), ElementsAre("no choices"));
    EXPECT_THAT(choices("setTraceLevel", 1), ElementsAre("no choices"));
    for (std::size_t argument = 0; argument < 3; ++argument)
    {
        EXPECT_THAT(choices("watch", argument), ElementsAre("no choices"));
    }
}

TEST(ChoicesTest, TopicsAreEveryCommandAndScenarios)
{
    std::vector<std::string> expected = node::commands::commandNames();
    expected.emplace_back("scenario");
    EXPECT_EQ(expected, choices("help", 0));
}

TEST(ChoicesTest, TraceChannelsAreThoseThatAreKnown)
{
    node::trace::setLevel("ChoicesTest", 3);
    std::vector<std::string> expected;
    for (const auto& [name, level] : node::trace::levels())
    {
        expected.push_back(name);
    }
    EXPECT_THAT(expected, Contains("ChoicesTest"));
    EXPECT_EQ(expected, choices("setTraceLevel", 0));
    EXPECT_EQ(expected, choices("filterTrace", 0));
}

/// A folder with files, folders, and hidden ones.
class FileChoicesTest : public ::testing::Test
{
protected:
    FileChoicesTest()
    {
        for (const std::string name : {"rain.toml", "rain", "Rain", "a b", ".hidden"})
        {
            folder.write(name, "");
        }
        std::filesystem::create_directory(folder.pathOf("rain-front"));
        std::filesystem::create_directory(folder.pathOf(".git"));
        folder.write("rain-front/inside", "");
    }

    ~FileChoicesTest() override
    {
        std::filesystem::current_path(m_before);
    }

    TemporaryFolder folder;

private:
    std::filesystem::path m_before = std::filesystem::current_path();
};

TEST_F(FileChoicesTest, AreThoseThatBeginSoWithTheirFolder)
{
    for (const std::string command : {"record", "replay", "traceFile"})
    {
        EXPECT_THAT(
            choices(command, 0, {folder.pathOf("rain")}),
            UnorderedElementsAre(folder.pathOf("rain"), folder.pathOf("rain.toml"), folder.pathOf("rain-front/")))
            << command;
    }
    EXPECT_THAT(choices("sample", 2, {folder.pathOf("R")}), ElementsAre(folder.pathOf("Rain")));
    EXPECT_THAT(choices("plot", 1, {folder.pathOf("rain-front/")}), ElementsAre(folder.pathOf("rain-front/inside")));
    EXPECT_THAT(choices("record", 0, {folder.pathOf("x")}), IsEmpty());
    EXPECT_THAT(choices("record", 0, {folder.pathOf("absent/")}), IsEmpty());
}

TEST_F(FileChoicesTest, AreHiddenOnesOnlyWhenNamed)
{
    EXPECT_THAT(choices("record", 0, {folder.path() + "/"}),
                UnorderedElementsAre(folder.pathOf("rain"), folder.pathOf("rain.toml"), folder.pathOf("rain-front/"),
                                     folder.pathOf("Rain"), folder.pathOf("a b")));
    EXPECT_THAT(choices("record", 0, {folder.pathOf(".")}),
                UnorderedElementsAre(folder.pathOf(".hidden"), folder.pathOf(".git/")));
}

TEST_F(FileChoicesTest, AreOfTheCurrentFolderWhereNoneIsNamed)
{
    std::filesystem::current_path(folder.path());
    EXPECT_THAT(choices("record", 0, {"rain"}), UnorderedElementsAre("rain", "rain.toml", "rain-front/"));
    EXPECT_THAT(choices("record", 0, {"rain-front/"}), ElementsAre("rain-front/inside"));
    EXPECT_THAT(choices("record", 0, {""}), UnorderedElementsAre("rain", "rain.toml", "rain-front/", "Rain", "a b"));
}

TEST_F(FileChoicesTest, OfScenariosAreTheReadyOnesToo)
{
    std::vector<std::string> expected = {folder.pathOf("rain.toml")};
    const std::vector<std::string> ready = node::scenario::readyScenarios();
    expected.insert(expected.end(), ready.begin(), ready.end());
    EXPECT_THAT(ready, Contains("rain-front"));
    EXPECT_EQ(expected, choices("loadScenario", 0, {folder.pathOf("rain.")}));
}

TEST_F(FileChoicesTest, OfScenariosAreFilesAloneWhereThereIsNoFolderOfReadyOnes)
{
    setenv("KEL_NODE_SCENARIOS", folder.pathOf("absent").c_str(), 1);
    EXPECT_THAT(choices("loadScenario", 0, {folder.pathOf("rain.")}), ElementsAre(folder.pathOf("rain.toml")));
    unsetenv("KEL_NODE_SCENARIOS");
}

TEST(FaultChoicesTest, AreTheCallsThatAreMadeAfterTheStart)
{
    const std::vector<std::string> calls = choices("addFault", 0);
    EXPECT_THAT(calls, Contains("tiManageXpic"));
    EXPECT_THAT(calls, Contains("IDpdControllerSplit.start"));
    EXPECT_EQ(0, std::count(calls.begin(), calls.end(), "CModuleManager.RegisterModule"));
    EXPECT_EQ(0, std::count(calls.begin(), calls.end(), "IRlbspKelApi.installDebugCmdCallback"));
}

TEST(FaultChoicesTest, AreTheKeysThatAreStillOpen)
{
    EXPECT_THAT(choices("addFault", 0, {"tiManageXpic", ""}),
                ElementsAre("channel=", "code=", "text=", "throws=", "from_call=", "calls="));
    EXPECT_THAT(choices("addFault", 0, {"tiManageXpic", "code=7", "calls=2", ""}),
                ElementsAre("channel=", "text=", "throws=", "from_call="));
    EXPECT_THAT(choices("addFault", 0, {"tiManageXpic", "code=7"}), Contains("code="));
}

TEST_F(FileChoicesTest, OfScenariosAreTomlFilesAndFoldersAlone)
{
    const std::vector<std::string> found = choices("loadScenario", 0, {folder.pathOf("rain")});
    EXPECT_THAT(found, Contains(folder.pathOf("rain.toml")));
    EXPECT_THAT(found, Contains(folder.pathOf("rain-front/")));
    EXPECT_THAT(found, ::testing::Not(Contains(folder.pathOf("rain"))));
}

} // namespace
