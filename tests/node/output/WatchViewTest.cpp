#include "node/output/WatchView.h"

#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

using node::commands::Watch;
using node::output::Answer;
using node::output::Look;
using node::output::TextOutput;
using node::output::WatchView;
using node::radio::Ticks;

namespace
{

/// Rounds of "getCtStatus 1", two seconds apart.
class WatchViewTest : public ::testing::Test
{
protected:
    /// Shows rounds of these reports. @return what was printed
    std::string shown(const std::vector<std::string>& reports)
    {
        TextOutput text(output, errors, look);
        WatchView view(watch, text, look);
        for (const std::string& report : reports)
        {
            view.show(roundOf(report));
        }
        return output.str();
    }

    Answer roundOf(const std::string& report)
    {
        Answer answer;
        answer.command = "getCtStatus";
        answer.time = Ticks(900 + 20 * rounds++);
        answer.outcome = {0, report};
        return answer;
    }

    Watch watch{{"getCtStatus", "1"}, Ticks(20), {}};
    Look look;
    int rounds = 0;
    std::ostringstream output;
    std::ostringstream errors;
};

TEST_F(WatchViewTest, ARoundHasItsTitleAndItsLines)
{
    EXPECT_EQ("Every 2s: getCtStatus 1 at 0:01:30.0\n  Lock: locked\n  \n  Level: -43.02 dBm\n",
              shown({"Lock: locked\n\nLevel: -43.02 dBm\n"}));
    EXPECT_EQ("", errors.str());
}

TEST_F(WatchViewTest, LinesThatChangedAreMarked)
{
    EXPECT_EQ(R"(Every 2s: getCtStatus 1 at 0:01:30.0
  Lock: locked
  Level: -43.02 dBm
  Blocks: 0

Every 2s: getCtStatus 1 at 0:01:32.0
  Lock: locked
* Level: -43.12 dBm
  Blocks: 0

Every 2s: getCtStatus 1 at 0:01:34.0
* Lock: locke
  Level: -43.12 dBm
* Blocks: 17

Every 2s: getCtStatus 1 at 0:01:36.0
  Lock: locke
  Level: -43.12 dBm
  Blocks: 17
)",
              shown({"Lock: locked\nLevel: -43.02 dBm\nBlocks: 0\n", "Lock: locked\nLevel: -43.12 dBm\nBlocks: 0\n",
                     "Lock: locke\nLevel: -43.12 dBm\nBlocks: 17\n", "Lock: locke\nLevel: -43.12 dBm\nBlocks: 17"}));
}

TEST_F(WatchViewTest, LinesThatComeAreMarkedEmptyOnesToo)
{
    EXPECT_EQ("Every 2s: getCtStatus 1 at 0:01:30.0\n  a\n"
              "\nEvery 2s: getCtStatus 1 at 0:01:32.0\n  a\n* \n* b\n"
              "\nEvery 2s: getCtStatus 1 at 0:01:34.0\n  a\n"
              "\nEvery 2s: getCtStatus 1 at 0:01:36.0\n"
              "\nEvery 2s: getCtStatus 1 at 0:01:38.0\n* a\n",
              shown({"a\n", "a\n\nb\n", "a\n", "", "a\n"}));
}

TEST_F(WatchViewTest, TheTitleHasTheCommandAsItIsTypedAndAnyInterval)
{
    watch = {{"addFault", "tiManageXpic", "text=no answer", ""}, Ticks(15), 3};
    EXPECT_EQ("Every 1.5s: addFault tiManageXpic \"text=no answer\" \"\" at 0:01:30.0\n", shown({""}));
}

TEST_F(WatchViewTest, ErrorsAndTraceMessagesGoWhereTheyAlwaysGo)
{
    TextOutput text(output, errors, look);
    WatchView view(watch, text, look);
    Answer failed = roundOf("the report\n");
    failed.error = "getCtStatus: failed";
    failed.trace = {{Ticks(900), {"KEL", 3, "", 0, "", "no answer"}}};
    view.trace(failed.trace.front());
    EXPECT_EQ("0:01:30.0 [KEL] level 3: no answer\n", errors.str());
    view.show(failed);
    EXPECT_EQ("Every 2s: getCtStatus 1 at 0:01:30.0\n  the report\n", output.str());
    EXPECT_EQ("0:01:30.0 [KEL] level 3: no answer\nkel-node: getCtStatus: failed\n", errors.str());
}

TEST_F(WatchViewTest, ARoundWithoutAReportHasItsTitleAlone)
{
    TextOutput text(output, errors, look);
    WatchView view(watch, text, look);
    Answer answer = roundOf("");
    answer.outcome.reset();
    answer.error = "getCtStatus: threw it";
    view.show(answer);
    EXPECT_EQ("Every 2s: getCtStatus 1 at 0:01:30.0\n", output.str());
    EXPECT_EQ("kel-node: getCtStatus: threw it\n", errors.str());
}

TEST_F(WatchViewTest, ColoursReverseTheLettersThatDiffer)
{
    look.colours = true;
    EXPECT_EQ("Every 2s: getCtStatus 1 at 0:01:30.0\n  Level: -43.02 dBm\n  same\n"
              "\nEvery 2s: getCtStatus 1 at 0:01:32.0\n* Level: -4\033[7m4\033[0m.\033[7m13\033[0m dBm\n  same\n"
              "\nEvery 2s: getCtStatus 1 at 0:01:34.0\n* \033[7mX\033[0mevel: -44.13 dBm\033[7m, late\033[0m\n  same\n"
              "\nEvery 2s: getCtStatus 1 at 0:01:36.0\n* Xevel: -44.13 dBm\n  same\n* \033[7mnew\033[0m\n",
              shown({"Level: -43.02 dBm\nsame\n", "Level: -44.13 dBm\nsame\n", "Xevel: -44.13 dBm, late\nsame\n",
                     "Xevel: -44.13 dBm\nsame\nnew\n"}));
}

TEST_F(WatchViewTest, WithoutRedrawingTheSizeDoesNotMatter)
{
    look.size = [] { return node::terminal::Size{10, 3}; };
    EXPECT_EQ("Every 2s: getCtStatus 1 at 0:01:30.0\n  a line longer than the terminal\n  b\n  c\n",
              shown({"a line longer than the terminal\nb\nc\n"}));
}

TEST_F(WatchViewTest, IsAsGoodAsItsOutput)
{
    TextOutput text(output, errors, look);
    WatchView view(watch, text, look);
    EXPECT_TRUE(view.good());
    EXPECT_EQ(nullptr, view.beginWatch(watch));
    text.print("open");
    view.closeLine();
    EXPECT_EQ("open\n", output.str());
    look.screen = look.errorScreen = true;
    TextOutput oneScreen(output, errors, look);
    WatchView viewOfOne(watch, oneScreen, look);
    viewOfOne.interrupted();
    viewOfOne.closeLine();
    EXPECT_EQ("open\n\n", output.str());
    output.setstate(std::ios::badbit);
    EXPECT_FALSE(view.good());
}

} // namespace
