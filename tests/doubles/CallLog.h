#pragma once

#include <string>
#include <vector>

namespace doubles
{

/// What the module asked of the platform, one line a call, in the order of the calls.
using CallLog = std::vector<std::string>;

/// The log that all recording doubles write.
CallLog& calls();

} // namespace doubles
