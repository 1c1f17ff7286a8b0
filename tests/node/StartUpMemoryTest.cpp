#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "allocation/MemoryRounds.h"
#include "framework/CModuleManager.h"
#include "framework/InterfaceBroker.h"
#include "node/startup/Node.h"

using allocation::Failing;
using node::startup::Node;
using ::testing::IsEmpty;

namespace
{

class StartUpMemoryTest : public MemoryRounds<::testing::TestWithParam<Failing>>
{
};

TEST_P(StartUpMemoryTest, ANodeThatRunsOutOfMemoryLeavesNothingBehind)
{
    const std::size_t failures = failEachAllocation(
        GetParam(), [] { const Node node; },
        []
        {
            EXPECT_THAT(InterfaceBroker::getInstance().interfaces(), IsEmpty());
            EXPECT_THAT(CModuleManager::GetInstance().modules(), IsEmpty());
            InterfaceBroker::getInstance().interfaces().clear();
        });
    EXPECT_LT(0U, failures);
}

INSTANTIATE_TEST_SUITE_P(BothWays, StartUpMemoryTest, ::testing::Values(Failing::Once, Failing::FromThenOn));

} // namespace
