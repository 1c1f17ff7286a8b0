#pragma once

#include "node/radio/RadioLink.h"
#include "node/services/FaultPlan.h"

namespace node::services
{

/// What every service answers from. Both are borrowed and outlive the services.
struct ServiceContext
{
    radio::RadioLink& link;
    FaultPlan& faults;
};

} // namespace node::services
