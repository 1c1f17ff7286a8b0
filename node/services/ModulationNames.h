#pragma once

#include <optional>
#include <string>
#include <vector>

#include "kel_top_api/ModulationAndCode.h"
#include "node/radio/Modulation.h"

namespace node::services
{

/// The link's modulation of a row of the API's table; none for the row that names no modulation.
std::optional<radio::ModulationIndex> modulationOf(const kel_top_api::ModulationAndCode& row);

/// The API's name of a modulation of the link.
std::string nameOf(const radio::Modulation& modulation);

/// The names of all modulations, from the most robust to the fastest.
std::vector<std::string> modulationNames();

} // namespace node::services
