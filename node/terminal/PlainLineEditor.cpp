#include "node/terminal/LineEditor.h"

#include <cstdio>

#include "node/terminal/PlainLines.h"

namespace node::terminal
{

/// The line editor of a build without libedit.
class LineEditor::Implementation
{
public:
    PlainLines lines{stdout};
};

// Declared for an editor that keeps the helper.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
LineEditor::LineEditor(Helper /*helper*/, const std::string& /*historyFile*/)
    : m_implementation(std::make_unique<Implementation>())
{
}

LineEditor::~LineEditor() = default;

LineEditor::Typed LineEditor::read(const std::string& prompt)
{
    std::string shown = prompt;
    std::erase(shown, '\001'); // the terminal itself need not know which bytes take no room
    return m_implementation->lines.read(shown);
}

void LineEditor::print(const std::string& text)
{
    std::fwrite(text.data(), 1, text.size(), stdout);
    std::fflush(stdout);
}

} // namespace node::terminal
