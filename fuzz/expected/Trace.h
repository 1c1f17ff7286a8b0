#pragma once

#include <string>

#include "fuzz/expected/Platform.h"

/// The three kinds of messages. Each is given whether its channel is active.
namespace expected
{

/// The channel of all messages but those of the carrier-termination report.
inline constexpr auto CommandsChannel = "KEL.KDC.KelDebugCmd";

/// A line; an empty function for one that names no place.
void traceLine(Outcome& outcome, const std::string& channel, bool active, const std::string& function,
               const std::string& text);

/// A message in three pieces, which a channel that is silent is never given.
void traceBuffer(Outcome& outcome, bool active, const std::string& function, const std::string& resultText);

/// The API's own text, without a line end, left open.
void traceBare(Outcome& outcome, bool active, const std::string& function, const std::string& resultText);

} // namespace expected
