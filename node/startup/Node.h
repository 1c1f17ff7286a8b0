#pragma once

#include <memory>
#include <stdexcept>

#include "KelDebugCmd.h"
#include "node/framework/Admission.h"
#include "node/radio/RadioLink.h"
#include "node/services/BoardSupport.h"
#include "node/services/FaultPlan.h"
#include "node/services/ModemStatus.h"
#include "node/services/RadioChannelNearEnd.h"
#include "node/services/ServiceContext.h"
#include "node/services/TopApi.h"
#include "node/startup/Configuration.h"

namespace node::startup
{

/// The node did not start; what() says which step failed.
class StartUpError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// A node on a desk: the link, the services in front of it, and the debug-command module, started.
///
/// One node runs at a time, for the framework's registers are the process's own. The object is made and destroyed on
/// one thread; everything else may be called from any.
class Node
{
public:
    /// Puts the services into the broker, constructs the module and initialises it.
    /// @throws StartUpError when the module refuses; everything that was set up is taken down again
    explicit Node(const Configuration& configuration = {});
    Node(const Node&) = delete;
    Node& operator=(const Node&) = delete;
    ~Node() = default;

    /// The debug commands, through the callback that the module installed; null when it installed none.
    IRlbspKelApi::KelDebugCmdCallback* commands();

    radio::RadioLink& link();
    services::FaultPlan& faults();

private:
    /// The broker's entries of this node; the module looks them up, so they go after it.
    class BrokerEntries
    {
    public:
        BrokerEntries(const Configuration& configuration, const services::ServiceContext& context,
                      const std::shared_ptr<services::BoardSupport>& boardSupport);
        BrokerEntries(const BrokerEntries&) = delete;
        BrokerEntries& operator=(const BrokerEntries&) = delete;
        ~BrokerEntries();
    };

    /// Registration passes the node's fault plan while this exists.
    class RegistrationFaults
    {
    public:
        explicit RegistrationFaults(services::FaultPlan& faults);
        RegistrationFaults(const RegistrationFaults&) = delete;
        RegistrationFaults& operator=(const RegistrationFaults&) = delete;
        ~RegistrationFaults();

    private:
        framework::Admission m_before;
    };

    // Torn down from the last to the first.
    radio::RadioLink m_link;
    services::FaultPlan m_faults;
    services::ServiceContext m_context{m_link, m_faults};
    services::ModemStatus m_modemStatus{m_context};
    services::RadioChannelNearEnd m_nearEnd{m_context};
    services::TopApiBinding m_topApi{m_context};
    std::shared_ptr<services::BoardSupport> m_boardSupport = std::make_shared<services::BoardSupport>(m_faults);
    BrokerEntries m_brokerEntries;
    RegistrationFaults m_registrationFaults;
    std::unique_ptr<kel::device::kelDebugCmd::KelDebugCmd> m_module;
};

} // namespace node::startup
