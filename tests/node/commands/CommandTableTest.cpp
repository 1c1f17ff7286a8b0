#include <algorithm>
#include <cstddef>
#include <map>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/commands/Command.h"
#include "node/wording/InputError.h"

using node::commands::Command;
using node::commands::CommandGroup;
using node::commands::commandGroups;
using node::commands::commandNamed;
using node::commands::WordKind;
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

TEST(CommandTableTest, HasFourGroups)
{
    ASSERT_EQ(4U, commandGroups().size());
    EXPECT_EQ("Debug commands", commandGroups()[0].heading);
    EXPECT_EQ("The link", commandGroups()[1].heading);
    EXPECT_EQ("The node", commandGroups()[2].heading);
    EXPECT_EQ("The command line", commandGroups()[3].heading);
}

TEST(CommandTableTest, HasTheDebugCommandsInTheOrderOfTheInterface)
{
    EXPECT_THAT(namesOf(commandGroups()[0]),
                ElementsAre("getCtStatus", "getBcmModemStatus", "getPpsCalibrationStatus", "getPpsHopLengthTime",
                            "calibratePps", "setPpsSource", "setPpsOutputMode", "startDpd", "stopDpd",
                            "setDpdCoefficients", "getDpdCoefficients", "setXpicSlaveMute", "xpicAcquireStart",
                            "getXpicPreamble", "setXpicPreamble", "getXpicStatus"));
}

TEST(CommandTableTest, HasTheCommandsOfLinkNodeAndCommandLine)
{
    EXPECT_THAT(namesOf(commandGroups()[1]),
                ElementsAre("showLink", "advance", "setRain", "setFade", "setDistance", "setTransmitter",
                            "setXpicCable", "setPpsMaster", "sample", "plot"));
    EXPECT_THAT(namesOf(commandGroups()[2]),
                ElementsAre("loadScenario", "listScenarios", "addFault", "listFaults", "clearFaults", "listCalls",
                            "setTraceLevel", "listTraceLevels"));
    EXPECT_THAT(namesOf(commandGroups()[3]), ElementsAre("help", "watch", "record", "stopRecord", "replay",
                                                         "filterTrace", "traceFile", "stopTraceFile", "exit"));
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
                if (!argument.option.empty())
                {
                    continue; // stands before the others
                }
                EXPECT_TRUE(argument.optional || !optional) << command.name << ' ' << argument.name;
                optional = argument.optional;
            }
        }
    }
}

TEST(CommandTableTest, ArgumentsSayWhatTheyName)
{
    const std::map<std::string, WordKind> kinds = {{"channel", WordKind::RadioChannel},
                                                   {"channels", WordKind::TraceChannels},
                                                   {"scenario", WordKind::Scenario},
                                                   {"file", WordKind::File}};
    std::set<std::string> found;
    for (const CommandGroup& group : commandGroups())
    {
        for (const Command& command : group.commands)
        {
            for (const auto& argument : command.arguments)
            {
                const auto kind = kinds.find(argument.name);
                EXPECT_EQ(kind == kinds.end() ? WordKind::Other : kind->second, argument.kind)
                    << command.name << ' ' << argument.name;
                found.insert(kind == kinds.end() ? "" : argument.name);
            }
        }
    }
    EXPECT_THAT(found, ElementsAre("", "channel", "channels", "file", "scenario"));
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
                         ::testing::Values(Row{"getCtStatus1", "getCtStatus"}, Row{"getctstatus", "getCtStatus"},
                                           Row{"GETCTSTATUS", "getCtStatus"}, Row{" getCtStatus", "getCtStatus"},
                                           Row{"getCtStatus ", "getCtStatus"}, Row{"showlink", "showLink"},
                                           Row{"setrian", "setRain"}, Row{"advnace", "advance"},
                                           Row{"smaple", "sample"}, Row{"listFalts", "listFaults"},
                                           Row{"claerFaults", "clearFaults"}, Row{"listTraceLevles", "listTraceLevels"},
                                           Row{"stoptDpd", "stopDpd"}, Row{"sDpd", ""}, Row{"nonsense", ""},
                                           Row{"", ""}, Row{"-", ""}, Row{"--help", "help"}, Row{"Help", "help"},
                                           Row{"Exit", "exit"}));

TEST(CommandTableTest, FindsEachCommandByEachBeginningThatNoOtherHas)
{
    const std::vector<std::string> names = node::commands::commandNames();
    for (const std::string& name : names)
    {
        for (std::size_t length = 1; length <= name.size(); ++length)
        {
            const std::string begin = name.substr(0, length);
            const auto fits = [&](const std::string& other) { return other.starts_with(begin); };
            if (std::count_if(names.begin(), names.end(), fits) == 1)
            {
                EXPECT_EQ(name, commandNamed(begin).name) << begin;
            }
        }
    }
}

TEST(CommandTableTest, ABeginningThatSeveralHaveIsRefusedWithTheirNames)
{
    EXPECT_EQ("command: found \"getPps\", expected more of its name: getPpsCalibrationStatus, getPpsHopLengthTime",
              refusalOf("getPps"));
    EXPECT_EQ("command: found \"sto\", expected more of its name: stopDpd, stopRecord, stopTraceFile",
              refusalOf("sto"));
}

TEST(CommandTableTest, AllButDrawingsFoldersAndTheCommandLinesOwnCommandsAnswerAlikeEachTime)
{
    for (const CommandGroup& group : commandGroups())
    {
        for (const Command& command : group.commands)
        {
            const bool ofElse = command.name == "plot" || command.name == "listScenarios";
            EXPECT_EQ(group.heading != "The command line" && !ofElse, command.repeatable) << command.name;
            EXPECT_EQ(command.name == "loadScenario" || command.name == "sample", command.needsFile) << command.name;
        }
    }
}

TEST(CommandTableTest, RecordedAreRepeatableCommandsAndWhatCarriesOneOut)
{
    for (const std::string& name : node::commands::commandNames())
    {
        EXPECT_EQ(name == "watch" || commandNamed(name).repeatable, node::commands::isRecorded(name)) << name;
    }
}

} // namespace
