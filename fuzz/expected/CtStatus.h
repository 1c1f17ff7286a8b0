#pragma once

#include <array>

#include "fuzz/expected/Platform.h"
#include "radio/RadioChannel.h"

namespace expected
{

/// The carrier-termination report.
void getCtStatus(const Platform& platform, RadioChannel channel, Outcome& outcome);

/// What the near end is sent for a channel, byte by byte.
std::array<unsigned char, 88> identityRequest(RadioChannel channel);

} // namespace expected
