#include <ostream>

#include <gtest/gtest.h>

#include "node/radio/Pps.h"

using node::radio::Pps;
using node::radio::PpsCalibration;
using node::radio::PpsFailure;
using node::radio::PpsRequest;
using node::radio::PpsSurroundings;
using enum PpsCalibration;
using Failure = PpsFailure;
using Request = PpsRequest;

namespace
{

constexpr PpsSurroundings Good{true, true, 34};
constexpr PpsSurroundings Unlocked{false, true, 34};
constexpr PpsSurroundings Slower{true, true, 33};
constexpr PpsSurroundings Faster{true, true, 35};
constexpr PpsSurroundings SlowerAndUnlocked{false, true, 33};
constexpr PpsSurroundings Silent{true, false, 34};

void advanceFor(Pps& pps, int ticks, const PpsSurroundings& surroundings = Good)
{
    for (int tick = 0; tick < ticks; ++tick)
    {
        pps.advance(surroundings);
        pps.fall(surroundings);
    }
}

struct Event
{
    const char* what;
    PpsRequest request;
    int ticks; ///< after which it happens
    PpsSurroundings surroundings;
    PpsCalibration calibration;
    PpsFailure failure;
};

std::ostream& operator<<(std::ostream& out, const Event& row)
{
    return out << "request " << static_cast<int>(row.request) << ", tick " << row.ticks << ": " << row.what;
}

class PpsEventTest : public ::testing::TestWithParam<Event>
{
protected:
    PpsEventTest()
    {
        pps.calibration = FineNotCompleted;
        pps.coarseDone = true;
        pps.calibrate(GetParam().request, 17, Good);
        advanceFor(pps, GetParam().ticks);
    }

    Pps pps;
};

TEST_P(PpsEventTest, LeadsToItsStateAtOnce)
{
    pps.fall(GetParam().surroundings);
    EXPECT_EQ(GetParam().calibration, pps.calibration);
    EXPECT_EQ(GetParam().failure, pps.failure);
}

TEST_P(PpsEventTest, AFailureStaysWhenItsReasonIsGone)
{
    pps.fall(GetParam().surroundings);
    const PpsFailure failure = pps.failure;
    advanceFor(pps, 1000);
    EXPECT_EQ(GetParam().calibration == Failed, pps.calibration == Failed);
    EXPECT_EQ(failure, pps.failure);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(EachRequest, PpsEventTest, ::testing::Values(
    Event{"lock goes",       Request::Coarse, 0,   Unlocked,          Failed,             Failure::SlaveLinkLoss},
    Event{"lock goes",       Request::Coarse, 99,  Unlocked,          Failed,             Failure::SlaveLinkLoss},
    Event{"lock goes",       Request::Coarse, 100, Unlocked,          FineNotCompleted,   Failure::None},
    Event{"lock goes",       Request::Fine,   0,   Unlocked,          Failed,             Failure::SlaveLinkLoss},
    Event{"lock goes",       Request::Fine,   299, Unlocked,          Failed,             Failure::SlaveLinkLoss},
    Event{"lock goes",       Request::Fine,   300, Unlocked,          Manual,             Failure::None},
    Event{"lock goes",       Request::Auto,   100, Unlocked,          Failed,             Failure::SlaveLinkLoss},
    Event{"lock goes",       Request::Auto,   399, Unlocked,          Failed,             Failure::SlaveLinkLoss},
    Event{"lock goes",       Request::Auto,   400, Unlocked,          Failed,             Failure::SlaveLinkLoss},
    Event{"lock goes",       Request::Manual, 0,   Unlocked,          Manual,             Failure::None},
    Event{"slower",          Request::Coarse, 50,  Slower,            Failed,             Failure::ModulationChange},
    Event{"faster",          Request::Coarse, 50,  Faster,            Failed,             Failure::ModulationChange},
    Event{"slower",          Request::Coarse, 100, Slower,            FineNotCompleted,   Failure::None},
    Event{"slower",          Request::Fine,   299, Slower,            Failed,             Failure::ModulationChange},
    Event{"slower",          Request::Fine,   300, Slower,            Manual,             Failure::None},
    Event{"slower",          Request::Auto,   99,  Slower,            Failed,             Failure::ModulationChange},
    Event{"faster",          Request::Auto,   200, Faster,            Failed,             Failure::ModulationChange},
    Event{"slower",          Request::Auto,   400, Slower,            Auto,               Failure::None},
    Event{"slower",          Request::Manual, 0,   Slower,            Manual,             Failure::None},
    Event{"slower, no lock", Request::Coarse, 50,  SlowerAndUnlocked, Failed,             Failure::SlaveLinkLoss},
    Event{"silence begins",  Request::Coarse, 50,  Silent,            CoarseNotCompleted, Failure::None},
    Event{"nothing",         Request::Coarse, 50,  Good,              CoarseNotCompleted, Failure::None}));
// clang-format on

struct Start
{
    PpsCalibration before;
    PpsRequest request;
    PpsCalibration after;
    PpsFailure failure;
};

std::ostream& operator<<(std::ostream& out, const Start& row)
{
    return out << "state " << static_cast<int>(row.before) << ", request " << static_cast<int>(row.request);
}

class PpsWithoutLockTest : public ::testing::TestWithParam<Start>
{
};

TEST_P(PpsWithoutLockTest, NothingButAGivenTimeIsTaken)
{
    Pps pps;
    pps.calibration = GetParam().before;
    pps.coarseDone = pps.calibration == FineNotCompleted || pps.calibration == Auto || pps.calibration == Manual;
    pps.calibrate(GetParam().request, 17, Unlocked);
    EXPECT_EQ(GetParam().after, pps.calibration);
    EXPECT_EQ(GetParam().failure, pps.failure);
}

INSTANTIATE_TEST_SUITE_P(EachRequest, PpsWithoutLockTest,
                         ::testing::Values(Start{Never, Request::Coarse, Failed, Failure::SlaveLinkLoss},
                                           Start{Never, Request::Fine, Failed, Failure::CoarseFirst},
                                           Start{FineNotCompleted, Request::Fine, Failed, Failure::SlaveLinkLoss},
                                           Start{Never, Request::Auto, Failed, Failure::SlaveLinkLoss},
                                           Start{Never, Request::Manual, Manual, Failure::None}));

TEST(PpsFailureTest, AMasterHasFiveSecondsToAnswer)
{
    for (const auto request : {Request::Coarse, Request::Fine, Request::Auto})
    {
        Pps pps;
        pps.calibration = FineNotCompleted;
        pps.coarseDone = true;
        pps.calibrate(request, 0, Good);
        advanceFor(pps, 49, Silent);
        EXPECT_EQ(Failure::None, pps.failure);
        advanceFor(pps, 1, Silent);
        EXPECT_EQ(Failed, pps.calibration);
        EXPECT_EQ(Failure::NoResponseFromMaster, pps.failure);
    }
}

TEST(PpsFailureTest, ASilenceProlongsTheCalibrationByAsLong)
{
    Pps pps;
    pps.calibrate(Request::Coarse, 0, Good);
    advanceFor(pps, 20);
    advanceFor(pps, 49, Silent);
    advanceFor(pps, 79);
    EXPECT_EQ(CoarseNotCompleted, pps.calibration);
    advanceFor(pps, 1);
    EXPECT_EQ(FineNotCompleted, pps.calibration);
}

TEST(PpsFailureTest, AnAnswerEndsTheSilence)
{
    Pps pps;
    pps.calibrate(Request::Coarse, 0, Good);
    advanceFor(pps, 49, Silent);
    advanceFor(pps, 1);
    advanceFor(pps, 49, Silent);
    EXPECT_EQ(CoarseNotCompleted, pps.calibration);
    advanceFor(pps, 1, Silent);
    EXPECT_EQ(Failed, pps.calibration);
}

TEST(PpsFailureTest, ANewRequestGivesTheMasterItsTimeAgain)
{
    Pps pps;
    pps.calibrate(Request::Coarse, 0, Good);
    advanceFor(pps, 49, Silent);
    pps.calibrate(Request::Coarse, 0, Silent);
    advanceFor(pps, 49, Silent);
    EXPECT_EQ(CoarseNotCompleted, pps.calibration);
}

TEST(PpsFailureTest, ASilentMasterDisturbsNothingThatIsFinished)
{
    for (const auto request : {Request::Coarse, Request::Fine, Request::Auto, Request::Manual})
    {
        Pps pps;
        pps.calibration = FineNotCompleted;
        pps.coarseDone = true;
        pps.calibrate(request, 0, Good);
        advanceFor(pps, 400);
        const PpsCalibration finished = pps.calibration;
        advanceFor(pps, 1000, Silent);
        EXPECT_EQ(finished, pps.calibration);
        EXPECT_EQ(Failure::None, pps.failure);
    }
}

TEST(PpsFailureTest, TheModulationOfTheNewRequestCounts)
{
    Pps pps;
    pps.calibrate(Request::Coarse, 0, Good);
    pps.calibrate(Request::Coarse, 0, Slower);
    pps.fall(Slower);
    EXPECT_EQ(Failure::None, pps.failure);
    pps.fall(Good);
    EXPECT_EQ(Failure::ModulationChange, pps.failure);
}

TEST(PpsFailureTest, AfterAFailureAFineCalibrationNeedsACoarseOneAgain)
{
    Pps pps;
    pps.calibrate(Request::Auto, 0, Good);
    advanceFor(pps, 200);
    pps.fall(Unlocked);
    pps.calibrate(Request::Fine, 0, Good);
    EXPECT_EQ(Failed, pps.calibration);
    EXPECT_EQ(Failure::CoarseFirst, pps.failure);
}

} // namespace
