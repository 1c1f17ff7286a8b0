#include <array>
#include <memory>
#include <stdexcept>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "framework/CModuleManager.h"
#include "framework/IInterface.h"
#include "framework/InterfaceBroker.h"
#include "framework/ModuleInterface.h"

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

class Module : public ModuleInterface
{
public:
    explicit Module(const std::string& name) : ModuleInterface(0, name, 0, 0, nullptr, 0)
    {
    }
};

/// What registering the module is refused with.
std::string refusal(ModuleInterface& module)
{
    try
    {
        CModuleManager::GetInstance().RegisterModule(&module);
    }
    catch (const std::invalid_argument& error)
    {
        return error.what();
    }
    return "not refused";
}

class ModuleManagerTest : public ::testing::Test
{
protected:
    ~ModuleManagerTest() override
    {
        EXPECT_THAT(manager.modules(), IsEmpty());
    }

    CModuleManager& manager = CModuleManager::GetInstance();
};

TEST_F(ModuleManagerTest, ThereIsOneManager)
{
    EXPECT_EQ(&manager, &CModuleManager::GetInstance());
}

TEST_F(ModuleManagerTest, ModulesStandInTheOrderInWhichTheyRegistered)
{
    Module pump("Pump");
    Module alarm("Alarm");
    Module fan("Fan");
    EXPECT_THAT(manager.modules(), IsEmpty());
    manager.RegisterModule(&pump);
    manager.RegisterModule(&alarm);
    manager.RegisterModule(&fan);
    EXPECT_THAT(manager.modules(), ElementsAre(&pump, &alarm, &fan));
}

TEST_F(ModuleManagerTest, ASecondModuleOfANameIsRefused)
{
    Module fan("Fan");
    Module pump("Pump");
    Module otherFan("Fan");
    manager.RegisterModule(&fan);
    manager.RegisterModule(&pump);
    EXPECT_EQ("module Fan: found registered already, expected a name of its own", refusal(otherFan));
    EXPECT_THAT(manager.modules(), ElementsAre(&fan, &pump));
}

TEST_F(ModuleManagerTest, TheSameModuleIsRefusedASecondTime)
{
    Module fan("Fan");
    manager.RegisterModule(&fan);
    EXPECT_EQ("module Fan: found registered already, expected a name of its own", refusal(fan));
    EXPECT_THAT(manager.modules(), ElementsAre(&fan));
}

TEST_F(ModuleManagerTest, NamesThatDifferInCaseAreTwoNames)
{
    Module upper("Fan");
    Module lower("fan");
    manager.RegisterModule(&upper);
    EXPECT_EQ("not refused", refusal(lower));
}

TEST_F(ModuleManagerTest, UnregisteringTakesOneModuleOutAndKeepsTheOrderOfTheOthers)
{
    Module pump("Pump");
    Module alarm("Alarm");
    Module fan("Fan");
    manager.RegisterModule(&pump);
    manager.RegisterModule(&alarm);
    manager.RegisterModule(&fan);
    manager.UnregisterModule(&alarm);
    EXPECT_THAT(manager.modules(), ElementsAre(&pump, &fan));
}

TEST_F(ModuleManagerTest, ANameIsFreeAgainAfterUnregistering)
{
    Module fan("Fan");
    Module otherFan("Fan");
    manager.RegisterModule(&fan);
    manager.UnregisterModule(&fan);
    EXPECT_EQ("not refused", refusal(otherFan));
    EXPECT_THAT(manager.modules(), ElementsAre(&otherFan));
}

TEST_F(ModuleManagerTest, UnregisteringAModuleThatIsNotEnteredChangesNothing)
{
    Module fan("Fan");
    Module stranger("Fan");
    manager.RegisterModule(&fan);
    manager.UnregisterModule(&stranger);
    manager.UnregisterModule(nullptr);
    EXPECT_THAT(manager.modules(), ElementsAre(&fan));
}

TEST_F(ModuleManagerTest, AModuleLeavesWhenItIsDestroyed)
{
    Module pump("Pump");
    manager.RegisterModule(&pump);
    {
        Module fan("Fan");
        manager.RegisterModule(&fan);
    }
    EXPECT_THAT(manager.modules(), ElementsAre(&pump));
}

TEST_F(ModuleManagerTest, ARefusedModuleLeavesTheOneOfItsNameAloneWhenItIsDestroyed)
{
    Module fan("Fan");
    manager.RegisterModule(&fan);
    {
        Module otherFan("Fan");
        EXPECT_NE("not refused", refusal(otherFan));
    }
    EXPECT_THAT(manager.modules(), ElementsAre(&fan));
}

TEST(InterfaceBrokerTest, ThereIsOneBroker)
{
    EXPECT_EQ(&InterfaceBroker::getInstance(), &InterfaceBroker::getInstance());
    EXPECT_THAT(InterfaceBroker::getInstance().interfaces(), IsEmpty());
}

TEST(InterfaceBrokerTest, AnInterfaceLivesAsLongAsItsEntry)
{
    struct Interface : IInterface
    {
    };
    auto& interfaces = InterfaceBroker::getInstance().interfaces();
    auto object = std::make_shared<Interface>();
    const std::weak_ptr<Interface> watched = object;
    interfaces["ITest"] = std::move(object);
    EXPECT_FALSE(watched.expired());
    EXPECT_EQ(watched.lock(), InterfaceBroker::getInstance().interfaces().at("ITest"));
    interfaces.clear();
    EXPECT_TRUE(watched.expired());
}

TEST(ModuleInterfaceTest, KeepsTheRegistrationValues)
{
    static constexpr unsigned long List[] = {11, 12};
    std::string name = "Fan";
    const ModuleInterface module(0xFFFFFFFFU, name, 2, 3, List, 2);
    name = "changed";
    EXPECT_EQ(0xFFFFFFFFU, module.registration().number);
    EXPECT_EQ("Fan", module.registration().name);
    EXPECT_EQ(2U, module.registration().secondNumber);
    EXPECT_EQ(3U, module.registration().thirdNumber);
    EXPECT_EQ(List, module.registration().list);
    EXPECT_EQ(2U, module.registration().listLength);
}

TEST(ModuleInterfaceTest, EveryHookAnswers0)
{
    using M = ModuleInterface;
    const std::array hooks = {
        &M::onModuleInit,
        &M::onPhaseModuleStorageObjectsRetrieved,
        &M::onPhasePostFrameformatLoad,
        &M::onPhaseEndFrameformatLoad,
        &M::onPhaseRestartTickScheduler,
        &M::onWarmRestartWaitForHw,
        &M::onWarmRestartInit,
        &M::onWarmRestartWaitForSetInitCompleteRequest,
        &M::onPhaseStart,
        &M::onPhaseStop,
        &M::onPhaseFrameformatLoad,
        &M::onPhasePreFrameformatLoad,
        &M::onPhaseSuppressErrors,
        &M::onPhaseSetRadioChannelNearEndFinished,
        &M::onPhasePreRadioRestartCold,
        &M::onPhasePreRadioRestartWarm,
        &M::onPhasePostRadioRestart,
        &M::onPhaseDisableAlarmThread,
        &M::onPhasePreDspRecovery,
        &M::onPhaseDspRecoveryReloadFw,
        &M::onPhaseDspRecoveryReloadFf,
        &M::onPhaseDspRecoveryReconfig,
        &M::onPhasePostDspRecovery,
        &M::onPhaseEnableAlarmThread,
    };
    Module module("Fan");
    EXPECT_EQ(0, module.onPhaseActivation(0xFFFFFFFFUL, ECallbackPriority::Default));
    for (std::size_t i = 0; i < hooks.size(); ++i)
    {
        EXPECT_EQ(0, (module.*hooks[i])()) << "hook " << i;
    }
}

} // namespace
