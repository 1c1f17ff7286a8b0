#pragma once

#include <string>
#include <vector>

#include "node/report/Field.h"

namespace node::commands
{

/// What a command answered.
struct Outcome
{
    int result = 0;                      ///< 0 done, 1 failed
    std::string output;                  ///< the report as the module wrote it, or the value that was read
    std::vector<report::Field> fields{}; ///< what the output says, as values; none of a report, which says them itself
    bool isReport = false;               ///< the output is a report, of a command that succeeded
};

/// What the output says, as values. Those of a report are read from it now: most reports are only shown.
std::vector<report::Field> fieldsOf(const Outcome& outcome);

} // namespace node::commands
