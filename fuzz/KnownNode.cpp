#include "fuzz/KnownNode.h"

#include <fmt/format.h>

#include "fuzz/Target.h"
#include "node/trace/TraceLibrary.h"

namespace fuzz
{

KnownNode::KnownNode(const node::startup::Configuration& configuration) : m_node(configuration)
{
    for (RadioChannel channel = 1; channel <= m_node.link().numberOfChannels(); ++channel)
    {
        m_told.emplace(channel, stateOf(channel));
    }
    expect(m_node.commands() != nullptr, "a node without faults has its commands");
}

node::radio::RadioLink& KnownNode::link()
{
    return m_node.link();
}

bool KnownNode::hasChannel(RadioChannel channel)
{
    return m_node.link().hasChannel(channel);
}

node::radio::Channel KnownNode::stateOf(RadioChannel channel)
{
    return m_node.link().snapshot(channel).state;
}

Told& KnownNode::told(RadioChannel channel)
{
    return m_told.at(channel);
}

node::radio::Ticks KnownNode::time() const
{
    return m_time;
}

void KnownNode::advance(node::radio::Ticks time)
{
    m_node.link().advance(time);
    m_time += time;
}

void KnownNode::planFault(const node::services::Fault& fault)
{
    m_plan.add(fault);
    m_node.faults().add(fault);
}

void KnownNode::dropFaults()
{
    m_plan.clear();
    m_node.faults().clear();
}

bool KnownNode::callTopApi(const char* call, RadioChannel channel, bool refused, const std::function<void()>& done)
{
    return callPlatform(call, channel, refused || !hasChannel(channel), done);
}

bool KnownNode::callPlatform(const char* call, RadioChannel channel, bool refused, const std::function<void()>& done)
{
    m_served = false;
    m_strike = m_plan.strike(call, channel);
    m_served = !(m_strike && m_strike->refuses()) && !refused;
    if (m_served)
    {
        done();
    }
    return m_strike ? !m_strike->refuses() : !refused;
}

std::optional<Strike> KnownNode::strike(std::string_view call, RadioChannel channel)
{
    return m_plan.strike(call, channel);
}

bool KnownNode::served() const
{
    return m_served;
}

const std::optional<Strike>& KnownNode::lastStrike() const
{
    return m_strike;
}

Answered KnownNode::operate(const char* name, const std::function<int()>& expectation,
                            const std::function<int(Commands&, Answered&)>& operation)
{
    Answered wanted;
    m_served = false;
    m_strike.reset();
    try
    {
        wanted.result = expectation();
    }
    catch (const Thrown& thrown)
    {
        wanted.thrown = fmt::format("threw {}", thrown.text.c_str()); // as an exception tells it
    }
    Answered answered;
    try
    {
        answered.result = operation(*m_node.commands(), answered);
    }
    catch (const node::services::PlannedException& planned)
    {
        answered.thrown = std::string("threw ") + planned.what();
    }
    node::trace::completeOpenMessage();
    expectSame(name, wanted.thrown, answered.thrown);
    expectSame(name, wanted.result.value_or(-1), answered.result.value_or(-1));
    expect(answered.result.has_value() || answered.report == Before, "what throws reports nothing", answered.report);
    m_seen += fmt::format("{}: {} {}\n{}\n", name, answered.result.value_or(-1), answered.thrown, answered.report);
    return answered;
}

void KnownNode::look()
{
    expectSame("faults strike as often as they say", m_plan.counts(), countsOf(m_node.faults().list()));
    expectSame("time goes on by what is told", m_time.count(), m_node.link().conditions().time.count());
    for (const auto& [channel, told] : m_told)
    {
        const node::radio::Snapshot now = m_node.link().snapshot(channel);
        expectKnown(told, now.state);
        expectConsistent(now);
        m_seen += textOf(now);
    }
}

const std::string& KnownNode::seen() const
{
    return m_seen;
}

} // namespace fuzz
