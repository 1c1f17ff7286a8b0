#pragma once

#include <string>
#include <vector>

#include "node/commands/Command.h"

namespace node::reference
{

/// Lines that show a command at work on the node that starts by itself; none for a command that is at work with files
/// or with a terminal.
std::vector<std::string> promptExample(const commands::Command& command);

} // namespace node::reference
