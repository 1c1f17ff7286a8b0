#pragma once

#include "doubles/TopApiResponses.h"

namespace doubles
{

/// What the top-level API answers. Every call is logged with its record; optional members only where present.
TopApiResponses& topApi();

} // namespace doubles
