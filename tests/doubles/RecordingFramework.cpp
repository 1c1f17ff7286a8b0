#include "doubles/RecordingFramework.h"

#include <array>
#include <cstdint>

#include "doubles/CallLog.h"

namespace doubles
{

FrameworkBehaviour& framework()
{
    static FrameworkBehaviour behaviour;
    return behaviour;
}

} // namespace doubles

using doubles::calls;

IInterface::~IInterface() = default;

InterfaceBroker& InterfaceBroker::getInstance()
{
    // Words that are no null pointer stand behind the register: reading past its end stops the test.
    struct Guarded
    {
        InterfaceBroker broker;
        std::array<std::uintptr_t, 8> behind{1, 1, 1, 1, 1, 1, 1, 1};
    };
    static Guarded guarded;
    calls().push_back("InterfaceBroker.getInstance()");
    return guarded.broker;
}

InterfaceBroker::Interfaces& InterfaceBroker::interfaces()
{
    return m_interfaces;
}

CModuleManager& CModuleManager::GetInstance()
{
    static CModuleManager manager;
    calls().push_back("CModuleManager.GetInstance()");
    return manager;
}

void CModuleManager::RegisterModule(ModuleInterface* module)
{
    calls().push_back("CModuleManager.RegisterModule(" + module->registration().name + ")");
    if (doubles::framework().onRegister)
    {
        doubles::framework().onRegister(module);
    }
}

ModuleInterface::ModuleInterface(unsigned int number, const std::string& name, unsigned int secondNumber,
                                 unsigned int thirdNumber, const unsigned long* list, unsigned int listLength)
    : m_registration{number, name, secondNumber, thirdNumber, list, listLength}
{
    calls().push_back("ModuleInterface(" + name + ")");
}

ModuleInterface::~ModuleInterface()
{
    calls().push_back("~ModuleInterface(" + m_registration.name + ")");
}

const ModuleInterface::Registration& ModuleInterface::registration() const
{
    return m_registration;
}

// The hooks answer their own number, so that a test can tell a default that was kept from one that was replaced.
#define RECORDED_HOOK(number, hook, ...)                                                                               \
    std::int32_t ModuleInterface::hook(__VA_ARGS__)                                                                    \
    {                                                                                                                  \
        calls().push_back("ModuleInterface." #hook);                                                                   \
        return number;                                                                                                 \
    }

RECORDED_HOOK(2, onPhaseActivation, unsigned long, ECallbackPriority)
RECORDED_HOOK(3, onModuleInit)
RECORDED_HOOK(4, onPhaseModuleStorageObjectsRetrieved)
RECORDED_HOOK(5, onPhasePostFrameformatLoad)
RECORDED_HOOK(6, onPhaseEndFrameformatLoad)
RECORDED_HOOK(7, onPhaseRestartTickScheduler)
RECORDED_HOOK(8, onWarmRestartWaitForHw)
RECORDED_HOOK(9, onWarmRestartInit)
RECORDED_HOOK(10, onWarmRestartWaitForSetInitCompleteRequest)
RECORDED_HOOK(11, onPhaseStart)
RECORDED_HOOK(12, onPhaseStop)
RECORDED_HOOK(13, onPhaseFrameformatLoad)
RECORDED_HOOK(14, onPhasePreFrameformatLoad)
RECORDED_HOOK(15, onPhaseSuppressErrors)
RECORDED_HOOK(16, onPhaseSetRadioChannelNearEndFinished)
RECORDED_HOOK(17, onPhasePreRadioRestartCold)
RECORDED_HOOK(18, onPhasePreRadioRestartWarm)
RECORDED_HOOK(19, onPhasePostRadioRestart)
RECORDED_HOOK(20, onPhaseDisableAlarmThread)
RECORDED_HOOK(21, onPhasePreDspRecovery)
RECORDED_HOOK(22, onPhaseDspRecoveryReloadFw)
RECORDED_HOOK(23, onPhaseDspRecoveryReloadFf)
RECORDED_HOOK(24, onPhaseDspRecoveryReconfig)
RECORDED_HOOK(25, onPhasePostDspRecovery)
RECORDED_HOOK(26, onPhaseEnableAlarmThread)
