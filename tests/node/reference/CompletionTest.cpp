#include <ostream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/commands/Command.h"
#include "node/reference/Completion.h"

using node::reference::complete;
using ::testing::Contains;
using ::testing::IsSupersetOf;
using ::testing::Not;
using ::testing::UnorderedElementsAreArray;

namespace
{

/// A line up to the cursor, and what may stand there.
struct Row
{
    std::string line;
    std::size_t begin;
    std::vector<std::string> words;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << row.line;
}

class CompletionTest : public ::testing::TestWithParam<Row>
{
};

TEST_P(CompletionTest, OffersWhatMayStandThere)
{
    const auto candidates = complete(GetParam().line);
    EXPECT_EQ(GetParam().begin, candidates.begin);
    EXPECT_EQ(GetParam().words, candidates.words);
}

INSTANTIATE_TEST_SUITE_P(Names, CompletionTest,
                         ::testing::Values(Row{"setXpic", 0, {"setXpicCable", "setXpicPreamble", "setXpicSlaveMute"}},
                                           Row{"  setR", 2, {"setRain"}}, Row{"setRain", 0, {"setRain"}},
                                           Row{"SETR", 0, {"setRain"}}, Row{"setRains", 0, {}},
                                           Row{"\"setR", 0, {"\"setRain\""}}, Row{"# set", 5, {}}));

INSTANTIATE_TEST_SUITE_P(Arguments, CompletionTest,
                         ::testing::Values(Row{"setTransmitter 1 ", 17, {"off", "on"}},
                                           Row{"setTransmitter 1 of", 17, {"off"}},
                                           Row{"setTransmitter 1 \"o", 17, {"\"off\"", "\"on\""}},
                                           Row{"setTran 1 of", 10, {"off"}}, // the beginning of a single name
                                           Row{"setRain ", 8, {}}, Row{"setTransmitter 1 on ", 20, {}},
                                           Row{"nonsense ", 9, {}}, Row{"get ", 4, {}}, // several begin so
                                           Row{"setTransmitter 1 x", 17, {}}));

INSTANTIATE_TEST_SUITE_P(SeveralWords, CompletionTest,
                         ::testing::Values(Row{"addFault tiM", 9, {"tiManageXpic"}},
                                           Row{"addFault tiManageXpic ",
                                               22,
                                               {"calls=", "channel=", "code=", "from_call=", "text=", "throws="}},
                                           Row{"addFault tiManageXpic code=7 c", 29, {"calls=", "channel="}},
                                           Row{"addFault tiManageXpic code=7 \"fr", 29, {"\"from_call="}}));

INSTANTIATE_TEST_SUITE_P(CommandsInCommands, CompletionTest,
                         ::testing::Values(Row{"watch -", 6, {"-c", "-n"}}, Row{"watch -n", 6, {"-n"}},
                                           Row{"watch -n ", 9, {}}, Row{"watch -n 2 -", 11, {"-c"}},
                                           Row{"watch -n 2 -n ", 14, {}}, Row{"watch setR", 6, {"setRain"}},
                                           Row{"watch setTransmitter 1 of", 23, {"off"}},
                                           Row{"watch -c 2 setTransmitter 1 ", 28, {"off", "on"}},
                                           Row{"watch setTransmitter -", 21, {}}, // no options of "watch" any more
                                           Row{"watch wat", 6, {}}));

TEST(CompletionOfNamesTest, AnEmptyLineOffersEveryCommand)
{
    EXPECT_THAT(complete("").words, UnorderedElementsAreArray(node::commands::commandNames()));
}

TEST(CompletionOfNamesTest, OnlyWhatAnswersAlikeEachTimeCanBeWatched)
{
    const auto words = complete("watch ").words;
    for (const std::string& name : node::commands::commandNames())
    {
        const bool fits = node::commands::commandNamed(name).repeatable;
        EXPECT_EQ(fits ? 1 : 0, std::count(words.begin(), words.end(), name)) << name;
    }
    EXPECT_THAT(words, IsSupersetOf({"-c", "-n"}));
}

} // namespace
