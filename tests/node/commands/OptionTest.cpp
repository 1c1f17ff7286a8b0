#include <ostream>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "node/commands/Binding.h"
#include "node/commands/ConsoleTest.h"

using node::commands::Argument;
using node::commands::commandNamed;
using node::commands::Extent;
using ::testing::ElementsAre;

namespace
{

/// Words that are typed, and what comes of them: a call of the console, or a complaint.
struct Row
{
    std::vector<std::string> words;
    std::string result;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << ::testing::PrintToString(row.words);
}

class OptionTest : public ConsoleTest, public ::testing::WithParamInterface<Row>
{
};

class WrongOptionTest : public OptionTest
{
};

TEST_P(OptionTest, IsReadBeforeTheArguments)
{
    carryOut(GetParam().words);
    EXPECT_THAT(console.calls, ElementsAre(GetParam().result));
}

INSTANTIATE_TEST_SUITE_P(
    EachKind, OptionTest,
    ::testing::Values(Row{{"watch", "-n", "0.1", "showLink"}, "watch(showLink, 1, no end)"},
                      Row{{"watch", "-n", "100h", "showLink"}, "watch(showLink, 3600000, no end)"},
                      Row{{"watch", "-c", "1", "showLink"}, "watch(showLink, 20, 1)"},
                      Row{{"watch", "-c", "1000000", "showLink"}, "watch(showLink, 20, 1000000)"},
                      Row{{"watch", "-n", "1", "-c", "3", "getCtStatus", "1"}, "watch(getCtStatus 1, 10, 3)"},
                      Row{{"watch", "-c", "3", "-n", "1", "getCtStatus", "1"}, "watch(getCtStatus 1, 10, 3)"}));

INSTANTIATE_TEST_SUITE_P(WithItsValueInOneWord, OptionTest,
                         ::testing::Values(Row{{"watch", "-n5", "showLink"}, "watch(showLink, 50, no end)"},
                                           Row{{"watch", "-n0.1s", "-c3", "showLink"}, "watch(showLink, 1, 3)"},
                                           Row{{"watch", "-c3", "-n", "1", "showLink"}, "watch(showLink, 10, 3)"}));

INSTANTIATE_TEST_SUITE_P(UpToTheirEnd, OptionTest,
                         ::testing::Values(Row{{"watch", "--", "showLink"}, "watch(showLink, 20, no end)"},
                                           Row{{"watch", "-c", "1", "--", "showLink"}, "watch(showLink, 20, 1)"},
                                           Row{{"watch", "-c1", "--", "advance", "--"}, "watch(advance --, 20, 1)"},
                                           Row{{"watch", "advance", "--", "-c"}, "watch(advance -- -c, 20, no end)"}));

INSTANTIATE_TEST_SUITE_P(
    BehindTheFirstArgumentIsOneItself, OptionTest,
    ::testing::Values(Row{{"watch", "getCtStatus", "-n", "1"}, "watch(getCtStatus -n 1, 20, no end)"},
                      Row{{"watch", "-n", "1", "advance", "-c", "3"}, "watch(advance -c 3, 10, no end)"},
                      Row{{"watch", "-c", "3", "advance", "-c", "3"}, "watch(advance -c 3, 20, 3)"}));

TEST_P(WrongOptionTest, IsRefusedAtItsPlace)
{
    EXPECT_EQ(GetParam().result, complaint(GetParam().words));
}

const std::string Seconds = "watch: option -n (seconds): found ";
const std::string Time = ", expected a time from 0.1s to 100h in steps of 0.1s, such as 30, 1.5s, 10min or 2h";
const std::string Rounds = "watch: option -c (count): found ";
const std::string Whole = ", expected a whole number from 1 to 1000000";

INSTANTIATE_TEST_SUITE_P(
    EachKind, WrongOptionTest,
    ::testing::Values(Row{{"watch", "-n"}, Seconds + "nothing" + Time},
                      Row{{"watch", "-c"}, Rounds + "nothing" + Whole},
                      Row{{"watch", "-n", "1", "-c"}, Rounds + "nothing" + Whole},
                      Row{{"watch", "-n", "1", "-n", "1", "showLink"}, Seconds + "it twice, expected it once"},
                      Row{{"watch", "-c", "1", "-n", "1", "-c", "2", "showLink"},
                          Rounds + "it twice, expected it once"},
                      Row{{"watch", "-n1", "-n1", "showLink"}, Seconds + "it twice, expected it once"},
                      Row{{"watch", "-n", "1", "-n2", "-c"}, Seconds + "it twice, expected it once"},
                      Row{{"watch", "-n0", "showLink"}, Seconds + "\"0\"" + Time},
                      Row{{"watch", "-n-c", "3", "showLink"}, Seconds + "\"-c\"" + Time},
                      Row{{"watch", "-n", "--", "showLink"}, Seconds + "\"--\"" + Time},
                      Row{{"watch", "-c=3", "showLink"}, Rounds + "\"=3\"" + Whole},
                      Row{{"watch", "-n", "0", "showLink"}, Seconds + "\"0\"" + Time},
                      Row{{"watch", "-n", "100.1h", "showLink"}, Seconds + "\"100.1h\"" + Time},
                      Row{{"watch", "-n", "-c", "3", "showLink"}, Seconds + "\"-c\"" + Time},
                      Row{{"watch", "-c", "0", "showLink"}, Rounds + "\"0\"" + Whole},
                      Row{{"watch", "-c", "1000001", "showLink"}, Rounds + "\"1000001\"" + Whole},
                      Row{{"watch", "-c", "-1", "showLink"}, Rounds + "\"-1\"" + Whole},
                      Row{{"watch", "-c", "x", "-n", "y", "nonsense"}, Seconds + "\"y\"" + Time}));

INSTANTIATE_TEST_SUITE_P(
    Unknown, WrongOptionTest,
    ::testing::Values(
        Row{{"watch", "-x", "1", "showLink"}, R"(command: found "-x", expected one that "help" lists)"},
        Row{{"watch", "--", "-n", "1"}, R"(command: found "-n", expected one that "help" lists)"},
        Row{{"watch", "--", "--"}, R"(command: found "--", expected one that "help" lists)"},
        Row{{"watch", "-c1", "--"},
            "watch: argument 1 (command): found nothing, expected a command that \"help\" lists, with its "
            "arguments"},
        Row{{"watch", "---", "showLink"}, R"(command: found "---", expected one that "help" lists)"},
        Row{{"exit", "--"}, R"(exit: argument 1: found "--", expected nothing more)"},
        Row{{"help", "-n", "1"}, R"(help: argument 2: found "1", expected nothing more)"},
        Row{{"exit", "-n"}, R"(exit: argument 1: found "-n", expected nothing more)"}));

TEST(OptionArgumentTest, IsDescribedByItsLetterAndLeavesTheOthersTheirNumbers)
{
    std::vector<std::string> found;
    for (const Argument& argument : commandNamed("watch").arguments)
    {
        found.push_back(fmt::format("{} {}{}{}", argument.name, argument.option, argument.optional ? " optional" : "",
                                    argument.extent == Extent::Command ? " command" : ""));
    }
    EXPECT_THAT(found, ElementsAre("seconds -n optional", "count -c optional", "command  command"));
    EXPECT_EQ(Extent::Words, commandNamed("addFault").arguments.front().extent);
    EXPECT_EQ(Extent::Word, commandNamed("help").arguments.front().extent);
    EXPECT_TRUE(commandNamed("help").arguments.front().optional);
}

} // namespace
