#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "fuzz/ExpectedPlan.h"
#include "fuzz/NodeAnswers.h"
#include "fuzz/NodeStates.h"
#include "node/startup/Node.h"

namespace fuzz
{

/// A node, and what is known of it from what was done to it.
class KnownNode
{
public:
    using Commands = IRlbspKelApi::KelDebugCmdCallback;

    /// @throws Finding where the node has no commands
    explicit KnownNode(const node::startup::Configuration& configuration);

    node::radio::RadioLink& link();
    bool hasChannel(RadioChannel channel);
    node::radio::Channel stateOf(RadioChannel channel);

    /// What the channel was told: an operation that tells it more writes it here.
    Told& told(RadioChannel channel);

    /// How long the node has lived.
    node::radio::Ticks time() const;
    void advance(node::radio::Ticks time);

    void planFault(const node::services::Fault& fault);
    void dropFaults();

    /// A call of the top-level API about a channel.
    /// @param refused  by the service, where it comes to that
    /// @param done     what is known once the service has done its work
    /// @return whether it succeeds
    bool callTopApi(
        const char* call, RadioChannel channel, bool refused = false, const std::function<void()>& done = [] {});

    /// A call of another interface, likewise. @param refused  the service refuses
    bool callPlatform(
        const char* call, RadioChannel channel, bool refused, const std::function<void()>& done = [] {});

    /// A call that answers with a number or a text, which nobody refuses.
    /// @throws Thrown
    std::optional<Strike> strike(std::string_view call, RadioChannel channel);

    /// Of the last call that an operation was expected to make: whether its service did its work.
    bool served() const;
    const std::optional<Strike>& lastStrike() const;

    /// Works out what the operation is to answer, calls it and compares.
    /// @param expectation  the result; may throw Thrown
    /// @return what it answered
    Answered operate(const char* name, const std::function<int()>& expectation,
                     const std::function<int(Commands&, Answered&)>& operation);

    /// @throws Finding where the node is not as it is known
    void look();

    /// All that was seen of it.
    const std::string& seen() const;

private:
    node::startup::Node m_node;
    ExpectedPlan m_plan;
    std::map<RadioChannel, Told> m_told;
    node::radio::Ticks m_time{0};
    std::string m_seen;
    bool m_served = false;
    std::optional<Strike> m_strike;
};

} // namespace fuzz
