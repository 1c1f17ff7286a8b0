#pragma once

#include <functional>
#include <string>
#include <vector>

namespace node::reference
{

/// Makes what stands on the screen after lines were typed at the prompt of a fresh node.
using Transcript = std::function<std::string(const std::vector<std::string>& lines)>;

/// Every command with its arguments, and at work, in Markdown.
std::string commandReference(const Transcript& transcript);

} // namespace node::reference
