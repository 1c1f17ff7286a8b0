#include "node/startup/Node.h"

#include <fmt/format.h>

#include "framework/CModuleManager.h"
#include "framework/InterfaceBroker.h"
#include "node/services/DpdController.h"

namespace node::startup
{

namespace
{

using kel::device::kelDebugCmd::KelDebugCmd;

std::unique_ptr<KelDebugCmd> constructModule(const Configuration& configuration, ITiManageRadioChannelNearEnd& nearEnd,
                                             ITiGetDspModemStatus& modemStatus)
{
    try
    {
        return std::make_unique<KelDebugCmd>(configuration.numberOfRadioChannels, nearEnd, modemStatus);
    }
    catch (const std::invalid_argument& refusal)
    {
        throw StartUpError(refusal.what());
    }
}

void initialiseModules()
{
    for (ModuleInterface* const module : CModuleManager::GetInstance().modules())
    {
        const std::int32_t result = module->onModuleInit();
        if (result != 0)
        {
            throw StartUpError(fmt::format("module {}: onModuleInit() answered {:#x}, expected 0",
                                           module->registration().name, result));
        }
    }
}

} // namespace

Node::BrokerEntries::BrokerEntries(const Configuration& configuration, radio::RadioLink& link,
                                   const std::shared_ptr<services::BoardSupport>& boardSupport)
{
    InterfaceBroker::Interfaces entries = {{"IRlbspKelApi", boardSupport}};
    for (RadioChannel channel = 1; channel <= radio::RadioLink::NumberOfChannels; ++channel)
    {
        entries[fmt::format("IDpdControllerSplit_{}", channel)] =
            std::make_shared<services::DpdController>(link, channel);
    }
    for (const std::string& name : configuration.absentInterfaces)
    {
        entries.erase(name);
    }
    InterfaceBroker::getInstance().interfaces().swap(entries); // all of them or, when memory runs out before, none
}

Node::BrokerEntries::~BrokerEntries()
{
    InterfaceBroker::getInstance().interfaces().clear();
}

Node::Node(const Configuration& configuration)
    : m_brokerEntries(configuration, m_link, m_boardSupport),
      m_module(constructModule(configuration, m_nearEnd, m_modemStatus))
{
    initialiseModules();
}

IRlbspKelApi::KelDebugCmdCallback& Node::commands()
{
    return *m_boardSupport->installedCallback();
}

} // namespace node::startup
