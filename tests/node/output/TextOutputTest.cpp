#include "node/output/TextOutput.h"

#include <ostream>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "node/output/CountingBuffer.h"

using node::output::Answer;
using node::output::errorText;
using node::output::Look;
using node::output::Status;
using node::output::TextOutput;
using node::output::TimedMessage;
using node::output::traceText;
using node::radio::Ticks;

namespace
{

Answer answerOf(const std::string& report, const std::string& error = "")
{
    Answer answer;
    answer.command = "getCtStatus";
    answer.outcome = {error.empty() ? 0 : 1, report};
    answer.error = error;
    return answer;
}

const TimedMessage Placed{Ticks(900), {"KEL.KDC", 3, "KelDebugCmd", 17, "getCtStatus", "no answer\n"}};

class TextOutputTest : public ::testing::Test
{
protected:
    TextOutput make(bool errorColours = false)
    {
        Look look;
        look.colours = true; // of what goes to the output: reports have none
        look.errorColours = errorColours;
        return {output, errors, look};
    }

    std::ostringstream output;
    std::ostringstream errors;
};

TEST_F(TextOutputTest, AReportGoesToTheOutputAsItIs)
{
    TextOutput text = make(true);
    text.show(answerOf("Lock: locked\n\n"));
    text.show(answerOf(std::string("\0\033[1m\xff no end", 13)));
    EXPECT_EQ("Lock: locked\n\n" + std::string("\0\033[1m\xff no end", 13), output.str());
    EXPECT_EQ("", errors.str());
}

TEST_F(TextOutputTest, AnErrorGoesToTheErrorsBehindItsReport)
{
    TextOutput text(output, output);
    text.show(answerOf("the report\n", "getCtStatus: failed"));
    EXPECT_EQ("the report\nkel-node: getCtStatus: failed\n", output.str());
}

TEST_F(TextOutputTest, AnErrorNeedsNoReport)
{
    TextOutput text = make();
    Answer answer = answerOf("", "command: found nothing");
    answer.outcome.reset();
    answer.status = Status::NotUnderstood;
    answer.place = "faults.txt:3";
    text.show(answer);
    EXPECT_EQ("", output.str());
    EXPECT_EQ("kel-node: faults.txt:3: command: found nothing\n", errors.str());
}

TEST_F(TextOutputTest, TheTraceOfAnAnswerHasBeenToldBefore)
{
    TextOutput text = make();
    Answer answer = answerOf("the report\n");
    answer.trace = {Placed};
    text.show(answer);
    EXPECT_EQ("the report\n", output.str());
    EXPECT_EQ("", errors.str());
}

TEST_F(TextOutputTest, ATraceMessageGoesToTheErrorsAtOnce)
{
    TextOutput text = make();
    text.trace(Placed);
    EXPECT_EQ("", output.str());
    EXPECT_EQ("0:01:30.0 [KEL.KDC] level 3, KelDebugCmd:17 getCtStatus: no answer\n", errors.str());
}

TEST_F(TextOutputTest, WithColoursErrorsAreRedAndTraceMessagesFaint)
{
    TextOutput text = make(true);
    text.trace(Placed);
    text.show(answerOf("", "failed"));
    EXPECT_EQ("\033[2m0:01:30.0 [KEL.KDC] level 3, KelDebugCmd:17 getCtStatus: no answer\n\033[0m"
              "\033[31mkel-node: failed\n\033[0m",
              errors.str());
}

TEST_F(TextOutputTest, BracesAreLettersAsOthersAre)
{
    TextOutput text = make(true);
    text.show(answerOf("{} {0}", "{:d}"));
    EXPECT_EQ("{} {0}", output.str());
    EXPECT_EQ("\033[31mkel-node: {:d}\n\033[0m", errors.str());
}

TEST_F(TextOutputTest, ALineIsClosedOnceWhereItIsOpen)
{
    TextOutput text = make();
    text.closeLine();
    EXPECT_EQ("", output.str());
    text.show(answerOf("no end"));
    text.show(answerOf("")); // prints nothing and leaves the line open
    text.closeLine();
    text.closeLine();
    EXPECT_EQ("no end\n", output.str());
    text.show(answerOf("an end\n"));
    text.closeLine();
    EXPECT_EQ("no end\nan end\n", output.str());
    text.print("open");
    text.closeLine();
    EXPECT_EQ("no end\nan end\nopen\n", output.str());
}

TEST_F(TextOutputTest, IsGoodUntilTheOutputIsNot)
{
    TextOutput text = make();
    errors.setstate(std::ios::badbit);
    text.show(answerOf("the report\n", "failed"));
    EXPECT_TRUE(text.good());
    output.setstate(std::ios::badbit);
    EXPECT_FALSE(text.good());
}

TEST_F(TextOutputTest, AWatchBeginsOnALineOfItsOwn)
{
    TextOutput text = make();
    text.print("open");
    const auto view = text.beginWatch({{"getCtStatus", "1"}, Ticks(20), {}});
    EXPECT_EQ("open\n", output.str());
    ASSERT_NE(nullptr, view);
    view->show(answerOf("a\n"));
    EXPECT_EQ("open\nEvery 2s: getCtStatus 1 at 0:00:00.0\n  a\n", output.str());
}

TEST_F(TextOutputTest, WhereOutputAndErrorsMeetEachHasLinesOfItsOwn)
{
    Look look;
    look.screen = look.errorScreen = true;
    TextOutput text(output, output, look);
    text.show(answerOf("no end"));
    text.show(answerOf("no end", "failed"));
    text.show(answerOf("an end\n", "failed"));
    EXPECT_EQ("no end\nno end\nkel-node: failed\nan end\nkel-node: failed\n", output.str());
}

TEST_F(TextOutputTest, CtrlCOpensALineWhereItIsShown)
{
    for (const bool oneScreen : {true, false})
    {
        Look look;
        look.screen = look.errorScreen = oneScreen;
        output.str("");
        TextOutput text(output, errors, look);
        text.interrupted();
        text.closeLine();
        text.closeLine();
        EXPECT_EQ(oneScreen ? "\n" : "", output.str());
        text.print("open");
        text.interrupted();
        text.closeLine();
        EXPECT_EQ(oneScreen ? "\nopen\n" : "open\n", output.str());
    }
}

TEST_F(TextOutputTest, CtrlCShownAmongErrorsAloneEndsItsLineThere)
{
    Look look;
    look.errorScreen = true;
    TextOutput text(output, errors, look);
    text.interrupted();
    text.closeLine();
    EXPECT_EQ("\n", errors.str());
    EXPECT_EQ("", output.str());
}

TEST_F(TextOutputTest, WhatIsPrintedIsSeenAtOnce)
{
    CountingBuffer reports;
    CountingBuffer complaints;
    std::ostream to(&reports);
    std::ostream toErrors(&complaints);
    TextOutput text(to, toErrors);
    text.show(answerOf("the report"));
    EXPECT_EQ(1, reports.syncs);
    text.trace(Placed);
    EXPECT_EQ(1, complaints.syncs);
}

TEST(TraceTextTest, HasThePlaceWhereThereIsOne)
{
    EXPECT_EQ("0:01:30.0 [KEL.KDC] level 3, KelDebugCmd:17 getCtStatus: no answer\n", traceText(Placed));
    EXPECT_EQ("1:00:00.1 [KEL] level -1: two\nlines\n",
              traceText({Ticks(36001), {"KEL", -1, "", 0, "", "two\nlines"}}));
}

TEST(ErrorTextTest, HasThePlaceWhereThereIsOne)
{
    Answer answer;
    answer.place = "faults.txt:3";
    EXPECT_EQ("", errorText(answer));
    answer.error = "no answer";
    EXPECT_EQ("kel-node: faults.txt:3: no answer\n", errorText(answer));
    answer.place = "";
    EXPECT_EQ("kel-node: no answer\n", errorText(answer));
}

} // namespace
