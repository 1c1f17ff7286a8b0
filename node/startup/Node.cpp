#include "node/startup/Node.h"

#include <new>
#include <utility>

#include <fmt/format.h>

#include "framework/CModuleManager.h"
#include "framework/InterfaceBroker.h"
#include "node/services/DpdController.h"

namespace node::startup
{

namespace
{

using kel::device::kelDebugCmd::KelDebugCmd;

/// What stands in the broker where another interface was expected.
class OtherInterface : public virtual IInterface
{
};

/// Carries out a step of the start; what it throws is told with the step's name. Memory that runs out is not the
/// step's own failure.
template <typename Step>
auto carryOut(const std::string& name, const Step& step)
{
    try
    {
        return step();
    }
    catch (const std::bad_alloc&)
    {
        throw;
    }
    catch (const std::exception& error)
    {
        throw StartUpError(fmt::format("{} threw: {}", name, error.what()));
    }
}

std::unique_ptr<KelDebugCmd> constructModule(const Configuration& configuration, ITiManageRadioChannelNearEnd& nearEnd,
                                             ITiGetDspModemStatus& modemStatus)
{
    const int channels = configuration.channelsTold.value_or(static_cast<int>(configuration.link.numberOfChannels));
    return carryOut("module KelDebugCmd: its constructor",
                    [&] { return std::make_unique<KelDebugCmd>(channels, nearEnd, modemStatus); });
}

void initialiseModules(const Configuration& configuration)
{
    for (ModuleInterface* const module : CModuleManager::GetInstance().modules())
    {
        const std::string& name = module->registration().name;
        const std::int32_t result =
            carryOut("module " + name + ": onModuleInit()", [&] { return module->onModuleInit(); });
        if (result != 0 && !configuration.runsWithFailedModules)
        {
            throw StartUpError(fmt::format("module {}: onModuleInit() answered {:#x}, expected 0", name, result));
        }
    }
}

void put(InterfaceBroker::Interfaces& entries, const Configuration& configuration, const std::string& key,
         const std::shared_ptr<IInterface>& service)
{
    const auto told = configuration.broker.find(key);
    switch (told == configuration.broker.end() ? BrokerEntry::Service : told->second)
    {
    case BrokerEntry::Service:
        entries[key] = service;
        return;
    case BrokerEntry::Absent:
        return;
    case BrokerEntry::Empty:
        entries[key] = nullptr;
        return;
    case BrokerEntry::OtherType:
        entries[key] = std::make_shared<OtherInterface>();
        return;
    }
}

} // namespace

Node::BrokerEntries::BrokerEntries(const Configuration& configuration, const services::ServiceContext& context,
                                   const std::shared_ptr<services::BoardSupport>& boardSupport)
{
    InterfaceBroker::Interfaces entries;
    put(entries, configuration, "IRlbspKelApi", boardSupport);
    for (RadioChannel channel = 1; channel <= context.link.numberOfChannels(); ++channel)
    {
        put(entries, configuration, fmt::format("IDpdControllerSplit_{}", channel),
            std::make_shared<services::DpdController>(context, channel));
    }
    InterfaceBroker::getInstance().interfaces().swap(entries); // all of them or, when memory runs out before, none
}

Node::BrokerEntries::~BrokerEntries()
{
    InterfaceBroker::getInstance().interfaces().clear();
}

Node::RegistrationFaults::RegistrationFaults(services::FaultPlan& faults)
    : m_before(framework::setAdmission([&faults] { faults.pass("CModuleManager.RegisterModule", 0); }))
{
}

Node::RegistrationFaults::~RegistrationFaults()
{
    framework::setAdmission(std::move(m_before));
}

Node::Node(const Configuration& configuration)
    : m_link(configuration.link), m_faults(configuration.faults),
      m_brokerEntries(configuration, m_context, m_boardSupport), m_registrationFaults(m_faults),
      m_module(constructModule(configuration, m_nearEnd, m_modemStatus))
{
    initialiseModules(configuration);
}

IRlbspKelApi::KelDebugCmdCallback* Node::commands()
{
    return m_boardSupport->installedCallback();
}

radio::RadioLink& Node::link()
{
    return m_link;
}

services::FaultPlan& Node::faults()
{
    return m_faults;
}

} // namespace node::startup
