#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "node/output/WatchView.h"

using node::output::Answer;
using node::output::Look;
using node::output::TextOutput;
using node::output::WatchView;
using node::radio::Ticks;
using node::terminal::Size;

namespace
{

/// A watch that draws each round over the one before.
class WatchFrameTest : public ::testing::Test
{
protected:
    WatchFrameTest()
    {
        look.redraws = true;
        look.screen = true;
        look.errorScreen = true;
        look.size = [this] { return size; };
    }

    /// Shows a round. @return what it drew, with ~ for the escape character and the number of line ends before it
    std::string drawn(const std::string& report, const std::string& error = "",
                      const std::vector<std::string>& trace = {})
    {
        Answer answer;
        answer.command = "getCtStatus";
        answer.time = Ticks(20 * rounds++);
        answer.outcome = {0, report};
        answer.error = error;
        for (const std::string& message : trace)
        {
            answer.trace.push_back({answer.time, {"KEL", 3, "", 0, "", message}});
        }
        if (!view)
        {
            view.emplace(node::commands::Watch{{"getCtStatus", "1"}, Ticks(20), {}}, text, look);
        }
        output.str("");
        view->show(answer);
        std::string frame = output.str();
        if (const std::size_t above = frame.find_first_not_of('\n'); above > 0)
        {
            frame.replace(0, above, fmt::format("({} rows on)", above));
        }
        for (char& c : frame)
        {
            c = c == '\033' ? '~' : c;
        }
        return frame;
    }

    Size size;
    Look look;
    int rounds = 0;
    std::ostringstream output;
    std::ostringstream errors;
    TextOutput text{output, errors};
    std::optional<WatchView> view; ///< made for the first round
};

TEST_F(WatchFrameTest, TheFirstRoundClearsTheScreenAndLaterOnesDrawOverIt)
{
    EXPECT_EQ(R"((23 rows on)~[H~[KEvery 2s: getCtStatus 1 at 0:00:00.0
~[K  Lock: locked
~[K  Level: -43.02 dBm
~[J)",
              drawn("Lock: locked\nLevel: -43.02 dBm\n"));
    EXPECT_EQ(R"(~[H~[KEvery 2s: getCtStatus 1 at 0:00:02.0
~[K  Lock: locked
~[K* Level: -43.12 dBm
~[J)",
              drawn("Lock: locked\nLevel: -43.12 dBm\n"));
    EXPECT_EQ(R"(~[H~[KEvery 2s: getCtStatus 1 at 0:00:04.0
~[J)",
              drawn(""));
}

TEST_F(WatchFrameTest, ColoursReverseTheLettersThatDiffer)
{
    look.colours = true;
    EXPECT_EQ(R"((23 rows on)~[H~[KEvery 2s: getCtStatus 1 at 0:00:00.0
~[K  Level: -43.02 dBm
~[J)",
              drawn("Level: -43.02 dBm\n"));
    EXPECT_EQ(R"(~[H~[KEvery 2s: getCtStatus 1 at 0:00:02.0
~[K* Level: -43.~[7m1~[0m2 dBm
~[J)",
              drawn("Level: -43.12 dBm\n"));
}

TEST_F(WatchFrameTest, TraceMessagesAndTheErrorStandInsideOfTheFrame)
{
    EXPECT_EQ(R"((23 rows on)~[H~[KEvery 2s: getCtStatus 1 at 0:00:00.0
~[K  the report
~[K  0:00:00.0 [KEL] level 3: first
~[K  0:00:00.0 [KEL] level 3: second
~[K  line
~[K  kel-node: getCtStatus: failed
~[J)",
              drawn("the report", "getCtStatus: failed", {"first\n", "second\nline\n"}));
    EXPECT_EQ("", errors.str());
    view->trace({Ticks(0), {"KEL", 3, "", 0, "", "first"}});
    EXPECT_EQ("", errors.str());
    EXPECT_EQ(R"(~[H~[KEvery 2s: getCtStatus 1 at 0:00:02.0
~[K  the report
~[K* 0:00:02.0 [KEL] level 3: first
~[K* kel-node: getCtStatus: threw it
~[J)",
              drawn("the report", "getCtStatus: threw it", {"first\n"}));
}

TEST_F(WatchFrameTest, LinesEndAtTheLastColumn)
{
    size = {20, 24};
    const std::string title = "(23 rows on)~[H~[KEvery 2s: getCtStatu\n";
    EXPECT_EQ(title + "~[K  abcdefghijklmnopqr\n~[J", drawn("abcdefghijklmnopqr\n"));
    view.reset();
    EXPECT_EQ(title + "~[K  abcdefghijklmnopqr\n~[J", drawn("abcdefghijklmnopqrs\n"));
}

TEST_F(WatchFrameTest, WhatDiffersBehindTheLastColumnMarksTheLine)
{
    size = {20, 24};
    drawn("abcdefghijklmnopqr1\n");
    EXPECT_EQ("~[H~[KEvery 2s: getCtStatu\n~[K* abcdefghijklmnopqr\n~[J", drawn("abcdefghijklmnopqr2\n"));
}

TEST_F(WatchFrameTest, WhatDoesNotFitIsCounted)
{
    size = {80, 5}; // a title, three lines, and the line of the cursor
    EXPECT_EQ(R"((4 rows on)~[H~[KEvery 2s: getCtStatus 1 at 0:00:00.0
~[K  a
~[K  b
~[K  c
~[J)",
              drawn("a\nb\nc\n"));
    EXPECT_EQ(R"(~[H~[KEvery 2s: getCtStatus 1 at 0:00:02.0
~[K  a
~[K  b
~[K* ... 2 more lines
~[J)",
              drawn("a\nb\nc\nd\n"));
    EXPECT_EQ(R"(~[H~[KEvery 2s: getCtStatus 1 at 0:00:04.0
~[K  a
~[K  b
~[K* ... 4 more lines
~[J)",
              drawn("a\nb\nc\nd\n", "failed", {"trace"}));
    drawn("a\nb\nc\nd\n");
    EXPECT_EQ(R"(~[H~[KEvery 2s: getCtStatus 1 at 0:00:08.0
~[K  a
~[K  b
~[K  ... 2 more lines
~[J)",
              drawn("a\nb\nc\nd\n"));
    EXPECT_EQ(R"(~[H~[KEvery 2s: getCtStatus 1 at 0:00:10.0
~[K  a
~[K  b
~[K* ... 2 more lines
~[J)",
              drawn("a\nb\nc\ne\n"));
}

TEST_F(WatchFrameTest, WhereErrorsGoElsewhereTheFrameIsTheReport)
{
    look.errorScreen = false;
    drawn("");
    view->trace({Ticks(0), {"KEL", 3, "", 0, "", "first"}});
    EXPECT_EQ("~[H~[KEvery 2s: getCtStatus 1 at 0:00:02.0\n~[K* the report\n~[J",
              drawn("the report", "getCtStatus: failed", {"first\n"}));
    EXPECT_EQ("0:00:00.0 [KEL] level 3: first\nkel-node: getCtStatus: failed\n", errors.str());
}

TEST_F(WatchFrameTest, EachRoundAsksForTheSize)
{
    drawn("a\nb\n");
    size = {80, 3};
    EXPECT_EQ("~[H~[KEvery 2s: getCtStatus 1 at 0:00:02.0\n~[K  ... 2 more lines\n~[J", drawn("a\nb\n"));
    size = {80, 24};
    EXPECT_EQ("~[H~[KEvery 2s: getCtStatus 1 at 0:00:04.0\n~[K  a\n~[K  b\n~[J", drawn("a\nb\n"));
}

TEST_F(WatchFrameTest, ATerminalThatIsTooSmallGetsWhatFits)
{
    for (const int rows : {3, 2, 1, 0, -1})
    {
        view.reset();
        size = {3, rows};
        EXPECT_EQ("(2 rows on)~[H~[KEve\n~[K  .\n~[J", drawn("a\nb\n")) << rows;
    }
    for (const int columns : {1, 0, -1})
    {
        view.reset();
        size = {columns, 24};
        EXPECT_EQ("(23 rows on)~[H~[KE\n~[K  \n~[J", drawn("a\n")) << columns;
    }
}

TEST_F(WatchFrameTest, WithoutASizeItIs80By24)
{
    look.size = nullptr;
    std::string report;
    std::string lines;
    for (int line = 0; line < 23; ++line)
    {
        report += fmt::format("{:x<79}\n", "");
        lines += line < 21 ? fmt::format("~[K  {:x<78}\n", "") : "";
    }
    EXPECT_EQ(
        fmt::format("(23 rows on)~[H~[KEvery 2s: getCtStatus 1 at 0:00:00.0\n{}~[K  ... 2 more lines\n~[J", lines),
        drawn(report));
}

TEST_F(WatchFrameTest, MessagesThatCameTooLateToBeDrawnAreToldAtTheEnd)
{
    const node::output::TimedMessage late = {Ticks(5), {"KEL", 3, "", 0, "", "late"}};
    drawn("the report");
    view->trace({Ticks(0), {"KEL", 3, "", 0, "", "drawn"}});
    drawn("the report", "", {"drawn"});
    view->trace(late);
    view.reset();
    EXPECT_EQ("0:00:00.5 [KEL] level 3: late\n", errors.str());
}

} // namespace
