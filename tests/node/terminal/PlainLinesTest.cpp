#include "node/terminal/PlainLines.h"

#include <csignal>
#include <iostream>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "ForeignSignals.h"
#include "node/terminal/TypedInput.h"

namespace
{

using node::terminal::LineEditor;
using node::terminal::PlainLines;

/// Lines whose bytes come from the test.
class PlainLinesTest : public ::testing::Test
{
protected:
    PlainLinesTest() : m_errors(std::cerr.rdbuf(shown.rdbuf()))
    {
    }

    ~PlainLinesTest() override
    {
        std::cerr.rdbuf(m_errors);
    }

    void expectRead(LineEditor::Ending ending, const std::string& line)
    {
        const LineEditor::Typed typed = lines.read("> ");
        EXPECT_EQ(ending, typed.ending);
        EXPECT_EQ(line, typed.line);
    }

    TypedInput input;
    std::ostringstream shown; ///< on standard error
    PlainLines lines;

private:
    std::streambuf* m_errors;
};

TEST_F(PlainLinesTest, EachLineIsReadBehindAPrompt)
{
    input.type("one\n\ntwo");
    expectRead(LineEditor::Ending::Line, "one");
    expectRead(LineEditor::Ending::Line, "");
    input.type(" three\n");
    expectRead(LineEditor::Ending::Line, "two three");
    EXPECT_EQ("> > > ", shown.str());
}

TEST_F(PlainLinesTest, TheEndStandsOnALineOfItsOwn)
{
    input.end();
    expectRead(LineEditor::Ending::End, "");
    EXPECT_EQ("> \n", shown.str());
}

TEST_F(PlainLinesTest, ALineWithoutALineEndIsALine)
{
    input.type("one");
    input.end();
    expectRead(LineEditor::Ending::Line, "one");
    expectRead(LineEditor::Ending::End, "");
    EXPECT_EQ("> \n> \n", shown.str());
}

TEST_F(PlainLinesTest, CtrlCBetweenTwoLinesDropsWhatWasTypedAhead)
{
    input.type("one\ntwo\n");
    expectRead(LineEditor::Ending::Line, "one");
    std::raise(SIGINT);
    input.end();
    expectRead(LineEditor::Ending::End, "");
    EXPECT_EQ("> \n> \n", shown.str());
}

TEST_F(PlainLinesTest, SignalThatIsNotItsOwnDoesNotEndTheLine)
{
    const ForeignSignals signals([this] { input.type("one\n"); });
    expectRead(LineEditor::Ending::Line, "one");
}

} // namespace
