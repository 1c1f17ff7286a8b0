#pragma once

#include <memory>

#include "node/radio/RadioLink.h"
#include "node/services/FaultPlan.h"
#include "node/startup/Configuration.h"
#include "node/startup/Node.h"
#include "radio/IRlbspKelApi.h"

namespace node::cli
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
    virtual void start(const startup::Configuration& configuration) = 0;
};

/// A desk with a simulated node on it.
class NodeDesk : public Desk
{
public:
    bool hasNode() const override;
    IRlbspKelApi::KelDebugCmdCallback& commands() override;
    radio::RadioLink& link() override;
    services::FaultPlan& faults() override;
    void start(const startup::Configuration& configuration) override;

private:
    startup::Node& node();

    std::unique_ptr<startup::Node> m_node;
};

} // namespace node::cli
