#include "framework/ModuleInterface.h"

#include "framework/CModuleManager.h"

ModuleInterface::ModuleInterface(unsigned int number, const std::string& name, unsigned int secondNumber,
                                 unsigned int thirdNumber, const unsigned long* list, unsigned int listLength)
    : m_registration{number, name, secondNumber, thirdNumber, list, listLength}
{
}

ModuleInterface::~ModuleInterface()
{
    CModuleManager::GetInstance().UnregisterModule(this);
}

const ModuleInterface::Registration& ModuleInterface::registration() const
{
    return m_registration;
}

std::int32_t ModuleInterface::onPhaseActivation(unsigned long /*phase*/, ECallbackPriority /*priority*/)
{
    return 0;
}

std::int32_t ModuleInterface::onModuleInit()
{
    return 0;
}

std::int32_t ModuleInterface::onPhaseModuleStorageObjectsRetrieved()
{
    return 0;
}

std::int32_t ModuleInterface::onPhasePostFrameformatLoad()
{
    return 0;
}

std::int32_t ModuleInterface::onPhaseEndFrameformatLoad()
{
    return 0;
}

std::int32_t ModuleInterface::onPhaseRestartTickScheduler()
{
    return 0;
}

std::int32_t ModuleInterface::onWarmRestartWaitForHw()
{
    return 0;
}

std::int32_t ModuleInterface::onWarmRestartInit()
{
    return 0;
}

std::int32_t ModuleInterface::onWarmRestartWaitForSetInitCompleteRequest()
{
    return 0;
}

std::int32_t ModuleInterface::onPhaseStart()
{
    return 0;
}

std::int32_t ModuleInterface::onPhaseStop()
{
    return 0;
}

std::int32_t ModuleInterface::onPhaseFrameformatLoad()
{
    return 0;
}

std::int32_t ModuleInterface::onPhasePreFrameformatLoad()
{
    return 0;
}

std::int32_t ModuleInterface::onPhaseSuppressErrors()
{
    return 0;
}

std::int32_t ModuleInterface::onPhaseSetRadioChannelNearEndFinished()
{
    return 0;
}

std::int32_t ModuleInterface::onPhasePreRadioRestartCold()
{
    return 0;
}

std::int32_t ModuleInterface::onPhasePreRadioRestartWarm()
{
    return 0;
}

std::int32_t ModuleInterface::onPhasePostRadioRestart()
{
    return 0;
}

std::int32_t ModuleInterface::onPhaseDisableAlarmThread()
{
    return 0;
}

std::int32_t ModuleInterface::onPhasePreDspRecovery()
{
    return 0;
}

std::int32_t ModuleInterface::onPhaseDspRecoveryReloadFw()
{
    return 0;
}

std::int32_t ModuleInterface::onPhaseDspRecoveryReloadFf()
{
    return 0;
}

std::int32_t ModuleInterface::onPhaseDspRecoveryReconfig()
{
    return 0;
}

std::int32_t ModuleInterface::onPhasePostDspRecovery()
{
    return 0;
}

std::int32_t ModuleInterface::onPhaseEnableAlarmThread()
{
    return 0;
}
