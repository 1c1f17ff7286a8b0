#pragma once

#include <string>

#include "node/terminal/Interrupt.h"
#include "node/terminal/LineEditor.h"

namespace node::terminal
{

/// Lets a person type lines as the terminal itself does, with its few keys, for where standard output is no terminal.
///
/// While one exists, Ctrl-C ends the line that is typed and not the program. Made and used as a LineEditor is.
class PlainLines
{
public:
    /// Shows the prompt, on standard error, which nobody else writes to meanwhile, and lets a line be typed. Afterwards
    /// the cursor is at the beginning of a row, where the line was typed behind the prompt and not ahead of it.
    LineEditor::Typed read(const std::string& prompt);

private:
    Interrupt m_interrupt;
    std::string m_bytes; ///< that were read and not taken yet
};

} // namespace node::terminal
