#pragma once

#include "node/cli/Command.h"

namespace node::cli
{

/// Of the module.
CommandGroup debugCommands();

/// Of the link: weather, distance, time.
CommandGroup linkCommands();

/// Of the node: scenarios, faults, trace.
CommandGroup nodeCommands();

} // namespace node::cli
