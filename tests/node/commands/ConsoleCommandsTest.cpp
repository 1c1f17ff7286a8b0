#include <ostream>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "node/commands/ConsoleTest.h"
#include "trace/VemTrace.h"

using node::commands::Outcome;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

/// Words that are typed, what is asked of the console, and what is printed.
struct Row
{
    std::vector<std::string> words;
    std::string call;
    std::string output{};
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << ::testing::PrintToString(row.words);
}

class ConsoleCommandsTest : public ConsoleTest, public ::testing::WithParamInterface<Row>
{
};

TEST_P(ConsoleCommandsTest, AskTheConsole)
{
    const Outcome outcome = carryOut(GetParam().words);
    EXPECT_THAT(console.calls, ElementsAre(GetParam().call));
    EXPECT_EQ(0, outcome.result);
    EXPECT_EQ(GetParam().output, outcome.output);
    EXPECT_THAT(outcome.fields, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    EachKind, ConsoleCommandsTest,
    ::testing::Values(Row{{"help"}, "help()", "the help\n"}, Row{{"help", "startDpd"}, "help(startDpd)", "the help\n"},
                      Row{{"help", "nonsense"}, "help(nonsense)", "the help\n"}, Row{{"exit"}, "leave()"},
                      Row{{"record", "a file"}, "startRecording(a file)"}, Row{{"stopRecord"}, "stopRecording()"},
                      Row{{"replay", "a file"}, "replay(a file)", "the difference\n"},
                      Row{{"filterTrace", "KEL.*"}, "filterTrace(KEL.*, 255)"},
                      Row{{"filterTrace", "*", "0"}, "filterTrace(*, 0)"},
                      Row{{"filterTrace", "*", "255"}, "filterTrace(*, 255)"},
                      Row{{"traceFile", "a file"}, "startTraceFile(a file)"},
                      Row{{"stopTraceFile"}, "stopTraceFile()"}));

INSTANTIATE_TEST_SUITE_P(Watch, ConsoleCommandsTest,
                         ::testing::Values(Row{{"watch", "showLink"}, "watch(showLink, 20, no end)"},
                                           Row{{"watch", "getC", "1"}, "watch(getC 1, 20, no end)"},
                                           Row{{"watch", "startDpd"}, "watch(startDpd, 20, no end)"},
                                           Row{{"watch", "loadScenario", "x", "y"},
                                               "watch(loadScenario x y, 20, no end)"}));

using ConsoleOutcomeTest = ConsoleTest;

TEST_F(ConsoleOutcomeTest, OfAWatchAndAReplayIsTheConsolesOwn)
{
    console.result = 1;
    EXPECT_EQ(1, carryOut({"watch", "showLink"}).result);
    const Outcome replayed = carryOut({"replay", "a file"});
    EXPECT_EQ(1, replayed.result);
    EXPECT_EQ("the difference\n", replayed.output);
}

using WatchedCommandTest = ConsoleTest;

TEST_F(WatchedCommandTest, IsNoneOfTheCommandLineAndNoDrawing)
{
    for (const std::string own : {"help", "watch", "record", "stopRecord", "replay", "filterTrace", "traceFile",
                                  "stopTraceFile", "exit", "plot"})
    {
        const std::string text =
            "watch: argument 1 (command): found \"" + own + "\", expected a command that can be watched";
        EXPECT_EQ(text, complaint({"watch", "-n", "1", own, "showLink"}));
        EXPECT_EQ(text, complaint({"watch", own.substr(0, own.size() - 1), "showLink"}));
    }
}

TEST_F(WatchedCommandTest, IsACommand)
{
    const std::string nothing =
        "watch: argument 1 (command): found nothing, expected a command that \"help\" lists, with its arguments";
    EXPECT_EQ(nothing, complaint({"watch"}));
    EXPECT_EQ(nothing, complaint({"watch", "-n", "1", "-c", "3"}));
    EXPECT_EQ("command: found \"shwoLink\", expected one that \"help\" lists (did you mean showLink?)",
              complaint({"watch", "shwoLink"}));
    EXPECT_EQ("command: found \"getX\", expected more of its name: getXpicPreamble, getXpicStatus",
              complaint({"watch", "getX", "1"}));
    EXPECT_EQ("command: found \"\", expected one that \"help\" lists", complaint({"watch", ""}));
}

using TraceFilterTest = ConsoleTest;

TEST_F(TraceFilterTest, FitsATraceChannel)
{
    const VemTrace channel("CCT.one", 3);
    EXPECT_EQ("filterTrace: argument 1 (channels): found \"CCT.on\", expected a pattern that fits a channel that "
              "\"listTraceLevels\" lists (did you mean CCT.one?)",
              complaint({"filterTrace", "CCT.on"}));
    carryOut({"filterTrace", "CCT.on?"});
    EXPECT_THAT(console.calls, ::testing::ElementsAre("filterTrace(CCT.on?, 255)"));
}

} // namespace
