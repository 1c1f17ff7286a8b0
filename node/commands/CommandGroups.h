#pragma once

#include "node/commands/Command.h"

namespace node::commands
{

/// Of the module.
CommandGroup debugCommands();

/// Of the link: weather, distance, time.
CommandGroup linkCommands();

/// Of the node: scenarios, faults, trace.
CommandGroup nodeCommands();

/// Of the command line itself.
CommandGroup consoleCommands();

} // namespace node::commands
