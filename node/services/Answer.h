#pragma once

#include <cstdint>
#include <string>

#include "node/radio/RadioLink.h"
#include "radio/RadioChannel.h"

/// How the services word their answers.
namespace node::services
{

/// The text of a refusal for a channel that the link does not have.
std::string unknownChannel(RadioChannel channel, const radio::RadioLink& link);

/// The state of a canceller.
std::string stateOf(const radio::Xpic& xpic);

/// Decibels as the records count them, rounded to the nearest.
std::int32_t hundredths(double decibels);
std::int32_t tenths(double decibels);

} // namespace node::services
