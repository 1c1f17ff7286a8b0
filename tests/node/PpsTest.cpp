#include <ostream>

#include <gtest/gtest.h>

#include "node/radio/Pps.h"

using node::radio::calibrate;
using node::radio::Pps;
using node::radio::PpsCalibration;
using node::radio::PpsFailure;
using node::radio::PpsRequest;
using enum PpsCalibration;
using Failure = PpsFailure;
using Request = PpsRequest;

namespace
{

struct Transition
{
    PpsCalibration before;
    PpsRequest request;
    PpsCalibration after;
    PpsFailure failure = PpsFailure::None;
};

std::ostream& operator<<(std::ostream& out, const Transition& row)
{
    return out << "state " << static_cast<int>(row.before) << ", request " << static_cast<int>(row.request);
}

class PpsTransitionTest : public ::testing::TestWithParam<Transition>
{
};

TEST_P(PpsTransitionTest, LeadsToItsState)
{
    const Transition& row = GetParam();
    Pps pps;
    pps.calibration = row.before;
    pps.failure = Failure::ModulationChange; // of an earlier request
    calibrate(pps, row.request, 0);
    EXPECT_EQ(row.after, pps.calibration);
    EXPECT_EQ(row.failure, pps.failure);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(EveryStateAndRequest, PpsTransitionTest, ::testing::Values(
    Transition{Never,              Request::Coarse, FineNotCompleted},
    Transition{Never,              Request::Fine,   Failed, Failure::CoarseFirst},
    Transition{Never,              Request::Auto,   Auto},
    Transition{Never,              Request::Manual, Manual},
    Transition{CoarseNotCompleted, Request::Coarse, FineNotCompleted},
    Transition{CoarseNotCompleted, Request::Fine,   Failed, Failure::CoarseFirst},
    Transition{CoarseNotCompleted, Request::Auto,   Auto},
    Transition{CoarseNotCompleted, Request::Manual, Manual},
    Transition{FineNotCompleted,   Request::Coarse, FineNotCompleted},
    Transition{FineNotCompleted,   Request::Fine,   Manual},
    Transition{FineNotCompleted,   Request::Auto,   Auto},
    Transition{FineNotCompleted,   Request::Manual, Manual},
    Transition{Auto,               Request::Coarse, FineNotCompleted},
    Transition{Auto,               Request::Fine,   Manual},
    Transition{Auto,               Request::Auto,   Auto},
    Transition{Auto,               Request::Manual, Manual},
    Transition{Manual,             Request::Coarse, FineNotCompleted},
    Transition{Manual,             Request::Fine,   Manual},
    Transition{Manual,             Request::Auto,   Auto},
    Transition{Manual,             Request::Manual, Manual},
    Transition{Failed,             Request::Coarse, FineNotCompleted},
    Transition{Failed,             Request::Fine,   Failed, Failure::CoarseFirst},
    Transition{Failed,             Request::Auto,   Auto},
    Transition{Failed,             Request::Manual, Manual}));
// clang-format on

TEST(PpsTest, OnlyAManualCalibrationTakesTheCorrection)
{
    Pps pps;
    calibrate(pps, Request::Manual, 65535);
    EXPECT_EQ(65535U, pps.correction_ns);
    for (const auto request : {Request::Coarse, Request::Fine, Request::Auto})
    {
        calibrate(pps, request, 17);
        EXPECT_EQ(65535U, pps.correction_ns);
    }
    calibrate(pps, Request::Manual, 0);
    EXPECT_EQ(0U, pps.correction_ns);
}

TEST(PpsTest, ACalibrationLeavesSourceAndOutputModeAlone)
{
    for (const auto request : {Request::Coarse, Request::Fine, Request::Auto, Request::Manual})
    {
        Pps pps;
        pps.source = 2;
        pps.sourceParameter = -3;
        pps.outputMode = 1;
        calibrate(pps, request, 17);
        EXPECT_EQ(2U, pps.source);
        EXPECT_EQ(-3, pps.sourceParameter);
        EXPECT_EQ(1U, pps.outputMode);
    }
}

} // namespace
