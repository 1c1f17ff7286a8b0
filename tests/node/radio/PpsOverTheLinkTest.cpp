#include <cstdint>

#include <gtest/gtest.h>

#include "node/radio/RadioLink.h"

using node::radio::Channel;
using node::radio::LinkSetup;
using node::radio::Pps;
using node::radio::PpsCalibration;
using node::radio::PpsFailure;
using node::radio::PpsRequest;
using node::radio::Profile;
using node::radio::RadioLink;
using node::radio::Ticks;
using enum PpsCalibration;

namespace
{

class PpsOverTheLinkTest : public ::testing::TestWithParam<std::uint32_t>
{
protected:
    Pps pps() const
    {
        return link.snapshot(channel).state.pps;
    }

    double hopLengthTime_ns() const
    {
        return link.snapshot(channel).readings.hopLengthTime_ns;
    }

    std::uint32_t channel = GetParam();
    std::uint32_t otherChannel = 3 - GetParam();
    RadioLink link;
};

TEST_P(PpsOverTheLinkTest, TheHopLengthTimeIsResolvedStepByStep)
{
    link.calibratePps(channel, PpsRequest::Auto, 0);
    link.advance(Ticks(99));
    EXPECT_EQ(CoarseNotCompleted, pps().calibration);
    EXPECT_EQ(33'000, hopLengthTime_ns());
    link.advance(Ticks(1));
    EXPECT_EQ(FineNotCompleted, pps().calibration);
    EXPECT_EQ(33'360, hopLengthTime_ns());
    link.advance(Ticks(299));
    EXPECT_EQ(FineNotCompleted, pps().calibration);
    link.advance(Ticks(1));
    EXPECT_EQ(Auto, pps().calibration);
    EXPECT_EQ(33'367, hopLengthTime_ns());
    EXPECT_EQ(Never, link.snapshot(otherChannel).state.pps.calibration);
}

TEST_P(PpsOverTheLinkTest, AGivenTimeIsTheHopLengthTime)
{
    link.calibratePps(channel, PpsRequest::Manual, 4711);
    EXPECT_EQ(Manual, pps().calibration);
    EXPECT_EQ(4711, hopLengthTime_ns());
}

TEST_P(PpsOverTheLinkTest, ALossOfTheLockFailsItAtOnce)
{
    link.calibratePps(channel, PpsRequest::Coarse, 0);
    link.calibratePps(otherChannel, PpsRequest::Coarse, 0);
    link.change(channel, [](Channel& state) { state.transmitter.on = false; });
    EXPECT_EQ(Failed, pps().calibration);
    EXPECT_EQ(PpsFailure::SlaveLinkLoss, pps().failure);
    EXPECT_EQ(CoarseNotCompleted, link.snapshot(otherChannel).state.pps.calibration);
}

TEST_P(PpsOverTheLinkTest, WithoutLockItFailsAtOnce)
{
    link.turnFade(100);
    link.calibratePps(channel, PpsRequest::Auto, 0);
    EXPECT_EQ(Failed, pps().calibration);
    EXPECT_EQ(PpsFailure::SlaveLinkLoss, pps().failure);
}

TEST_P(PpsOverTheLinkTest, AFadeThatLowersTheModulationFailsItAtOnce)
{
    link.calibratePps(channel, PpsRequest::Coarse, 0);
    link.turnFade(30);
    EXPECT_EQ(PpsFailure::ModulationChange, pps().failure);
}

TEST_P(PpsOverTheLinkTest, AModulationThatRisesFailsItInThatTick)
{
    link.turnFade(30);
    link.calibratePps(channel, PpsRequest::Coarse, 0);
    link.advance(Ticks(50));
    EXPECT_EQ(CoarseNotCompleted, pps().calibration);
    link.turnFade(0);
    EXPECT_EQ(CoarseNotCompleted, pps().calibration);
    link.advance(Ticks(1));
    EXPECT_EQ(PpsFailure::ModulationChange, pps().failure);
}

TEST_P(PpsOverTheLinkTest, AFarEndThatDoesNotAnswerFailsItAfterFiveSeconds)
{
    link.change(channel, [](Channel& state) { state.ppsMasterAnswers = false; });
    link.calibratePps(channel, PpsRequest::Coarse, 0);
    link.calibratePps(otherChannel, PpsRequest::Coarse, 0);
    link.advance(Ticks(49));
    EXPECT_EQ(CoarseNotCompleted, pps().calibration);
    link.advance(Ticks(1));
    EXPECT_EQ(PpsFailure::NoResponseFromMaster, pps().failure);
    EXPECT_EQ(PpsFailure::None, link.snapshot(otherChannel).state.pps.failure);
}

TEST_P(PpsOverTheLinkTest, AnAutomaticOneEndsWithTheLock)
{
    link.calibratePps(channel, PpsRequest::Auto, 0);
    link.advance(Ticks(400));
    link.turnFade(30);
    EXPECT_EQ(Auto, pps().calibration);
    link.turnFade(100);
    EXPECT_EQ(PpsFailure::SlaveLinkLoss, pps().failure);
    EXPECT_EQ(33'000, hopLengthTime_ns());
}

INSTANTIATE_TEST_SUITE_P(EachChannel, PpsOverTheLinkTest, ::testing::Values(1, 2));

TEST(PpsOfALinkTest, ACoarseCalibrationResolvesASymbolOfTheWiderChannel)
{
    LinkSetup setup;
    setup.hop.symbolRate_Bd = 100e6;
    RadioLink link(setup);
    link.calibratePps(1, PpsRequest::Coarse, 0);
    link.advance(Ticks(100));
    EXPECT_EQ(33'370, link.snapshot(1).readings.hopLengthTime_ns);
}

TEST(PpsOfALinkTest, AFadeInItsLastTickFailsACalibration)
{
    LinkSetup setup;
    setup.weather.fade_dB = Profile({{9.9, 0}, {10.0, 30}});
    RadioLink link(setup);
    link.calibratePps(1, PpsRequest::Coarse, 0);
    link.advance(Ticks(100));
    EXPECT_EQ(PpsFailure::ModulationChange, link.snapshot(1).state.pps.failure);
}

TEST(PpsOfALinkTest, AnAutomaticCalibrationDoesNotOutliveABeginningWithoutLock)
{
    LinkSetup setup;
    setup.channels[0].transmitter.on = false;
    setup.channels[0].pps.calibration = Auto;
    setup.channels[1].pps.calibration = Auto;
    const RadioLink link(setup);
    EXPECT_EQ(PpsFailure::SlaveLinkLoss, link.snapshot(1).state.pps.failure);
    EXPECT_EQ(Auto, link.snapshot(2).state.pps.calibration);
}

} // namespace
