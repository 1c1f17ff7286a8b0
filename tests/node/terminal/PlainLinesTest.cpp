#include "node/terminal/PlainLines.h"

#include <csignal>
#include <cstdio>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "node/terminal/TypedInput.h"
#include "support/ForeignSignals.h"

namespace
{

using node::terminal::LineEditor;
using node::terminal::PlainLines;

/// Lines whose bytes come from the test.
class PlainLinesTest : public ::testing::Test
{
protected:
    void expectRead(LineEditor::Ending ending, const std::string& line)
    {
        const LineEditor::Typed typed = m_lines.read("> ");
        EXPECT_EQ(ending, typed.ending);
        EXPECT_EQ(line, typed.line);
    }

    std::string shown() const
    {
        std::rewind(m_screen.get());
        std::string text;
        for (int byte = 0; (byte = std::fgetc(m_screen.get())) != EOF;)
        {
            text += static_cast<char>(byte);
        }
        return text;
    }

    TypedInput input;

private:
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> m_screen{std::tmpfile(), std::fclose};
    PlainLines m_lines{m_screen.get()};
};

TEST_F(PlainLinesTest, EachLineIsReadBehindAPrompt)
{
    input.type("one\n\ntwo");
    expectRead(LineEditor::Ending::Line, "one");
    expectRead(LineEditor::Ending::Line, "");
    input.type(" three\n");
    expectRead(LineEditor::Ending::Line, "two three");
    EXPECT_EQ("> > > ", shown());
}

TEST_F(PlainLinesTest, TheEndStandsOnALineOfItsOwn)
{
    input.end();
    expectRead(LineEditor::Ending::End, "");
    EXPECT_EQ("> \n", shown());
}

TEST_F(PlainLinesTest, ALineWithoutALineEndIsALine)
{
    input.type("one");
    input.end();
    expectRead(LineEditor::Ending::Line, "one");
    expectRead(LineEditor::Ending::End, "");
    EXPECT_EQ("> \n> \n", shown());
}

TEST_F(PlainLinesTest, CtrlCBetweenTwoLinesDropsWhatWasTypedAhead)
{
    input.type("one\ntwo\n");
    expectRead(LineEditor::Ending::Line, "one");
    std::raise(SIGINT);
    input.end();
    expectRead(LineEditor::Ending::End, "");
    EXPECT_EQ("> \n> \n", shown());
}

TEST_F(PlainLinesTest, SignalThatIsNotItsOwnDoesNotEndTheLine)
{
    const ForeignSignals signals([this] { input.type("one\n"); });
    expectRead(LineEditor::Ending::Line, "one");
}

} // namespace
