#pragma once

#include <iosfwd>
#include <string>

#include "node/cli/Session.h"

namespace node::cli
{

/// What a script does about a line that fails.
enum class AtFailure
{
    Stop,
    GoOn,
};

/// Carries out line after line until the input ends, a line says "exit", or what is printed can no longer be written.
/// @param input  borrowed
/// @param name   of the input, to begin errors with: "NAME:LINE: ..."
/// @return the status of the first line that failed
/// @throws InputError when the input cannot be read on
Status runScript(Session& session, std::istream& input, const std::string& name, AtFailure atFailure);

} // namespace node::cli
