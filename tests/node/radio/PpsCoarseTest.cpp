#include <gtest/gtest.h>

#include "node/radio/Pps.h"

using node::radio::Pps;
using node::radio::PpsCalibration;
using node::radio::PpsFailure;
using node::radio::PpsRequest;
using node::radio::PpsSurroundings;

namespace
{

constexpr PpsSurroundings Good{};
constexpr PpsSurroundings Unlocked{.locked = false};
constexpr PpsSurroundings Silent{.masterAnswers = false};

constexpr int CoarseTicks = 100;
constexpr int AnswerTicks = 50;

void advanceFor(Pps& pps, int ticks, const PpsSurroundings& surroundings = Good)
{
    for (int tick = 0; tick < ticks; ++tick)
    {
        pps.advance(surroundings);
    }
}

/// A calibration whose coarse step is done and whose fine one runs.
Pps withCoarseDone()
{
    Pps pps;
    pps.calibrate(PpsRequest::Auto, 0, Good);
    advanceFor(pps, CoarseTicks);
    return pps;
}

bool fineStarts(Pps pps)
{
    pps.calibrate(PpsRequest::Fine, 0, Good);
    EXPECT_EQ(pps.running() ? PpsFailure::None : PpsFailure::CoarseFirst, pps.failure);
    return pps.running();
}

TEST(PpsCoarseTest, AFineCalibrationNeedsTheWholeCoarseOne)
{
    Pps pps;
    pps.calibrate(PpsRequest::Coarse, 0, Good);
    advanceFor(pps, CoarseTicks - 1);
    EXPECT_FALSE(fineStarts(pps));
    advanceFor(pps, 1);
    EXPECT_TRUE(fineStarts(pps));
}

TEST(PpsCoarseTest, ATimeGivenByHandIsNoCoarseCalibration)
{
    Pps pps;
    pps.calibrate(PpsRequest::Manual, 33'367, Good);
    EXPECT_FALSE(fineStarts(pps));
}

TEST(PpsCoarseTest, ATimeGivenByHandLeavesACoarseCalibrationThere)
{
    Pps pps = withCoarseDone();
    pps.calibrate(PpsRequest::Manual, 33'367, Good);
    EXPECT_TRUE(fineStarts(pps));
}

TEST(PpsCoarseTest, AFailedFineCalibrationLeavesTheCoarseOneThere)
{
    Pps pps = withCoarseDone();
    advanceFor(pps, AnswerTicks, Silent);
    EXPECT_EQ(PpsFailure::NoResponseFromMaster, pps.failure);
    EXPECT_TRUE(fineStarts(pps));
}

TEST(PpsCoarseTest, ALossOfTheLinkTakesTheCoarseCalibrationAway)
{
    Pps pps = withCoarseDone();
    pps.fall(Unlocked);
    EXPECT_EQ(PpsFailure::SlaveLinkLoss, pps.failure);
    EXPECT_FALSE(fineStarts(pps));
}

TEST(PpsCoarseTest, ALossOfTheLockThatDisturbsNothingLeavesItThere)
{
    Pps pps = withCoarseDone();
    pps.calibrate(PpsRequest::Manual, 33'367, Good);
    pps.fall(Unlocked);
    EXPECT_EQ(PpsCalibration::Manual, pps.calibration);
    EXPECT_TRUE(fineStarts(pps));
}

TEST(PpsCoarseTest, ANewCoarseCalibrationTakesTheOldOneAway)
{
    Pps pps = withCoarseDone();
    pps.calibrate(PpsRequest::Coarse, 0, Good);
    EXPECT_FALSE(fineStarts(pps));
}

TEST(PpsCoarseTest, RunsFromTheRequestToItsEnd)
{
    Pps pps;
    EXPECT_FALSE(pps.running());
    pps.calibrate(PpsRequest::Coarse, 0, Good);
    EXPECT_TRUE(pps.running());
    advanceFor(pps, CoarseTicks);
    EXPECT_FALSE(pps.running());
}

} // namespace
