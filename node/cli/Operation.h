#pragma once

#include <functional>
#include <string>
#include <vector>

#include "radio/IRlbspKelApi.h"

namespace node::cli
{

/// An argument as the user types it.
struct Argument
{
    std::string name;
    std::string form;    ///< what is accepted: "a number from 0 to 255"
    std::string meaning; ///< what it does
};

/// What a command answered.
struct Outcome
{
    int result = 0;     ///< 0 done, 1 failed
    std::string output; ///< the report as the module wrote it, or the value that was read
};

/// A debug command: its words and what they call.
struct Operation
{
    std::string name;
    std::string summary;
    std::vector<Argument> arguments;

    /// Calls the command with the words that follow its name.
    /// @throws UsageError, before anything is called, when they do not fit
    std::function<Outcome(IRlbspKelApi::KelDebugCmdCallback&, const std::vector<std::string>& words)> call;
};

/// Every debug command of the module, in the order of its callback interface.
const std::vector<Operation>& operations();

/// The operation of that name; null when there is none.
const Operation* findOperation(const std::string& name);

} // namespace node::cli
