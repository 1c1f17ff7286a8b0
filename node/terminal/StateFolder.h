#pragma once

#include <string>

namespace node::terminal
{

/// Where a program keeps what lasts: "$XDG_STATE_HOME/PROGRAM", or "~/.local/state/PROGRAM"; "" without a home.
std::string stateFolder(const std::string& program);

} // namespace node::terminal
