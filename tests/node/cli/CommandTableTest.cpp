#include <ostream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/cli/Command.h"
#include "node/wording/InputError.h"

using node::cli::Command;
using node::cli::CommandGroup;
using node::cli::commandGroups;
using node::cli::commandNamed;
using ::testing::ElementsAre;

namespace
{

std::vector<std::string> namesOf(const CommandGroup& group)
{
    std::vector<std::string> names;
    for (const Command& command : group.commands)
    {
        names.push_back(command.name);
    }
    return names;
}

/// What is said of a name that no command has.
std::string refusalOf(const std::string& name)
{
    try
    {
        return "found " + commandNamed(name).name;
    }
    catch (const node::wording::InputError& error)
    {
        return error.what();
    }
}

TEST(CommandTableTest, HasThreeGroups)
{
    ASSERT_EQ(3U, commandGroups().size());
    EXPECT_EQ("Debug commands", commandGroups()[0].heading);
    EXPECT_EQ("The link", commandGroups()[1].heading);
    EXPECT_EQ("The node", commandGroups()[2].heading);
}

TEST(CommandTableTest, HasTheDebugCommandsInTheOrderOfTheInterface)
{
    EXPECT_THAT(namesOf(commandGroups()[0]),
                ElementsAre("getCtStatus", "getBcmModemStatus", "getPpsCalibrationStatus", "getPpsHopLengthTime",
                            "calibratePps", "setPpsSource", "setPpsOutputMode", "startDpd", "stopDpd",
                            "setDpdCoefficients", "getDpdCoefficients", "setXpicSlaveMute", "xpicAcquireStart",
                            "getXpicPreamble", "setXpicPreamble", "getXpicStatus"));
}

TEST(CommandTableTest, HasTheCommandsOfTheLinkAndOfTheNode)
{
    EXPECT_THAT(namesOf(commandGroups()[1]), ElementsAre("showLink", "advance", "setRain", "setFade", "setDistance",
                                                         "setTransmitter", "setXpicCable", "setPpsMaster", "sample"));
    EXPECT_THAT(namesOf(commandGroups()[2]),
                ElementsAre("loadScenario", "listScenarios", "addFault", "listFaults", "clearFaults", "listCalls",
                            "setTraceLevel", "listTraceLevels"));
}

TEST(CommandTableTest, EveryCommandSaysWhatItDoesAndWhatItsArgumentsMean)
{
    for (const CommandGroup& group : commandGroups())
    {
        for (const Command& command : group.commands)
        {
            EXPECT_NE("", command.summary) << command.name;
            for (const auto& argument : command.arguments)
            {
                EXPECT_NE("", argument.form) << command.name << ' ' << argument.name;
                EXPECT_NE("", argument.meaning) << command.name << ' ' << argument.name;
            }
        }
    }
}

TEST(CommandTableTest, NothingFollowsAnOptionalArgumentButOptionalOnes)
{
    for (const CommandGroup& group : commandGroups())
    {
        for (const Command& command : group.commands)
        {
            bool optional = false;
            for (const auto& argument : command.arguments)
            {
                EXPECT_TRUE(argument.optional || !optional) << command.name << ' ' << argument.name;
                optional = argument.optional;
            }
        }
    }
}

TEST(CommandTableTest, FindsEachCommandByItsWholeName)
{
    for (const CommandGroup& group : commandGroups())
    {
        for (const Command& command : group.commands)
        {
            EXPECT_EQ(&command, &commandNamed(command.name));
        }
    }
}

/// A name that no command has, and the one that is suggested instead; "" for none.
struct Row
{
    std::string typed;
    std::string suggestion;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << '"' << row.typed << '"';
}

class UnknownCommandTest : public ::testing::TestWithParam<Row>
{
};

TEST_P(UnknownCommandTest, IsRefusedWithTheNameThatIsSpeltMostAlike)
{
    const auto& [typed, suggestion] = GetParam();
    EXPECT_EQ("command: found \"" + typed + "\", expected one that \"help\" lists" +
                  (suggestion.empty() ? "" : " (did you mean " + suggestion + "?)"),
              refusalOf(typed));
}

INSTANTIATE_TEST_SUITE_P(EachKind, UnknownCommandTest,
                         ::testing::Values(Row{"getCtStatu", "getCtStatus"}, Row{"getCtStatus1", "getCtStatus"},
                                           Row{"getctstatus", "getCtStatus"}, Row{"GETCTSTATUS", "getCtStatus"},
                                           Row{" getCtStatus", "getCtStatus"}, Row{"getCtStatus ", "getCtStatus"},
                                           Row{"showlink", "showLink"}, Row{"setrian", "setRain"},
                                           Row{"advnace", "advance"}, Row{"smaple", "sample"},
                                           Row{"listFault", "listFaults"}, Row{"clearFault", "clearFaults"},
                                           Row{"listTraceLevel", "listTraceLevels"}, Row{"stoptDpd", "stopDpd"},
                                           Row{"sDpd", ""}, Row{"nonsense", ""}, Row{"", ""}, Row{"-", ""},
                                           Row{"--help", ""}, Row{"Help", ""}, Row{"Exit", ""}));

TEST(CommandTableTest, DoesNotHoldTheWordsThatAreUnderstoodEverywhere)
{
    EXPECT_EQ(R"(command: found "help", expected one that "help" lists)", refusalOf("help"));
    EXPECT_EQ(R"(command: found "exit", expected one that "help" lists)", refusalOf("exit"));
}

} // namespace
