#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "node/reference/Completion.h"
#include "node/reference/Help.h"

using node::reference::explain;

namespace
{

/// A line up to the cursor, and what is told there.
struct Row
{
    std::string line;
    std::string text;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << row.line;
}

class ExplanationTest : public ::testing::TestWithParam<Row>
{
};

TEST_P(ExplanationTest, TellsWhatMayComeNext)
{
    EXPECT_EQ(GetParam().text, explain(GetParam().line));
}

INSTANTIATE_TEST_SUITE_P(Names, ExplanationTest,
                         ::testing::Values(Row{"setXpic",
                                               R"(setXpicCable      Plug or unplug the XPIC cable of a channel
setXpicPreamble   Choose the XPIC preamble
setXpicSlaveMute  Mute or unmute the XPIC slave
)"},
                                           Row{"setRain", R"(setRain  Turn the rain to a rate
)"},
                                           Row{"SETR", R"(setRain  Turn the rain to a rate
)"},
                                           Row{"setRian", R"(command: found "setRian", expected one that "help" lists )"
                                                          "(did you mean setRain?)\n"},
                                           Row{"setRian 1", // what is wrong comes first
                                               R"(command: found "setRian", expected one that "help" lists )"
                                               "(did you mean setRain?)\n"},
                                           Row{"setXpic 1", R"(command: found "setXpic", expected more of its name: )"
                                                            "setXpicSlaveMute, setXpicPreamble, setXpicCable\n"}));

INSTANTIATE_TEST_SUITE_P(
    Arguments, ExplanationTest,
    ::testing::Values(Row{"setRain ", R"(<rate>  a number from 0 to 250 (mm/h): rain over the whole hop
)"},
                      Row{"setRain 5", R"(<rate>  a number from 0 to 250 (mm/h): rain over the whole hop
)"},
                      Row{"setRain 5 ", "[<over>]  a time from 0.1s to 100h in steps of 0.1s, such as 30, 1.5s, 10min "
                                        "or 2h: how long it takes to get there; without it, at once\n"
                                        "<end of line>\n"},
                      Row{"setRain 5 3", "[<over>]  a time from 0.1s to 100h in steps of 0.1s, such as 30, 1.5s, 10min "
                                         "or 2h: how long it takes to get there; without it, at once\n"},
                      Row{"setRain 5 3 ", "<end of line>\n"}, Row{"showLink x", "<end of line>\n"},
                      Row{"setTransmitter 1 ", R"(<state>  on or off: whether they transmit
  off  on
)"},
                      Row{"setTransmitter 1 OF", R"(<state>  on or off: whether they transmit
  off
)"}));

INSTANTIATE_TEST_SUITE_P(
    SeveralWords, ExplanationTest,
    ::testing::Values(Row{"addFault tiM", "<call> [KEY=VALUE...]  a call that \"listCalls\" lists, then any of the "
                                          "keys: which call, and what shall happen to it\n"
                                          "  tiManageXpic\n"},
                      Row{"addFault tiManageXpic ",
                          "<call> [KEY=VALUE...]  a call that \"listCalls\" lists, then any of the "
                          "keys: which call, and what shall happen to it\n"
                          "  calls=  channel=  code=  from_call=  text=  throws=\n"
                          "<end of line>\n"}));

INSTANTIATE_TEST_SUITE_P(
    CommandsInCommands, ExplanationTest,
    ::testing::Values(
        Row{"watch -c", "[-c <count>]  a whole number from 1 to 1000000: number of rounds; without it, until Ctrl-C\n"
                        "<command>     a command that \"help\" lists, with its arguments: what to carry out\n"},
        Row{"watch -c ", "[-c <count>]  a whole number from 1 to 1000000: number of rounds; without it, until "
                         "Ctrl-C\n"},
        Row{"watch setTr", "<command>  a command that \"help\" lists, with its arguments: what to carry out\n"
                           "  setTraceLevel  setTransmitter\n"},
        Row{"watch setTransmitter 1 ", "<state>  on or off: whether they transmit\n"
                                       "  off  on\n"},
        Row{"watch showLink ", "<end of line>\n"}));

INSTANTIATE_TEST_SUITE_P(WhereAQuestionMarkIsALetter, ExplanationTest,
                         ::testing::Values(Row{"\"", ""}, Row{"setTransmitter 1 \"o", ""}, Row{"# why", ""},
                                           Row{"addFault tiManageXpic text=\"no answer", ""}));

TEST(ExplanationOfNamesTest, AnEmptyLineMayBeAnyCommand)
{
    EXPECT_EQ(node::reference::commandList(), explain(""));
    EXPECT_EQ(node::reference::commandList(), explain("  "));
}

} // namespace
