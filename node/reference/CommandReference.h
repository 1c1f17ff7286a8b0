#pragma once

#include <string>

namespace node::reference
{

/// Every command with its arguments, in Markdown.
std::string commandReference();

} // namespace node::reference
