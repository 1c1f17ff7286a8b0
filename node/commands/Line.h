#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace node::commands
{

/// The words of a line; none when it is empty or a comment, which begins with '#'. Double quotes keep blanks in a word;
/// between them, a backslash takes the next letter as it is.
/// @throws InputError when a quotation mark is not closed
std::vector<std::string> splitLine(const std::string& line);

/// A line up to the cursor.
struct UnfinishedLine
{
    std::vector<std::string> words; ///< the last one is the one at the cursor, "" between two; none in a comment
    std::size_t begin = 0;          ///< where in the line the last word begins
    bool inQuotes = false;          ///< whether the last word has a quotation mark open
};

/// The words of a line that is still typed, by the rules of splitLine().
UnfinishedLine splitUnfinished(const std::string& line);

/// The word as splitLine() reads it, in quotation marks where it cannot do without.
std::string asTyped(const std::string& word);

/// The word as splitLine() reads it, in quotation marks.
std::string inQuotationMarks(const std::string& word);

} // namespace node::commands
