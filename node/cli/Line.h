#pragma once

#include <string>
#include <vector>

namespace node::cli
{

/// The words of a line; none when it is empty or a comment, which begins with '#'. Double quotes keep blanks in a word;
/// between them, a backslash takes the next letter as it is.
/// @throws InputError when a quotation mark is not closed
std::vector<std::string> splitLine(const std::string& line);

} // namespace node::cli
