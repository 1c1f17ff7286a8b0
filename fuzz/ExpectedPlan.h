#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "node/services/FaultPlan.h"

namespace fuzz
{

/// What a fault does to a call.
struct Strike
{
    /// Whether the call's service is left out.
    bool refuses() const
    {
        return code >= firstRefusal;
    }

    std::int32_t code;
    std::int32_t firstRefusal; ///< of the call's codes
    std::string text;
};

/// An exception that a call is to throw.
struct Thrown
{
    std::string text;
};

/// The plan of faults a second time: which calls are struck, from what each fault says of itself.
class ExpectedPlan
{
public:
    void add(const node::services::Fault& fault);
    void clear();

    /// A call that is made.
    /// @throws Thrown
    std::optional<Strike> strike(std::string_view call, RadioChannel channel);

    /// A line for each fault: its call, how often it was seen and how often hit.
    std::string counts() const;

private:
    std::vector<node::services::PlannedFault> m_faults;
};

std::string countsOf(const std::vector<node::services::PlannedFault>& faults);

} // namespace fuzz
