#pragma once

#include <memory>

#include "radio/IDpdControllerSplit.h"
#include "radio/RadioChannel.h"

namespace bench
{

/// Virtual operations that do nothing, and that nobody who calls them can see through: what a virtual call costs.
class EmptyCommands
{
public:
    virtual ~EmptyCommands() = default;

    virtual int command(RadioChannel channel) = 0;
    virtual int command(RadioChannel channel, DpdCoeffs coefficients) = 0;
    virtual int command(RadioChannel channel, DpdCoeffs* coefficients) = 0;
};

std::unique_ptr<EmptyCommands> makeEmptyCommands();

} // namespace bench
