#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "node/cli/Desk.h"
#include "node/cli/RecordingCommands.h"

/// A desk with recording commands beside a real link and a real plan of faults.
class RecordingDesk : public node::cli::Desk
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

    void start(const node::startup::Configuration& configuration) override
    {
        m_link.reset();
        started.push_back(configuration);
        if (refuses)
        {
            throw node::startup::StartUpError("the desk refuses");
        }
        m_link.emplace(configuration.link);
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

    std::optional<node::radio::RadioLink> m_link{std::in_place};
};
