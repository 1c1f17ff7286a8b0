#pragma once

#include "fuzz/expected/Platform.h"
#include "radio/RadioChannel.h"

namespace expected
{

/// The carrier-termination report.
void getCtStatus(const Platform& platform, RadioChannel channel, Outcome& outcome);

} // namespace expected
