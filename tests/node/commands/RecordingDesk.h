#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "node/commands/Desk.h"
#include "node/commands/RecordingCommands.h"

/// A desk with recording commands beside a real link and a real plan of faults.
class RecordingDesk : public node::commands::Desk
{
public:
    bool hasNode() const override
    {
        return m_link.has_value();
    }

    IRlbspKelApi::KelDebugCmdCallback& commands() override
    {
        expectNode();
        return recorder;
    }

    node::radio::RadioLink& link() override
    {
        expectNode();
        return *m_link;
    }

    node::services::FaultPlan& faults() override
    {
        expectNode();
        return plan;
    }

    void start(const node::scenario::Scenario& scenario) override
    {
        m_link.reset();
        m_scenario = scenario;
        started.push_back(scenario.configuration);
        if (refuses)
        {
            throw node::startup::StartUpError("the desk refuses");
        }
        m_link.emplace(scenario.configuration.link);
    }

    const node::scenario::Scenario& scenario() const override
    {
        return m_scenario;
    }

    int starts() const override
    {
        return static_cast<int>(started.size());
    }

    /// Takes the node away.
    void clear()
    {
        m_link.reset();
    }

    RecordingCommands recorder;
    node::services::FaultPlan plan;
    std::vector<node::startup::Configuration> started;
    bool refuses = false; ///< the nodes that are to start from now on

private:
    void expectNode() const
    {
        if (!hasNode())
        {
            throw node::startup::StartUpError("the desk is empty");
        }
    }

    node::scenario::Scenario m_scenario;
    std::optional<node::radio::RadioLink> m_link{std::in_place};
};
