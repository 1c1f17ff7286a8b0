#pragma once

#include <string>
#include <vector>

#include "node/scenario/Scenario.h"

/// A scenario with every member shown, so that a test sees what it did not ask for, too.
namespace portrait
{

/// "hop.distance_km = 10": one line for each member, named after the key that sets it. A member without a key has a
/// name with a blank in it.
std::vector<std::string> of(const node::scenario::Scenario& scenario);

/// The lines of `after` that are not among the lines of `before`.
std::vector<std::string> changes(const node::scenario::Scenario& before, const node::scenario::Scenario& after);

} // namespace portrait
