#pragma once

#include <cstdint>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "node/services/PlatformCall.h"
#include "radio/RadioChannel.h"

namespace node::services
{

/// What is to happen to a call of the platform.
struct Fault
{
    const PlatformCall* call = nullptr;  ///< never null in a plan
    std::optional<RadioChannel> channel; ///< none: all of them
    std::optional<std::int32_t> code;    ///< none: the call's refusal
    std::optional<std::string> text;     ///< none: "planned fault"
    bool throws = false;                 ///< with the text, instead of an answer
    std::uint64_t fromCall = 1;          ///< of those since the fault was planned; counts from 1
    std::optional<std::uint64_t> calls;  ///< how many it hits; none: all that follow
};

/// A fault, and what came of it so far.
struct PlannedFault
{
    Fault fault;
    std::uint64_t seen = 0; ///< calls that it could have hit
    std::uint64_t hits = 0;
};

/// What a call answers in place of the service.
struct PlannedAnswer
{
    std::int32_t code = 0;
    std::string text;
    bool failed = false; ///< the code refuses: the service does nothing
};

/// Thrown out of a call by plan.
class PlannedException : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// The faults that every call of the services passes. Of several that wait for the same call, each counts it, and the
/// one planned first answers. All members may be called from any thread.
class FaultPlan
{
public:
    explicit FaultPlan(const std::vector<Fault>& faults = {});

    void add(const Fault& fault);
    void clear();

    /// In the order in which they were planned.
    std::vector<PlannedFault> list() const;

    /// A call comes by.
    /// @param call     one of platformCalls()
    /// @param channel  that it is about; 0 for a call without one
    /// @return what it shall answer; none when it shall do as always
    /// @throws PlannedException when it shall throw
    std::optional<PlannedAnswer> pass(std::string_view call, RadioChannel channel);

private:
    mutable std::mutex m_mutex;
    std::vector<PlannedFault> m_faults;
};

/// Answers a call by the plan when that refuses it, otherwise by `work`. A planned code that is no refusal, and its
/// text, take the place of the worked-out ones.
/// @param work      does what the call is for; answers the result
/// @param asResult  makes a result of a planned answer
template <typename Work, typename AsResult>
auto answerByPlan(FaultPlan& faults, std::string_view call, RadioChannel channel, const Work& work,
                  const AsResult& asResult)
{
    const auto planned = faults.pass(call, channel);
    if (planned && planned->failed)
    {
        return asResult(*planned);
    }
    const auto result = work();
    return planned ? asResult(*planned) : result;
}

} // namespace node::services
