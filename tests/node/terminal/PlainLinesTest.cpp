#include "node/terminal/PlainLines.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <iostream>
#include <optional>
#include <sstream>
#include <string>
#include <system_error>

#include <unistd.h>

#include <gtest/gtest.h>

#include "ForeignSignals.h"
#include "node/terminal/Descriptor.h"

namespace
{

using node::terminal::Descriptor;
using node::terminal::LineEditor;
using node::terminal::PlainLines;

/// Lines whose bytes come from the test, through a pipe in the place of the terminal.
class PlainLinesTest : public ::testing::Test
{
protected:
    PlainLinesTest() : m_errors(std::cerr.rdbuf(shown.rdbuf()))
    {
        std::array<int, 2> ends{};
        if (pipe(ends.data()) != 0 || dup2(ends[0], STDIN_FILENO) < 0)
        {
            throw std::system_error(errno, std::generic_category(), "pipe");
        }
        close(ends[0]);
        m_keys.emplace(ends[1]);
    }

    ~PlainLinesTest() override
    {
        std::cerr.rdbuf(m_errors);
        dup2(m_input.get(), STDIN_FILENO);
    }

    void type(const std::string& keys) const
    {
        EXPECT_EQ(static_cast<ssize_t>(keys.size()), write(m_keys->get(), keys.data(), keys.size()));
    }

    void endInput()
    {
        m_keys.reset();
    }

    void expectRead(LineEditor::Ending ending, const std::string& line)
    {
        const LineEditor::Typed typed = lines.read("> ");
        EXPECT_EQ(ending, typed.ending);
        EXPECT_EQ(line, typed.line);
    }

    std::ostringstream shown; ///< on standard error
    PlainLines lines;

private:
    std::streambuf* m_errors;
    Descriptor m_input{dup(STDIN_FILENO)};
    std::optional<Descriptor> m_keys;
};

TEST_F(PlainLinesTest, EachLineIsReadBehindAPrompt)
{
    type("one\n\ntwo");
    expectRead(LineEditor::Ending::Line, "one");
    expectRead(LineEditor::Ending::Line, "");
    type(" three\n");
    expectRead(LineEditor::Ending::Line, "two three");
    EXPECT_EQ("> > > ", shown.str());
}

TEST_F(PlainLinesTest, TheEndStandsOnALineOfItsOwn)
{
    endInput();
    expectRead(LineEditor::Ending::End, "");
    EXPECT_EQ("> \n", shown.str());
}

TEST_F(PlainLinesTest, ALineWithoutALineEndIsALine)
{
    type("one");
    endInput();
    expectRead(LineEditor::Ending::Line, "one");
    expectRead(LineEditor::Ending::End, "");
    EXPECT_EQ("> \n> \n", shown.str());
}

TEST_F(PlainLinesTest, CtrlCBetweenTwoLinesDropsWhatWasTypedAhead)
{
    type("one\ntwo\n");
    expectRead(LineEditor::Ending::Line, "one");
    std::raise(SIGINT);
    endInput();
    expectRead(LineEditor::Ending::End, "");
    EXPECT_EQ("> \n> \n", shown.str());
}

TEST_F(PlainLinesTest, SignalThatIsNotItsOwnDoesNotEndTheLine)
{
    const ForeignSignals signals([this] { type("one\n"); });
    expectRead(LineEditor::Ending::Line, "one");
}

} // namespace
