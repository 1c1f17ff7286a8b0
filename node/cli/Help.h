#pragma once

#include <string>

#include "node/cli/Operation.h"

namespace node::cli
{

/// How the program is called, and every operation with its arguments, a line each.
std::string overview();

/// One operation: its summary and each of its arguments with form and meaning.
std::string describe(const Operation& operation);

} // namespace node::cli
