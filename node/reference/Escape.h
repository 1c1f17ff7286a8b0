#pragma once

#include <string>

/// Texts as they are, for readers that take some letters as marks.
namespace node::reference
{

/// In a line of Markdown, or in a cell of a table.
std::string markdown(const std::string& text);

/// In lines of a manual page.
std::string roff(const std::string& text);

} // namespace node::reference
