#pragma once

#include <string>
#include <vector>

#include "node/commands/Value.h"

namespace node::commands
{

/// The trace channels whose names fit a pattern.
/// @throws Misfit of the argument "channels" when there are channels and none fits
std::vector<std::string> traceChannelsLike(const ChannelPattern& pattern);

} // namespace node::commands
