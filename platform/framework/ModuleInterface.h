#pragma once

/// @file
/// What a module of the framework derives from.

#include <cstdint>
#include <string>

/// Lets a module state where in a phase it wants to be called. The framework knows the values.
enum class ECallbackPriority : std::int32_t
{
    Default = 0,
};

/// Base of every framework module: its registration values and the hooks of its life.
///
/// The framework calls the hooks, one at a time, on its own thread. Every hook answers a framework result code,
/// 0 for success and 0x8000 for failure; the defaults do nothing and answer 0. The order of the virtual operations
/// is part of the binary contract with modules that are compiled elsewhere.
class ModuleInterface
{
public:
    /// Keeps the registration values. What the numbers and the list mean is the framework's own affair.
    /// @param name  the module's name, unique in the node
    /// @param list  `listLength` numbers; they must stay where they are for as long as the module lives
    ModuleInterface(unsigned int number, const std::string& name, unsigned int secondNumber, unsigned int thirdNumber,
                    const unsigned long* list, unsigned int listLength);
    ModuleInterface(const ModuleInterface&) = delete;
    ModuleInterface& operator=(const ModuleInterface&) = delete;

    virtual ~ModuleInterface();

    /// Called when a phase is activated; number and priority are the framework's own.
    virtual std::int32_t onPhaseActivation(unsigned long phase, ECallbackPriority priority);

    /// Called when the framework initialises its modules. The broker has its entries by then, and a module looks its
    /// interfaces up.
    virtual std::int32_t onModuleInit();

    /// @{
    /// Called in the phase of that name.
    virtual std::int32_t onPhaseModuleStorageObjectsRetrieved();
    virtual std::int32_t onPhasePostFrameformatLoad();
    virtual std::int32_t onPhaseEndFrameformatLoad();
    virtual std::int32_t onPhaseRestartTickScheduler();
    virtual std::int32_t onWarmRestartWaitForHw();
    virtual std::int32_t onWarmRestartInit();
    virtual std::int32_t onWarmRestartWaitForSetInitCompleteRequest();
    virtual std::int32_t onPhaseStart();
    virtual std::int32_t onPhaseStop();
    virtual std::int32_t onPhaseFrameformatLoad();
    virtual std::int32_t onPhasePreFrameformatLoad();
    virtual std::int32_t onPhaseSuppressErrors();
    virtual std::int32_t onPhaseSetRadioChannelNearEndFinished();
    virtual std::int32_t onPhasePreRadioRestartCold();
    virtual std::int32_t onPhasePreRadioRestartWarm();
    virtual std::int32_t onPhasePostRadioRestart();
    virtual std::int32_t onPhaseDisableAlarmThread();
    virtual std::int32_t onPhasePreDspRecovery();
    virtual std::int32_t onPhaseDspRecoveryReloadFw();
    virtual std::int32_t onPhaseDspRecoveryReloadFf();
    virtual std::int32_t onPhaseDspRecoveryReconfig();
    virtual std::int32_t onPhasePostDspRecovery();
    virtual std::int32_t onPhaseEnableAlarmThread();
    /// @}

    /// What the constructor was given. The framework's own; modules do not call it.
    struct Registration
    {
        /// @{
        /// The argument of that name.
        unsigned int number;
        std::string name;
        unsigned int secondNumber;
        unsigned int thirdNumber;
        const unsigned long* list;
        unsigned int listLength;
        /// @}
    };

    /// As it was given, for as long as the module lives.
    const Registration& registration() const;

private:
    Registration m_registration;
};
