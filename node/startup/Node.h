#pragma once

#include <memory>
#include <set>
#include <stdexcept>
#include <string>

#include "KelDebugCmd.h"
#include "node/radio/RadioLink.h"
#include "node/services/BoardSupport.h"
#include "node/services/ModemStatus.h"
#include "node/services/RadioChannelNearEnd.h"
#include "node/services/TopApi.h"

namespace node::startup
{

struct Configuration
{
    int numberOfRadioChannels = 2;
    std::set<std::string> absentInterfaces; ///< broker keys that are left out, as on a node where a service is down
};

/// The node did not start; what() says which step failed.
class StartUpError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// A node on a desk: the link, the services in front of it, and the debug-command module, started.
///
/// One node runs at a time, for the framework's registers are the process's own. The object is made and destroyed on
/// one thread; commands may be called from any.
class Node
{
public:
    /// Puts the services into the broker, constructs the module and initialises it.
    /// @throws StartUpError when the module refuses; everything that was set up is taken down again
    explicit Node(const Configuration& configuration = {});
    Node(const Node&) = delete;
    Node& operator=(const Node&) = delete;
    ~Node() = default;

    /// The debug commands, through the callback that the module installed.
    IRlbspKelApi::KelDebugCmdCallback& commands();

private:
    /// The broker's entries of this node; the module looks them up, so they go after it.
    class BrokerEntries
    {
    public:
        BrokerEntries(const Configuration& configuration, radio::RadioLink& link,
                      const std::shared_ptr<services::BoardSupport>& boardSupport);
        BrokerEntries(const BrokerEntries&) = delete;
        BrokerEntries& operator=(const BrokerEntries&) = delete;
        ~BrokerEntries();
    };

    // Torn down from the last to the first.
    radio::RadioLink m_link;
    services::ModemStatus m_modemStatus{m_link};
    services::RadioChannelNearEnd m_nearEnd{m_link};
    services::TopApiBinding m_topApi{m_link};
    std::shared_ptr<services::BoardSupport> m_boardSupport = std::make_shared<services::BoardSupport>();
    BrokerEntries m_brokerEntries;
    std::unique_ptr<kel::device::kelDebugCmd::KelDebugCmd> m_module;
};

} // namespace node::startup
