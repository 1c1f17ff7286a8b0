#include "fuzz/ExpectedPlan.h"

#include <limits>

#include <fmt/format.h>

namespace fuzz
{

namespace
{

using node::services::AnswerKind;
using node::services::Fault;
using node::services::PlannedFault;

std::int32_t firstRefusalOf(AnswerKind kind)
{
    if (kind == AnswerKind::TopApiResult)
    {
        return 1;
    }
    if (kind == AnswerKind::PlatformResult || kind == AnswerKind::PlatformCode)
    {
        return 0x8000;
    }
    return std::numeric_limits<std::int32_t>::max(); // numbers and texts refuse nothing
}

std::int32_t usualCodeOf(AnswerKind kind)
{
    const bool refuses = kind != AnswerKind::Number && kind != AnswerKind::Text && kind != AnswerKind::Nothing;
    return refuses ? firstRefusalOf(kind) : 0;
}

} // namespace

void ExpectedPlan::add(const Fault& fault)
{
    m_faults.push_back({fault});
}

void ExpectedPlan::clear()
{
    m_faults.clear();
}

std::optional<Strike> ExpectedPlan::strike(std::string_view call, RadioChannel channel)
{
    std::optional<Strike> first;
    bool throws = false;
    for (PlannedFault& planned : m_faults)
    {
        const Fault& fault = planned.fault;
        if (fault.call->name != call || (fault.channel && *fault.channel != channel))
        {
            continue;
        }
        planned.seen += 1;
        const bool begun = planned.seen >= fault.fromCall;
        const bool over = fault.calls && planned.hits >= *fault.calls;
        if (first || !begun || over)
        {
            continue;
        }
        planned.hits += 1;
        throws = fault.throws;
        first = Strike{fault.code.value_or(usualCodeOf(fault.call->kind)), firstRefusalOf(fault.call->kind),
                       fault.text.value_or("planned fault")};
    }
    if (throws)
    {
        throw Thrown{first->text};
    }
    return first;
}

std::string ExpectedPlan::counts() const
{
    return countsOf(m_faults);
}

std::string countsOf(const std::vector<PlannedFault>& faults)
{
    std::string lines;
    for (const PlannedFault& planned : faults)
    {
        lines += fmt::format("{}: seen {}, hit {}\n", planned.fault.call->name, planned.seen, planned.hits);
    }
    return lines;
}

} // namespace fuzz
