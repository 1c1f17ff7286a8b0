#pragma once

#include <string>
#include <vector>

namespace node::reference
{

/// The words in lines of at most 80 columns, as many on each as fit.
/// @param gap     between two words of a line
/// @param indent  before each line
std::string fill(const std::vector<std::string>& words, const std::string& gap, const std::string& indent);

} // namespace node::reference
