#include "node/services/FaultPlan.h"

namespace node::services
{

namespace
{

bool concerns(const Fault& fault, std::string_view call, RadioChannel channel)
{
    return fault.call->name == call && (!fault.channel || *fault.channel == channel);
}

/// Counts the call. @return whether it is one of those to hit
bool reaches(PlannedFault& planned)
{
    ++planned.seen;
    const Fault& fault = planned.fault;
    return planned.seen >= fault.fromCall && (!fault.calls || planned.hits < *fault.calls);
}

std::int32_t refusalOf(const PlatformCall& call)
{
    switch (call.kind)
    {
    case AnswerKind::TopApiResult:
        return TopApiRefusal;
    case AnswerKind::PlatformResult:
    case AnswerKind::PlatformCode:
        return PlatformRefusal;
    case AnswerKind::Number:
    case AnswerKind::Text:
    case AnswerKind::Nothing:
        break;
    }
    return 0;
}

} // namespace

FaultPlan::FaultPlan(const std::vector<Fault>& faults)
{
    for (const Fault& fault : faults)
    {
        m_faults.push_back({fault});
    }
}

void FaultPlan::add(const Fault& fault)
{
    const std::lock_guard lock(m_mutex);
    m_faults.push_back({fault});
}

void FaultPlan::clear()
{
    const std::lock_guard lock(m_mutex);
    m_faults.clear();
}

std::vector<PlannedFault> FaultPlan::list() const
{
    const std::lock_guard lock(m_mutex);
    return m_faults;
}

std::optional<PlannedAnswer> FaultPlan::pass(std::string_view call, RadioChannel channel)
{
    const std::lock_guard lock(m_mutex);
    PlannedFault* hit = nullptr;
    for (PlannedFault& planned : m_faults)
    {
        if (concerns(planned.fault, call, channel) && reaches(planned) && hit == nullptr)
        {
            hit = &planned;
        }
    }
    if (hit == nullptr)
    {
        return std::nullopt;
    }
    ++hit->hits;
    const Fault& fault = hit->fault;
    const std::string text = fault.text.value_or("planned fault");
    if (fault.throws)
    {
        throw PlannedException(text);
    }
    const std::int32_t code = fault.code.value_or(refusalOf(*fault.call));
    return PlannedAnswer{code, text, fault.call->fails(code)};
}

} // namespace node::services
