#include "node/terminal/LineEditor.h"

#include <array>
#include <cstdio>
#include <memory>
#include <string>

#include <unistd.h>

#include <gtest/gtest.h>

#include "node/terminal/Descriptor.h"
#include "node/terminal/TypedInput.h"

namespace
{

using node::terminal::LineEditor;

/// Standard output into a file, for as long as it lives.
class CapturedOutput
{
public:
    CapturedOutput()
    {
        std::fflush(stdout);
        EXPECT_LE(0, dup2(fileno(m_file.get()), STDOUT_FILENO));
    }

    CapturedOutput(const CapturedOutput&) = delete;
    CapturedOutput& operator=(const CapturedOutput&) = delete;

    ~CapturedOutput()
    {
        dup2(m_before.get(), STDOUT_FILENO);
    }

    /// What has arrived there, and is not on its way.
    std::string text() const
    {
        std::array<char, 256> bytes{};
        const ssize_t length = pread(fileno(m_file.get()), bytes.data(), bytes.size(), 0);
        return {bytes.data(), static_cast<std::size_t>(length)};
    }

private:
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> m_file{std::tmpfile(), std::fclose};
    node::terminal::Descriptor m_before{dup(STDOUT_FILENO)};
};

/// The editor of a build without libedit.
class PlainLineEditorTest : public ::testing::Test
{
protected:
    const TypedInput input;
    const CapturedOutput output;
    LineEditor editor{{}, "/absent/history"};
};

TEST_F(PlainLineEditorTest, LineIsReadBehindThePromptWithoutItsMarks)
{
    input.type("getCtStatus 1\n");
    const LineEditor::Typed typed = editor.read("\001\033[1m\001host>\001\033[0m\001 ");
    EXPECT_EQ(LineEditor::Ending::Line, typed.ending);
    EXPECT_EQ("getCtStatus 1", typed.line);
    EXPECT_EQ("\033[1mhost>\033[0m ", output.text());
}

TEST_F(PlainLineEditorTest, PrintedTextIsThereAtOnce)
{
    editor.print("a message\n");
    EXPECT_EQ("a message\n", output.text());
}

} // namespace
