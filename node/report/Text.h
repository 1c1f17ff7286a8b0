#pragma once

#include <string_view>

/// Pieces of a report's line. They point into the text that they were taken from.
namespace node::report
{

inline constexpr std::string_view Blanks = " \t\r";

inline bool isBlank(char character)
{
    return Blanks.find(character) != std::string_view::npos;
}

/// The text without the blanks around it.
inline std::string_view trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(Blanks);
    return first == std::string_view::npos ? "" : text.substr(first, text.find_last_not_of(Blanks) + 1 - first);
}

} // namespace node::report
