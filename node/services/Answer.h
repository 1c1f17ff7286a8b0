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

/// The options of an acquisition in the API's one number: 1 retries, 2 re-acquires, 3 does both.
std::uint32_t optionOf(const radio::Xpic& xpic);
void setOption(radio::Xpic& xpic, std::uint32_t option);

/// Decibels as the records count them, rounded to the nearest.
std::int32_t hundredths(double decibels);
std::int32_t tenths(double decibels);

} // namespace node::services
