#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "node/radio/RadioLink.h"
#include "node/services/FaultPlan.h"

namespace node::startup
{

/// What the broker holds under a key.
enum class BrokerEntry
{
    Service,   ///< as it should be
    Absent,    ///< no entry, as on a node where the service is down
    Empty,     ///< an entry without an object
    OtherType, ///< an object of another interface
};

/// A node to start.
struct Configuration
{
    radio::LinkSetup link;
    std::optional<int> channelsTold;           ///< number of radio channels that the module is told; none: the link's
    std::map<std::string, BrokerEntry> broker; ///< by key; keys that are not there have their service
    bool runsWithFailedModules = false;        ///< keeps a node whose modules refuse their initialisation
    std::vector<services::Fault> faults;       ///< planned before the first call
};

} // namespace node::startup
