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

constexpr PpsSurroundings Good{};

/// Longer than every calibration.
constexpr int Long = 1000;

void advanceFor(Pps& pps, int ticks)
{
    for (int tick = 0; tick < ticks; ++tick)
    {
        pps.advance(Good);
        pps.fall(Good);
    }
}

struct Transition
{
    PpsCalibration before;
    PpsRequest request;
    PpsCalibration atOnce;
    PpsCalibration atTheEnd;
    PpsFailure failure = PpsFailure::None;
};

std::ostream& operator<<(std::ostream& out, const Transition& row)
{
    return out << "state " << static_cast<int>(row.before) << ", request " << static_cast<int>(row.request);
}

class PpsTransitionTest : public ::testing::TestWithParam<Transition>
{
protected:
    PpsTransitionTest()
    {
        pps.calibration = GetParam().before;
        pps.coarseDone = pps.calibration == FineNotCompleted || pps.calibration == Auto || pps.calibration == Manual;
        pps.failure = Failure::ModulationChange; // of an earlier request
    }

    Pps pps;
};

TEST_P(PpsTransitionTest, LeadsToItsStateAtOnce)
{
    pps.calibrate(GetParam().request, 17, Good);
    EXPECT_EQ(GetParam().atOnce, pps.calibration);
    EXPECT_EQ(GetParam().failure, pps.failure);
}

TEST_P(PpsTransitionTest, LeadsToItsStateInTheEnd)
{
    pps.calibrate(GetParam().request, 17, Good);
    advanceFor(pps, Long);
    EXPECT_EQ(GetParam().atTheEnd, pps.calibration);
    EXPECT_EQ(GetParam().failure, pps.failure);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(EveryStateAndRequest, PpsTransitionTest, ::testing::Values(
    Transition{Never,              Request::Coarse, CoarseNotCompleted, FineNotCompleted},
    Transition{Never,              Request::Fine,   Failed,             Failed, Failure::CoarseFirst},
    Transition{Never,              Request::Auto,   CoarseNotCompleted, Auto},
    Transition{Never,              Request::Manual, Manual,             Manual},
    Transition{CoarseNotCompleted, Request::Coarse, CoarseNotCompleted, FineNotCompleted},
    Transition{CoarseNotCompleted, Request::Fine,   Failed,             Failed, Failure::CoarseFirst},
    Transition{CoarseNotCompleted, Request::Auto,   CoarseNotCompleted, Auto},
    Transition{CoarseNotCompleted, Request::Manual, Manual,             Manual},
    Transition{FineNotCompleted,   Request::Coarse, CoarseNotCompleted, FineNotCompleted},
    Transition{FineNotCompleted,   Request::Fine,   FineNotCompleted,   Manual},
    Transition{FineNotCompleted,   Request::Auto,   CoarseNotCompleted, Auto},
    Transition{FineNotCompleted,   Request::Manual, Manual,             Manual},
    Transition{Auto,               Request::Coarse, CoarseNotCompleted, FineNotCompleted},
    Transition{Auto,               Request::Fine,   FineNotCompleted,   Manual},
    Transition{Auto,               Request::Auto,   CoarseNotCompleted, Auto},
    Transition{Auto,               Request::Manual, Manual,             Manual},
    Transition{Manual,             Request::Coarse, CoarseNotCompleted, FineNotCompleted},
    Transition{Manual,             Request::Fine,   FineNotCompleted,   Manual},
    Transition{Manual,             Request::Auto,   CoarseNotCompleted, Auto},
    Transition{Manual,             Request::Manual, Manual,             Manual},
    Transition{Failed,             Request::Coarse, CoarseNotCompleted, FineNotCompleted},
    Transition{Failed,             Request::Fine,   Failed,             Failed, Failure::CoarseFirst},
    Transition{Failed,             Request::Auto,   CoarseNotCompleted, Auto},
    Transition{Failed,             Request::Manual, Manual,             Manual}));
// clang-format on

struct Moment
{
    PpsRequest request;
    int ticks;
    PpsCalibration calibration;
};

std::ostream& operator<<(std::ostream& out, const Moment& row)
{
    return out << "request " << static_cast<int>(row.request) << ", tick " << row.ticks;
}

class PpsTimeTest : public ::testing::TestWithParam<Moment>
{
};

TEST_P(PpsTimeTest, HasItsStateAtTheTick)
{
    Pps pps;
    pps.calibration = FineNotCompleted;
    pps.coarseDone = true;
    pps.calibrate(GetParam().request, 0, Good);
    advanceFor(pps, GetParam().ticks);
    EXPECT_EQ(GetParam().calibration, pps.calibration);
}

INSTANTIATE_TEST_SUITE_P(
    EachStep, PpsTimeTest,
    ::testing::Values(Moment{Request::Coarse, 99, CoarseNotCompleted}, Moment{Request::Coarse, 100, FineNotCompleted},
                      Moment{Request::Fine, 299, FineNotCompleted}, Moment{Request::Fine, 300, Manual},
                      Moment{Request::Auto, 99, CoarseNotCompleted}, Moment{Request::Auto, 100, FineNotCompleted},
                      Moment{Request::Auto, 399, FineNotCompleted}, Moment{Request::Auto, 400, Auto}));

TEST(PpsTest, IsNeverCalibratedAtTheBeginning)
{
    Pps pps;
    advanceFor(pps, Long);
    EXPECT_EQ(Never, pps.calibration);
    EXPECT_EQ(Failure::None, pps.failure);
    EXPECT_FALSE(pps.givenTime_ns.has_value());
}

TEST(PpsTest, ARequestTakesThePlaceOfWhatRuns)
{
    Pps pps;
    pps.calibrate(Request::Auto, 0, Good);
    advanceFor(pps, 99);
    pps.calibrate(Request::Coarse, 0, Good);
    advanceFor(pps, 99);
    EXPECT_EQ(CoarseNotCompleted, pps.calibration);
    advanceFor(pps, Long);
    EXPECT_EQ(FineNotCompleted, pps.calibration);
}

TEST(PpsTest, AGivenTimeEndsWhatRuns)
{
    Pps pps;
    pps.calibrate(Request::Coarse, 0, Good);
    advanceFor(pps, 50);
    pps.calibrate(Request::Manual, 17, Good);
    advanceFor(pps, 50);
    EXPECT_EQ(Manual, pps.calibration);
    EXPECT_EQ(17U, pps.givenTime_ns);
}

struct Resolution
{
    PpsCalibration calibration;
    double travelTime_ns;
    double symbolTime_ns;
    double resolved_ns;
};

std::ostream& operator<<(std::ostream& out, const Resolution& row)
{
    return out << "state " << static_cast<int>(row.calibration) << ", " << row.travelTime_ns << " ns in symbols of "
               << row.symbolTime_ns << " ns";
}

class PpsResolutionTest : public ::testing::TestWithParam<Resolution>
{
};

TEST_P(PpsResolutionTest, ResolvesTheTravelTimeAsFarAsItIsCalibrated)
{
    Pps pps;
    pps.calibration = GetParam().calibration;
    EXPECT_EQ(GetParam().resolved_ns, pps.resolve_ns(GetParam().travelTime_ns, GetParam().symbolTime_ns));
}

INSTANTIATE_TEST_SUITE_P(
    EachState, PpsResolutionTest,
    ::testing::Values(Resolution{Never, 33'366.92, 40, 33'000}, Resolution{Never, 33'600, 40, 34'000},
                      Resolution{CoarseNotCompleted, 33'366.92, 40, 33'000}, Resolution{Failed, 33'366.92, 40, 33'000},
                      Resolution{FineNotCompleted, 33'366.92, 40, 33'360},
                      Resolution{FineNotCompleted, 33'390, 40, 33'400},
                      Resolution{FineNotCompleted, 33'366.92, 10, 33'370}, Resolution{Auto, 33'366.92, 40, 33'367},
                      Resolution{Auto, 33'366.4, 40, 33'366}, Resolution{Manual, 33'366.92, 40, 33'367}));

TEST(PpsTest, AGivenTimeStandsForTheTravelTime)
{
    Pps pps;
    pps.calibrate(Request::Manual, 65535, Good);
    EXPECT_EQ(65535.0, pps.resolve_ns(33'366.92, 40));
    pps.calibrate(Request::Manual, 0, Good);
    EXPECT_EQ(0.0, pps.resolve_ns(33'366.92, 40));
}

TEST(PpsTest, AGivenTimeIsForgottenWithTheNextRequest)
{
    for (const auto request : {Request::Coarse, Request::Fine, Request::Auto})
    {
        Pps pps;
        pps.coarseDone = true;
        pps.calibrate(Request::Manual, 17, Good);
        pps.calibrate(request, 99, Good);
        EXPECT_FALSE(pps.givenTime_ns.has_value());
        advanceFor(pps, Long);
        EXPECT_EQ(request == Request::Coarse ? 33'360.0 : 33'367.0, pps.resolve_ns(33'366.92, 40));
    }
}

TEST(PpsTest, ACalibrationLeavesSourceAndOutputModeAlone)
{
    for (const auto request : {Request::Coarse, Request::Fine, Request::Auto, Request::Manual})
    {
        Pps pps;
        pps.source = 2;
        pps.sourceParameter = -3;
        pps.outputMode = 1;
        pps.calibrate(request, 17, Good);
        advanceFor(pps, Long);
        EXPECT_EQ(2U, pps.source);
        EXPECT_EQ(-3, pps.sourceParameter);
        EXPECT_EQ(1U, pps.outputMode);
    }
}

} // namespace
