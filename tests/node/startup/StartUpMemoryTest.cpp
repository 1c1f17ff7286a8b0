#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "allocation/MemoryRounds.h"
#include "framework/CModuleManager.h"
#include "framework/InterfaceBroker.h"
#include "kel_top_api/CriGetHopLengthTimeDspPps.h"
#include "node/framework/Admission.h"
#include "node/services/FaultOf.h"
#include "node/startup/Node.h"

using allocation::Failing;
using node::startup::BrokerEntry;
using node::startup::Configuration;
using node::startup::Node;
using ::testing::IsEmpty;

namespace
{

class StartUpMemoryTest : public MemoryRounds<::testing::TestWithParam<Failing>>
{
public:
    StartUpMemoryTest(const StartUpMemoryTest&) = delete;
    StartUpMemoryTest& operator=(const StartUpMemoryTest&) = delete;

protected:
    StartUpMemoryTest() : m_before(node::framework::setAdmission([this] { ++admitted; }))
    {
        const Node first; // what is made once and stays is not a leak
    }

    ~StartUpMemoryTest() override
    {
        node::framework::setAdmission(std::move(m_before));
    }

    /// Starts nodes that run out of memory and expects nothing of them afterwards.
    void expectNothingLeftOf(const Configuration& configuration)
    {
        const std::size_t inUse = allocation::blocksInUse();
        const std::size_t failures = failEachAllocation(
            GetParam(), [&] { const Node node(configuration); },
            [&]
            {
                EXPECT_EQ(inUse, allocation::blocksInUse());
                EXPECT_THAT(InterfaceBroker::getInstance().interfaces(), IsEmpty());
                EXPECT_THAT(CModuleManager::GetInstance().modules(), IsEmpty());
                EXPECT_EQ("the node is not started", kel_top_api::criGetHopLengthTimeDspPps({1}).resultText);
                admitted = 0;
                ModuleInterface fan(0, "Fan", 0, 0, nullptr, 0);
                CModuleManager::GetInstance().RegisterModule(&fan);
                EXPECT_EQ(1, admitted);
            });
        EXPECT_LT(0U, failures);
    }

    int admitted = 0;

private:
    node::framework::Admission m_before;
};

TEST_P(StartUpMemoryTest, ANodeThatRunsOutOfMemoryLeavesNothingBehind)
{
    expectNothingLeftOf({});
}

TEST_P(StartUpMemoryTest, ANodeWithFaultsAndEntriesThatRunsOutOfMemoryLeavesNothingBehind)
{
    Configuration configuration;
    configuration.channelsTold = 0;
    configuration.broker = {{"IDpdControllerSplit_1", BrokerEntry::OtherType},
                            {"IDpdControllerSplit_2", BrokerEntry::Empty}};
    configuration.faults = {FaultOf("tiManageXpic").withText("a text that is longer than a string object"),
                            FaultOf("CModuleManager.RegisterModule").withText("another text that is as long as that")};
    expectNothingLeftOf(configuration);
}

INSTANTIATE_TEST_SUITE_P(BothWays, StartUpMemoryTest, ::testing::Values(Failing::Once, Failing::FromThenOn));

} // namespace
