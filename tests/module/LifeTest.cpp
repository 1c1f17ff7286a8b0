#include <stdexcept>
#include <utility>

#include "module/PlatformTest.h"

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

namespace
{

using Callback = IRlbspKelApi::KelDebugCmdCallback;
using LifeTest = PlatformTest;

TEST_F(LifeTest, ModuleRegistersOnceItsBaseIsThere)
{
    construct(2);
    EXPECT_THAT(calls(), ElementsAre("ModuleInterface(KelDebugCmd)", "CModuleManager.GetInstance()",
                                     "CModuleManager.RegisterModule(KelDebugCmd)"));
    EXPECT_EQ(nullptr, boardSupport->installed);
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(LifeTest, RegistrationValuesAreFixed)
{
    for (const int channels : {1, 2, 3})
    {
        construct(channels);
        const auto& values = module->registration();
        EXPECT_EQ(120000U, values.number);
        EXPECT_EQ("KelDebugCmd", values.name);
        EXPECT_EQ(100U, values.secondNumber);
        EXPECT_EQ(0U, values.thirdNumber);
        ASSERT_EQ(1U, values.listLength);
        EXPECT_EQ(11UL, values.list[0]);
    }
}

TEST_F(LifeTest, FrameworkMayInitialiseTheModuleAsItRegisters)
{
    ModuleInterface* registered = nullptr;
    std::int32_t result = -1;
    doubles::framework().onRegister = [&](ModuleInterface* self)
    {
        registered = self;
        result = self->onModuleInit();
    };
    construct(2);
    EXPECT_EQ(module.get(), registered);
    EXPECT_EQ(0, result);
    EXPECT_EQ(0, commands().stopDpd(2));
    EXPECT_EQ(0, commands().getCtStatus(1, report));
}

TEST_F(LifeTest, RefusedRegistrationReachesTheCallerAndTakesTheBaseDown)
{
    doubles::framework().onRegister = [](ModuleInterface*) { throw std::invalid_argument("twice"); };
    EXPECT_THROW(construct(2), std::invalid_argument);
    EXPECT_THAT(calls(), ElementsAre("ModuleInterface(KelDebugCmd)", "CModuleManager.GetInstance()",
                                     "CModuleManager.RegisterModule(KelDebugCmd)", "~ModuleInterface(KelDebugCmd)"));
}

TEST_F(LifeTest, InstalledCallbackIsTheCallbackPartOfTheModule)
{
    start(2);
    EXPECT_EQ(static_cast<Callback*>(module.get()), boardSupport->installed);
    EXPECT_NE(static_cast<void*>(static_cast<ModuleInterface*>(module.get())),
              static_cast<void*>(boardSupport->installed));
}

TEST_F(LifeTest, DeletionThroughTheModuleTakesTheBaseDownAndUninstallsNothing)
{
    start(2);
    doubles::calls().clear();
    const auto* const installed = boardSupport->installed;
    delete static_cast<ModuleInterface*>(module.release());
    EXPECT_THAT(calls(), ElementsAre("~ModuleInterface(KelDebugCmd)"));
    EXPECT_EQ(installed, boardSupport->installed);
}

TEST_F(LifeTest, DeletionThroughTheCallbackIsTheSame)
{
    start(2);
    doubles::calls().clear();
    const auto* const installed = boardSupport->installed;
    delete static_cast<Callback*>(module.release());
    EXPECT_THAT(calls(), ElementsAre("~ModuleInterface(KelDebugCmd)"));
    EXPECT_EQ(installed, boardSupport->installed);
}

TEST_F(LifeTest, ModuleThatWasNeverInitialisedCanBeDeleted)
{
    construct(2);
    doubles::calls().clear();
    module.reset();
    EXPECT_THAT(calls(), ElementsAre("~ModuleInterface(KelDebugCmd)"));
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(LifeTest, EveryOtherHookKeepsTheFrameworksDefault)
{
    using Hook = std::int32_t (ModuleInterface::*)();
    const std::pair<Hook, const char*> hooks[] = {
        {&ModuleInterface::onPhaseModuleStorageObjectsRetrieved, "onPhaseModuleStorageObjectsRetrieved"},
        {&ModuleInterface::onPhasePostFrameformatLoad, "onPhasePostFrameformatLoad"},
        {&ModuleInterface::onPhaseEndFrameformatLoad, "onPhaseEndFrameformatLoad"},
        {&ModuleInterface::onPhaseRestartTickScheduler, "onPhaseRestartTickScheduler"},
        {&ModuleInterface::onWarmRestartWaitForHw, "onWarmRestartWaitForHw"},
        {&ModuleInterface::onWarmRestartInit, "onWarmRestartInit"},
        {&ModuleInterface::onWarmRestartWaitForSetInitCompleteRequest, "onWarmRestartWaitForSetInitCompleteRequest"},
        {&ModuleInterface::onPhaseStart, "onPhaseStart"},
        {&ModuleInterface::onPhaseStop, "onPhaseStop"},
        {&ModuleInterface::onPhaseFrameformatLoad, "onPhaseFrameformatLoad"},
        {&ModuleInterface::onPhasePreFrameformatLoad, "onPhasePreFrameformatLoad"},
        {&ModuleInterface::onPhaseSuppressErrors, "onPhaseSuppressErrors"},
        {&ModuleInterface::onPhaseSetRadioChannelNearEndFinished, "onPhaseSetRadioChannelNearEndFinished"},
        {&ModuleInterface::onPhasePreRadioRestartCold, "onPhasePreRadioRestartCold"},
        {&ModuleInterface::onPhasePreRadioRestartWarm, "onPhasePreRadioRestartWarm"},
        {&ModuleInterface::onPhasePostRadioRestart, "onPhasePostRadioRestart"},
        {&ModuleInterface::onPhaseDisableAlarmThread, "onPhaseDisableAlarmThread"},
        {&ModuleInterface::onPhasePreDspRecovery, "onPhasePreDspRecovery"},
        {&ModuleInterface::onPhaseDspRecoveryReloadFw, "onPhaseDspRecoveryReloadFw"},
        {&ModuleInterface::onPhaseDspRecoveryReloadFf, "onPhaseDspRecoveryReloadFf"},
        {&ModuleInterface::onPhaseDspRecoveryReconfig, "onPhaseDspRecoveryReconfig"},
        {&ModuleInterface::onPhasePostDspRecovery, "onPhasePostDspRecovery"},
        {&ModuleInterface::onPhaseEnableAlarmThread, "onPhaseEnableAlarmThread"},
    };

    start(2);
    doubles::calls().clear();
    ModuleInterface& base = *module;
    EXPECT_EQ(2, base.onPhaseActivation(1, ECallbackPriority::Default));
    std::vector<std::string> expected = {"ModuleInterface.onPhaseActivation"};
    std::int32_t number = 4; // onModuleInit() is the third
    for (const auto& [hook, name] : hooks)
    {
        EXPECT_EQ(number++, (base.*hook)()) << name;
        expected.push_back("ModuleInterface." + std::string(name));
    }
    EXPECT_THAT(calls(), ElementsAreArray(expected));
}

} // namespace
