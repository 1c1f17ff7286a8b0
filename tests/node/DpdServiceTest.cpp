#include <cstdint>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/ServiceTest.h"
#include "node/services/DpdController.h"

using ::testing::Each;

namespace
{

class DpdServiceTest : public ServiceTest
{
protected:
    node::services::DpdController controller{link, channel};
    node::services::DpdController otherController{link, otherChannel};
};

TEST_P(DpdServiceTest, StopsAndStartsThePredistortionOfItsChannel)
{
    EXPECT_EQ(EDPDResult::Success, controller.stop());
    EXPECT_FALSE(link.snapshot(channel).state.dpd.running);
    EXPECT_TRUE(link.snapshot(otherChannel).state.dpd.running);
    EXPECT_EQ(EDPDResult::Success, controller.start(controller.getStartParameter()));
    EXPECT_TRUE(link.snapshot(channel).state.dpd.running);
}

TEST_P(DpdServiceTest, CanBeStoppedAndStartedTwice)
{
    EXPECT_EQ(EDPDResult::Success, controller.start(1));
    EXPECT_TRUE(link.snapshot(channel).state.dpd.running);
    EXPECT_EQ(EDPDResult::Success, controller.stop());
    EXPECT_EQ(EDPDResult::Success, controller.stop());
    EXPECT_FALSE(link.snapshot(channel).state.dpd.running);
}

TEST_P(DpdServiceTest, TheStartParameterIs1)
{
    EXPECT_EQ(1U, controller.getStartParameter());
}

TEST_P(DpdServiceTest, EveryOtherStartParameterFails)
{
    EXPECT_EQ(EDPDResult::Success, controller.stop());
    for (const std::uint32_t parameter : {0U, 2U, 0xFFFFFFFFU})
    {
        EXPECT_EQ(EDPDResult::Failure, controller.start(parameter)) << parameter;
        EXPECT_FALSE(link.snapshot(channel).state.dpd.running);
    }
}

TEST_P(DpdServiceTest, StartsWithCoefficientsOf0)
{
    DpdCoeffs read;
    read.bytes.fill(99);
    EXPECT_EQ(EDPDResult::Success, controller.getCoeffs(&read));
    EXPECT_THAT(read.bytes, Each(0));
}

TEST_P(DpdServiceTest, CoefficientsAreReadBackByteForByte)
{
    DpdCoeffs written;
    for (std::size_t i = 0; i < written.bytes.size(); ++i)
    {
        written.bytes[i] = static_cast<std::uint8_t>(255 - 13 * i);
    }
    EXPECT_EQ(EDPDResult::Success, controller.setCoeffs(written));
    EXPECT_EQ(EDPDResult::Success, controller.stop());
    DpdCoeffs read;
    EXPECT_EQ(EDPDResult::Success, controller.getCoeffs(&read));
    EXPECT_EQ(written.bytes, read.bytes);
    EXPECT_EQ(EDPDResult::Success, otherController.getCoeffs(&read));
    EXPECT_THAT(read.bytes, Each(0));
}

INSTANTIATE_TEST_SUITE_P(EachChannel, DpdServiceTest, ::testing::Values(1, 2));

} // namespace
