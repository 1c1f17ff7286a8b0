#include <cstdint>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/services/DpdController.h"
#include "node/services/RecordText.h"
#include "node/services/ServiceTest.h"

using node::radio::Channel;
using node::radio::Ticks;
using node::services::DpdController;
using ::testing::Each;

namespace
{

class DpdServiceTest : public ServiceTest
{
protected:
    node::radio::Dpd stateOf(RadioChannel of) const
    {
        return link.snapshot(of).state.dpd;
    }

    DpdCoeffs readCoefficients()
    {
        DpdCoeffs read;
        read.bytes.fill(99);
        EXPECT_EQ(EDPDResult::Success, controller.getCoeffs(&read));
        return read;
    }

    DpdController controller{context, channel};
    DpdController otherController{context, otherChannel};
};

TEST_P(DpdServiceTest, StopsAndStartsThePredistortionOfItsChannel)
{
    EXPECT_EQ(EDPDResult::Success, controller.stop());
    EXPECT_FALSE(stateOf(channel).running);
    EXPECT_TRUE(stateOf(otherChannel).running);
    EXPECT_EQ(EDPDResult::Success, controller.start(controller.getStartParameter()));
    EXPECT_TRUE(stateOf(channel).running);
}

TEST_P(DpdServiceTest, CanBeStoppedAndStartedTwice)
{
    EXPECT_EQ(EDPDResult::Success, controller.start(1));
    EXPECT_TRUE(stateOf(channel).running);
    EXPECT_EQ(EDPDResult::Success, controller.stop());
    EXPECT_EQ(EDPDResult::Success, controller.stop());
    EXPECT_FALSE(stateOf(channel).running);
}

TEST_P(DpdServiceTest, StoppedItHasNoEffectAtOnceAndStartedItGainsItIn10Seconds)
{
    EXPECT_EQ(EDPDResult::Success, controller.stop());
    EXPECT_EQ(Ticks(0), stateOf(channel).adapted);
    EXPECT_EQ(EDPDResult::Success, controller.start(1));
    EXPECT_EQ(Ticks(0), stateOf(channel).adapted);
    link.advance(Ticks(99));
    EXPECT_EQ(Ticks(99), stateOf(channel).adapted);
    EXPECT_EQ(EDPDResult::Success, controller.start(1));
    link.advance(Ticks(2));
    EXPECT_EQ(Ticks(100), stateOf(channel).adapted);
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
        EXPECT_FALSE(stateOf(channel).running);
    }
}

TEST_P(DpdServiceTest, DoesNotStartWhileItsModemIsNotLocked)
{
    EXPECT_EQ(EDPDResult::Success, controller.stop());
    link.turnFade(60.0);
    const std::string before = contentOf(link);
    EXPECT_EQ(EDPDResult{0x8001}, controller.start(1));
    EXPECT_EQ(EDPDResult::Failure, controller.start(2));
    EXPECT_EQ(before, contentOf(link));
    link.turnFade(0.0);
    EXPECT_EQ(DpdController::NotLocked, controller.start(1));
    link.advance(Ticks(1));
    EXPECT_EQ(EDPDResult::Success, controller.start(1));
}

TEST_P(DpdServiceTest, TheLockOfTheOtherModemDoesNotMatter)
{
    EXPECT_EQ(EDPDResult::Success, controller.stop());
    link.change(otherChannel, [](Channel& state) { state.transmitter.on = false; });
    EXPECT_EQ(EDPDResult::Success, controller.start(1));
    EXPECT_EQ(DpdController::NotLocked, otherController.start(1));
}

TEST_P(DpdServiceTest, StopsAndKeepsItsCoefficientsWithoutALock)
{
    link.turnFade(60.0);
    EXPECT_EQ(EDPDResult::Success, controller.stop());
    EXPECT_EQ(EDPDResult::Success, controller.setCoeffs({{1, 2, 3}}));
    EXPECT_EQ((DpdCoeffs{{1, 2, 3}}.bytes), readCoefficients().bytes);
}

TEST_P(DpdServiceTest, StartsWithCoefficientsOf0)
{
    EXPECT_THAT(readCoefficients().bytes, Each(0));
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
    EXPECT_EQ(EDPDResult::Success, controller.start(1));
    link.advance(Ticks(200));
    EXPECT_EQ(written.bytes, readCoefficients().bytes);
    DpdCoeffs read;
    EXPECT_EQ(EDPDResult::Success, otherController.getCoeffs(&read));
    EXPECT_THAT(read.bytes, Each(0));
}

INSTANTIATE_TEST_SUITE_P(EachChannel, DpdServiceTest, ::testing::Values(1, 2));

} // namespace
