#pragma once

#include <string>
#include <vector>

namespace node::cli
{

/// What stands on the screen after lines were typed at the prompt of a node that just started: prompts, lines, answers.
/// Time goes on when a line says so.
std::string transcript(const std::vector<std::string>& lines);

} // namespace node::cli
