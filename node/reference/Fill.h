#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace node::reference
{

inline constexpr std::size_t ScreenColumns = 80;

/// The words in lines of at most so many columns, as many on each as fit.
/// @param gap     between two words of a line
/// @param indent  before each line
std::string fill(const std::vector<std::string>& words, const std::string& gap, const std::string& indent,
                 std::size_t columns = ScreenColumns);

/// The words of a text in such lines.
std::string fillText(const std::string& text, const std::string& indent, std::size_t columns = ScreenColumns);

} // namespace node::reference
