// Stands in for the platform's libraries: all names that the debug commands want of them. A node links its own.
#include <ostream>

#include "framework/CModuleManager.h"
#include "framework/InterfaceBroker.h"
#include "kel_top_api/CriCalibrateDspPps.h"
#include "kel_top_api/CriGetCalibrationStatusDspPps.h"
#include "kel_top_api/CriGetHopLengthTimeDspPps.h"
#include "kel_top_api/CriGetRadioChannelCapability.h"
#include "kel_top_api/CriGetRadioChannelStatus.h"
#include "kel_top_api/CriSetOutputModeDspPps.h"
#include "kel_top_api/CriSetSourceDspPps.h"
#include "kel_top_api/TiManageXpic.h"
#include "node.h"
#include "trace/VemTrace.h"

// The framework.

IInterface::~IInterface() = default;

InterfaceBroker& InterfaceBroker::getInstance()
{
    static InterfaceBroker broker;
    return broker;
}

InterfaceBroker::Interfaces& InterfaceBroker::interfaces()
{
    return m_interfaces;
}

CModuleManager& CModuleManager::GetInstance()
{
    static CModuleManager manager;
    return manager;
}

void CModuleManager::RegisterModule(ModuleInterface* module)
{
    m_modules.push_back(module);
}

const std::vector<ModuleInterface*>& CModuleManager::modules() const
{
    return m_modules;
}

ModuleInterface::ModuleInterface(unsigned int number, const std::string& name, unsigned int secondNumber,
                                 unsigned int thirdNumber, const unsigned long* list, unsigned int listLength)
    : m_registration{number, name, secondNumber, thirdNumber, list, listLength}
{
}

// The program ends with its only module, so nobody takes it out of the manager.
ModuleInterface::~ModuleInterface() = default;

#define HOOK(name, ...)                                                                                                \
    std::int32_t ModuleInterface::name(__VA_ARGS__)                                                                    \
    {                                                                                                                  \
        return 0;                                                                                                      \
    }

HOOK(onPhaseActivation, unsigned long, ECallbackPriority)
HOOK(onModuleInit)
HOOK(onPhaseModuleStorageObjectsRetrieved)
HOOK(onPhasePostFrameformatLoad)
HOOK(onPhaseEndFrameformatLoad)
HOOK(onPhaseRestartTickScheduler)
HOOK(onWarmRestartWaitForHw)
HOOK(onWarmRestartInit)
HOOK(onWarmRestartWaitForSetInitCompleteRequest)
HOOK(onPhaseStart)
HOOK(onPhaseStop)
HOOK(onPhaseFrameformatLoad)
HOOK(onPhasePreFrameformatLoad)
HOOK(onPhaseSuppressErrors)
HOOK(onPhaseSetRadioChannelNearEndFinished)
HOOK(onPhasePreRadioRestartCold)
HOOK(onPhasePreRadioRestartWarm)
HOOK(onPhasePostRadioRestart)
HOOK(onPhaseDisableAlarmThread)
HOOK(onPhasePreDspRecovery)
HOOK(onPhaseDspRecoveryReloadFw)
HOOK(onPhaseDspRecoveryReloadFf)
HOOK(onPhaseDspRecoveryReconfig)
HOOK(onPhasePostDspRecovery)
HOOK(onPhaseEnableAlarmThread)

// The interfaces.

IRlbspKelApi::~IRlbspKelApi() = default;
IRlbspKelApi::KelDebugCmdCallback::~KelDebugCmdCallback() = default;
IDpdControllerSplit::~IDpdControllerSplit() = default;
ITiGetDspModemStatus::~ITiGetDspModemStatus() = default;
ITiManageRadioChannelNearEnd::~ITiManageRadioChannelNearEnd() = default;

// The trace: no channel is active, and what is written goes nowhere.

VemTrace::VemTrace(const std::string& /*channelName*/, VemTraceLevel /*level*/) : m_configuration(nullptr)
{
}

VemTrace::~VemTrace() = default;

bool VemTrace::isActive() const
{
    return false;
}

void VemTrace::beginLogMsg(VemTraceLevel /*level*/, const VemTraceHeader& /*header*/)
{
}

void VemTrace::logMsgData(const char* /*data*/, std::size_t /*length*/)
{
}

void VemTrace::endLogMsg()
{
}

std::ostream& VemTrace::messageStream()
{
    return discardingStream();
}

std::ostream& VemTrace::discardingStream()
{
    thread_local std::ostream nowhere(nullptr);
    return nowhere;
}

// The top-level API.

namespace kel_top_api
{

TiManageXpic::Response tiManageXpic(const TiManageXpic::Command& /*command*/)
{
    return {};
}

StandardResponse criCalibrateDspPps(const CriCalibrateDspPps::Command& /*command*/)
{
    return {};
}

StandardResponse criSetSourceDspPps(const CriSetSourceDspPps::Command& /*command*/)
{
    return {};
}

StandardResponse criSetOutputModeDspPps(const CriSetOutputModeDspPps::Command& /*command*/)
{
    return {};
}

CriGetCalibrationStatusDspPps::Response
criGetCalibrationStatusDspPps(const CriGetCalibrationStatusDspPps::Command& /*command*/)
{
    return {};
}

CriGetHopLengthTimeDspPps::Response criGetHopLengthTimeDspPps(const CriGetHopLengthTimeDspPps::Command& /*command*/)
{
    CriGetHopLengthTimeDspPps::Response response;
    response.hopLengthTime = 16678; // five kilometres
    return response;
}

CriGetRadioChannelStatus::Response criGetRadioChannelStatus(const CriGetRadioChannelStatus::Command& /*command*/)
{
    return {};
}

CriGetRadioChannelCapability::Response
criGetRadioChannelCapability(const CriGetRadioChannelCapability::Command& /*command*/)
{
    return {};
}

} // namespace kel_top_api
