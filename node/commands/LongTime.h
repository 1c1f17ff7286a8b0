#pragma once

#include <functional>

#include "node/commands/Console.h"
#include "node/radio/RadioLink.h"

namespace node::commands
{

/// Lets time go on. Where that takes long, the user sees how far it has come and may end it.
/// @throws Interrupted when the user does; the time that has gone stays
void letTimeGoOn(radio::RadioLink& link, Console& console, radio::Ticks time);

/// Lets time go on step by step, long or not.
/// @param atStep  called after each
/// @throws Interrupted
void letTimeGoOn(radio::RadioLink& link, Console& console, radio::Ticks time, radio::Ticks step,
                 const std::function<void()>& atStep);

} // namespace node::commands
