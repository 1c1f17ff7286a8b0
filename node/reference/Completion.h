#pragma once

#include <string>

#include "node/terminal/LineEditor.h"

/// What may be typed next, from the command table.
namespace node::reference
{

/// The words that may stand at the end of a line: whole ones, sorted, in quotation marks where they need them.
/// @param line  what is typed, up to the cursor
terminal::Candidates complete(const std::string& line);

/// What may come next, in lines: the commands that fit what is typed with their summaries, or the next argument with
/// its form, its meaning and the words to choose from. "" inside quotation marks, where '?' is a letter.
std::string explain(const std::string& line);

} // namespace node::reference
