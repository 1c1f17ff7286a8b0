#pragma once

#include <cstdio>
#include <string>

#include "node/terminal/Interrupt.h"
#include "node/terminal/LineEditor.h"

namespace node::terminal
{

/// Lets a person type lines as the terminal itself does, with its few keys, for where standard output is no terminal
/// and where there is no line editor.
///
/// While one exists, Ctrl-C ends the line that is typed and not the program. Made and used as a LineEditor is.
class PlainLines
{
public:
    /// @param screen  where the prompt is shown; borrowed
    explicit PlainLines(std::FILE* screen);

    /// Shows the prompt and lets a line be typed. Afterwards the cursor is at the beginning of a row, unless the line
    /// had been typed before the prompt was shown.
    LineEditor::Typed read(const std::string& prompt);

private:
    void show(const std::string& text) const;

    std::FILE* m_screen;
    Interrupt m_interrupt;
    std::string m_bytes; ///< that were read and not taken yet
};

} // namespace node::terminal
