#pragma once

#include <string>

#include "node/cli/Command.h"

namespace node::cli
{

/// How the program is called, and every command, a line each.
std::string overview();

/// One command: its summary and each of its arguments with form and meaning.
std::string describe(const Command& command);

/// What "help TOPIC" prints.
/// @throws InputError for what is neither a command nor another topic
std::string helpOn(const std::string& topic);

} // namespace node::cli
