#include "node/commands/Desk.h"

#include <stdexcept>

namespace node::commands
{

bool NodeDesk::hasNode() const
{
    return m_node != nullptr;
}

IRlbspKelApi::KelDebugCmdCallback& NodeDesk::commands()
{
    IRlbspKelApi::KelDebugCmdCallback* const commands = node().commands();
    if (commands == nullptr)
    {
        throw std::runtime_error("no debug-command callback is installed");
    }
    return *commands;
}

radio::RadioLink& NodeDesk::link()
{
    return node().link();
}

services::FaultPlan& NodeDesk::faults()
{
    return node().faults();
}

void NodeDesk::start(const scenario::Scenario& scenario)
{
    m_scenario = scenario;
    ++m_starts;
    m_node.reset(); // one node runs at a time
    m_node = std::make_unique<startup::Node>(m_scenario.configuration);
}

const scenario::Scenario& NodeDesk::scenario() const
{
    return m_scenario;
}

int NodeDesk::starts() const
{
    return m_starts;
}

startup::Node& NodeDesk::node()
{
    if (m_node == nullptr)
    {
        throw startup::StartUpError("node: found none running, expected one; \"loadScenario\" starts one");
    }
    return *m_node;
}

} // namespace node::commands
