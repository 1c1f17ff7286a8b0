#pragma once

#include <string>

#include "kel_top_api/ModulationAndCode.h"
#include "node/radio/Modulation.h"

namespace node::services
{

/// The link's modulation of a row of the API's table.
radio::Modulation modulationOf(const kel_top_api::ModulationAndCode& row);

/// The API's name of a modulation of the link; "UNDEFINED" when the table does not know it.
std::string nameOf(const radio::Modulation& modulation);

} // namespace node::services
