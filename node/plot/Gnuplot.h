#pragma once

#include <string>
#include <vector>

namespace node::plot
{

/// Runs the gnuplot that PATH finds. Neither the user's settings nor the locale have a say in what it does.
/// @param script  what it reads from standard input
/// @return what it wrote to standard output, which is something
/// @throws PlotError when it is not installed, and when it fails
std::string runGnuplot(const std::string& script, const std::vector<std::string>& arguments = {});

} // namespace node::plot
