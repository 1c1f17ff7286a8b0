#pragma once

#include <string>

#include "node/commands/Command.h"

namespace node::reference
{

/// How the program is called, its options, and every command, a line each.
std::string overview();

/// Every command under the heading of its group, a line each.
std::string commandList();

/// One command: its summary and each of its arguments with form and meaning.
std::string describe(const commands::Command& command);

/// "setRain <rate> [<over>]"
std::string usage(const commands::Command& command);

/// "<rate>", "[<over>]", "[-n <seconds>]"
std::string usage(const commands::Argument& argument);

/// What "help TOPIC" prints.
/// @throws InputError for what is neither a command nor another topic
std::string helpOn(const std::string& topic);

} // namespace node::reference
