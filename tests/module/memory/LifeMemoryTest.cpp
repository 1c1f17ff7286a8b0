#include <stdexcept>

#include "module/memory/MemoryTest.h"

using allocation::Failing;
using kel::device::kelDebugCmd::KelDebugCmd;

namespace
{

/// Construction, initialisation and deletion, with what they allocate and give back.
class LifeMemoryTest : public MemoryTest
{
protected:
    /// The blocks in use without those of the doubles.
    static std::size_t blocksInUse()
    {
        forgetRound();
        return allocation::blocksInUse();
    }

    std::unique_ptr<KelDebugCmd> newModule(int numberOfRadioChannels = 2)
    {
        return std::make_unique<KelDebugCmd>(numberOfRadioChannels, nearEnd, modemStatus);
    }
};

TEST_F(LifeMemoryTest, DeletionThroughEitherBaseGivesEverythingBack)
{
    const auto before = blocksInUse();

    ModuleInterface* const framework = newModule().release();
    framework->onModuleInit();
    EXPECT_LT(before, blocksInUse());
    delete framework;
    EXPECT_EQ(before, blocksInUse());

    KelDebugCmd* const other = newModule().release();
    other->onModuleInit();
    delete static_cast<IRlbspKelApi::KelDebugCmdCallback*>(other);
    EXPECT_EQ(before, blocksInUse());
}

TEST_F(LifeMemoryTest, SecondInitialisationGivesTheFirstReportObjectBack)
{
    const auto owner = newModule();
    owner->onModuleInit();
    const auto before = blocksInUse();
    owner->onModuleInit();
    EXPECT_EQ(before, blocksInUse());
}

TEST_F(LifeMemoryTest, RefusedRegistrationGivesEverythingBack)
{
    doubles::framework().onRegister = [](ModuleInterface* self)
    {
        self->onModuleInit();
        throw std::invalid_argument("too late");
    };
    const auto before = blocksInUse();
    EXPECT_THROW(newModule(), std::invalid_argument);
    EXPECT_EQ(before, blocksInUse());
}

TEST_F(LifeMemoryTest, FailedConstructionReachesTheCallerAndLeavesNothingBehind)
{
    const auto before = blocksInUse();
    std::unique_ptr<KelDebugCmd> owner;
    // Only once: the recording base logs its destruction, which takes memory too.
    const auto failures = failEachAllocation(
        Failing::Once, [&] { owner = newModule(); },
        [&]
        {
            EXPECT_EQ(nullptr, owner);
            EXPECT_EQ(before, blocksInUse());
        });
    EXPECT_LT(0U, failures);
    EXPECT_NE(nullptr, owner);
}

class LifeOutOfMemoryTest : public LifeMemoryTest, public ::testing::WithParamInterface<Failing>
{
};

TEST_P(LifeOutOfMemoryTest, FailedInitialisationReachesTheFrameworkAndCanBeTriedAgain)
{
    const auto owner = newModule();
    std::int32_t result = -1;
    const auto failures = failEachAllocation(
        GetParam(), [&] { result = owner->onModuleInit(); }, [&] { EXPECT_EQ(-1, result); });
    EXPECT_LT(0U, failures);
    EXPECT_EQ(0, result);
    EXPECT_EQ(0, commands().stopDpd(2));
    EXPECT_EQ(0, commands().getCtStatus(1, report));
}

TEST_P(LifeOutOfMemoryTest, FailedInitialisationForLackOfAnInterfaceIsTracedOrReachesTheFramework)
{
    interfaces().erase("IDpdControllerSplit_1");
    const auto owner = newModule();
    std::int32_t result = -1;
    const auto failures = failEachAllocation(
        GetParam(), [&] { result = owner->onModuleInit(); }, [&] { EXPECT_EQ(-1, result); });
    EXPECT_LT(0U, failures);
    EXPECT_EQ(0x8000, result);
    EXPECT_THAT(messages(), ::testing::SizeIs(1));
}

INSTANTIATE_TEST_SUITE_P(Allocations, LifeOutOfMemoryTest, ::testing::Values(Failing::Once, Failing::FromThenOn),
                         ::testing::PrintToStringParamName());

} // namespace
