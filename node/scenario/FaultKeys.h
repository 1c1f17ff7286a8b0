#pragma once

#include <functional>
#include <string>
#include <vector>

#include "node/services/FaultPlan.h"

namespace node::scenario
{

/// Holds the keys of a fault against the call and against each other.
/// @param placeOf  where a key stands; for a key that is not there, where the fault does
/// @throws InputError
void checkFault(const services::Fault& fault, const std::function<std::string(const std::string& key)>& placeOf);

/// A fault from the words that somebody typed: the call, and "KEY=VALUE" for some of the other keys.
/// A call that is only made at the start is refused: the start is over.
/// @param words  not empty
/// @param place  of the words: "addFault"
/// @throws InputError
services::Fault typedFault(const std::vector<std::string>& words, const std::string& place);

/// What may stand for the last of the words that typedFault() reads: a call, or "KEY=" for a key that is not there yet.
std::vector<std::string> typedFaultChoices(const std::vector<std::string>& words);

} // namespace node::scenario
