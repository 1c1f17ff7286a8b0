#include "node/startup/StartUpTest.h"

#include <new>
#include <stdexcept>

#include "node/services/FaultOf.h"

using node::services::PlannedException;
using node::startup::Node;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

constexpr auto Register = "CModuleManager.RegisterModule";
constexpr auto Install = "IRlbspKelApi.installDebugCmdCallback";

/// A module whose initialisation throws.
template <typename Exception>
class ThrowingModule : public OtherModule
{
public:
    ThrowingModule(const std::string& name, const Exception& exception) : OtherModule(name), m_exception(exception)
    {
    }

    std::int32_t onModuleInit() override
    {
        throw m_exception;
    }

private:
    Exception m_exception;
};

class NodeStartUpFailureTest : public NodeStartUpTest
{
protected:
    static Configuration withFault(const node::services::Fault& fault)
    {
        Configuration configuration;
        configuration.faults = {fault};
        return configuration;
    }
};

TEST_F(NodeStartUpFailureTest, AModuleOfTheSameNameKeepsTheNodeFromStarting)
{
    {
        OtherModule other("KelDebugCmd");
        EXPECT_EQ("module KelDebugCmd: its constructor threw: module KelDebugCmd: found registered already, expected "
                  "a name of its own",
                  failure({}));
        EXPECT_THAT(modules(), ElementsAre(&other));
        EXPECT_THAT(interfaces(), IsEmpty());
        EXPECT_EQ(0, other.initialisations);
    }
    expectNothingThere();
    expectANodeStarts();
}

TEST_F(NodeStartUpFailureTest, AModuleThatRefusesIsNamedAndThoseAfterItAreNotInitialised)
{
    {
        OtherModule first("Pump");
        OtherModule refusing("Fan", 17);
        OtherModule last("Alarm");
        EXPECT_EQ("module Fan: onModuleInit() answered 0x11, expected 0", failure({}));
        EXPECT_EQ(1, first.initialisations);
        EXPECT_EQ(1, refusing.initialisations);
        EXPECT_EQ(0, last.initialisations);
        EXPECT_THAT(modules(), ElementsAre(&first, &refusing, &last));
        EXPECT_THAT(interfaces(), IsEmpty());
    }
    expectNothingThere();
    expectANodeStarts();
}

TEST_F(NodeStartUpFailureTest, EveryResultBut0IsARefusal)
{
    OtherModule other("Fan");
    for (const auto& [result, text] : {std::pair(1, "0x1"), std::pair(0x7FFF, "0x7fff"), std::pair(-1, "-0x1")})
    {
        other.result = result;
        EXPECT_EQ(std::string("module Fan: onModuleInit() answered ") + text + ", expected 0", failure({}));
    }
    other.result = 0;
    EXPECT_EQ("started", failure({}));
    CModuleManager::GetInstance().UnregisterModule(&other);
}

TEST_F(NodeStartUpFailureTest, AnInitialisationThatThrowsIsToldWithItsModule)
{
    {
        const ThrowingModule<std::logic_error> other("Fan", std::logic_error("the blades are missing"));
        EXPECT_EQ("module Fan: onModuleInit() threw: the blades are missing", failure({}));
    }
    expectNothingThere();
}

TEST_F(NodeStartUpFailureTest, MemoryThatRunsOutIsNotTheModulesFailure)
{
    {
        const ThrowingModule<std::bad_alloc> other("Fan", std::bad_alloc());
        EXPECT_THROW(failure({}), std::bad_alloc);
    }
    expectNothingThere();
}

TEST_F(NodeStartUpFailureTest, ARegistrationThatThrowsByPlanIsTheConstructorsFailure)
{
    EXPECT_EQ("module KelDebugCmd: its constructor threw: no place left",
              failure(withFault(FaultOf(Register).withText("no place left").throwing())));
    EXPECT_THAT(recorder.messages, IsEmpty());
    expectNothingThere();
    expectANodeStarts();
}

TEST_F(NodeStartUpFailureTest, ACallbackThatCannotBeInstalledIsTheInitialisationsFailure)
{
    EXPECT_EQ("module KelDebugCmd: onModuleInit() threw: planned fault",
              failure(withFault(FaultOf(Install).throwing())));
    EXPECT_THAT(recorder.messages, IsEmpty());
    expectNothingThere();
    expectANodeStarts();
}

TEST_F(NodeStartUpFailureTest, AFaultAtStartUpThatDoesNotThrowOnlyCounts)
{
    for (const char* const name : {Register, Install})
    {
        Node node(withFault(FaultOf(name).withCode(INT32_MAX)));
        EXPECT_NE(nullptr, node.commands());
        ASSERT_EQ(1U, node.faults().list().size());
        EXPECT_EQ(1U, node.faults().list().front().seen);
        EXPECT_EQ(1U, node.faults().list().front().hits);
    }
}

TEST_F(NodeStartUpFailureTest, FaultsAreListedInTheOrderOfTheConfiguration)
{
    Configuration configuration;
    configuration.faults = {FaultOf("tiManageXpic").withCode(7), FaultOf(Register), FaultOf("tiManageXpic")};
    Node node(configuration);
    const auto list = node.faults().list();
    ASSERT_EQ(3U, list.size());
    EXPECT_EQ("tiManageXpic", list[0].fault.call->name);
    EXPECT_EQ(7, list[0].fault.code);
    EXPECT_EQ(Register, list[1].fault.call->name);
    EXPECT_EQ(1U, list[1].hits);
    EXPECT_EQ(std::nullopt, list[2].fault.code);
}

TEST_F(NodeStartUpFailureTest, WhileANodeRunsEveryRegistrationPassesItsPlan)
{
    Node node;
    node.faults().add(FaultOf(Register).withText("no place left").throwing().times(1));
    EXPECT_THROW(OtherModule("Fan"), PlannedException);
    EXPECT_EQ(1U, modules().size());
    const OtherModule fan("Fan");
    EXPECT_EQ(2U, modules().size());
    EXPECT_EQ(2U, node.faults().list().front().seen);
}

TEST_F(NodeStartUpFailureTest, AModuleThatLeftDuringAFailedStartCanRegisterAgain)
{
    EXPECT_EQ("module KelDebugCmd: onModuleInit() threw: planned fault",
              failure(withFault(FaultOf(Install).throwing())));
    EXPECT_EQ("started", failure({}));
    EXPECT_EQ("started", failure({}));
}

} // namespace
