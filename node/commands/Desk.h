#pragma once

#include <memory>

#include "node/radio/RadioLink.h"
#include "node/scenario/Scenario.h"
#include "node/services/FaultPlan.h"
#include "node/startup/Node.h"
#include "radio/IRlbspKelApi.h"

namespace node::commands
{

/// What commands work on.
class Desk
{
public:
    Desk() = default;
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;
    virtual ~Desk() = default;

    virtual bool hasNode() const = 0;

    // Each throws StartUpError where there is no node.

    /// @throws std::runtime_error where the module installed no callback
    virtual IRlbspKelApi::KelDebugCmdCallback& commands() = 0;
    virtual radio::RadioLink& link() = 0;
    virtual services::FaultPlan& faults() = 0;

    /// Ends the node that runs and starts another one.
    /// @throws StartUpError when that does not start; then none runs
    virtual void start(const scenario::Scenario& scenario) = 0;

    /// The scenario that was started last, and how many have been.
    virtual const scenario::Scenario& scenario() const = 0;
    virtual int starts() const = 0;
};

/// A desk with a simulated node on it.
class NodeDesk : public Desk
{
public:
    bool hasNode() const override;
    IRlbspKelApi::KelDebugCmdCallback& commands() override;
    radio::RadioLink& link() override;
    services::FaultPlan& faults() override;
    void start(const scenario::Scenario& scenario) override;
    const scenario::Scenario& scenario() const override;
    int starts() const override;

private:
    startup::Node& node();

    scenario::Scenario m_scenario;
    int m_starts = 0;
    std::unique_ptr<startup::Node> m_node;
};

} // namespace node::commands
