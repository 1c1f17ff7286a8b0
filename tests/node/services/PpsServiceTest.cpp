#include <cstdint>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "kel_top_api/CriGetCalibrationStatusDspPps.h"
#include "kel_top_api/CriSetOutputModeDspPps.h"
#include "kel_top_api/CriSetSourceDspPps.h"
#include "node/services/ServiceTest.h"

using kel_top_api::criGetCalibrationStatusDspPps;
using kel_top_api::criSetOutputModeDspPps;
using kel_top_api::CriSetSourceDspPps;
using kel_top_api::criSetSourceDspPps;
using kel_top_api::StandardResponse;
using node::radio::PpsCalibration;
using node::radio::PpsFailure;

namespace
{

class PpsServiceTest : public ServiceTest
{
protected:
    static void expectStatus(RadioChannel of, std::uint32_t status, std::uint32_t reason)
    {
        const auto response = criGetCalibrationStatusDspPps({of});
        expectDone(response);
        EXPECT_EQ(status, response.calibrationStatus);
        EXPECT_EQ(reason, response.calibrationFailureReason);
    }

    node::radio::Pps stateOf(RadioChannel of) const
    {
        return link.snapshot(of).state.pps;
    }
};

TEST_P(PpsServiceTest, EveryStateHasItsNumber)
{
    const std::vector<std::pair<PpsCalibration, std::uint32_t>> numbers = {
        {PpsCalibration::Never, 0},
        {PpsCalibration::CoarseNotCompleted, 1},
        {PpsCalibration::FineNotCompleted, 2},
        {PpsCalibration::Auto, 3},
        {PpsCalibration::Manual, 4},
        {PpsCalibration::Failed, 5},
    };
    for (const auto& [calibration, number] : numbers)
    {
        link.change(channel, [state = calibration](auto& changed) { changed.pps.calibration = state; });
        expectStatus(channel, number, 0);
    }
    expectStatus(otherChannel, 0, 0);
}

TEST_P(PpsServiceTest, EveryFailureHasItsNumber)
{
    const std::vector<std::pair<PpsFailure, std::uint32_t>> numbers = {
        {PpsFailure::None, 0},
        {PpsFailure::SlaveLinkLoss, 1},
        {PpsFailure::NoResponseFromMaster, 2},
        {PpsFailure::ModulationChange, 3},
        {PpsFailure::CoarseFirst, 4},
    };
    for (const auto& [failure, number] : numbers)
    {
        link.change(channel,
                    [reason = failure](auto& changed)
                    {
                        changed.pps.calibration = PpsCalibration::Failed;
                        changed.pps.failure = reason;
                    });
        expectStatus(channel, 5, number);
    }
}

TEST_P(PpsServiceTest, SourceAndParameterAreRemembered)
{
    using enum CriSetSourceDspPps::Source;
    const std::vector<std::pair<CriSetSourceDspPps::Source, std::int32_t>> requests = {
        {Source1, INT32_MIN}, {Source2, INT32_MAX}, {Source0, 0}};
    for (const auto& [source, parameter] : requests)
    {
        const StandardResponse response = criSetSourceDspPps({channel, source, parameter});
        expectDone(response);
        EXPECT_EQ("", response.additionalText);
        EXPECT_EQ(static_cast<std::uint32_t>(source), stateOf(channel).source);
        EXPECT_EQ(parameter, stateOf(channel).sourceParameter);
        EXPECT_EQ(0U, stateOf(otherChannel).source);
        EXPECT_EQ(0, stateOf(otherChannel).sourceParameter);
    }
}

TEST_P(PpsServiceTest, TheOutputModeIsRemembered)
{
    using enum kel_top_api::CriSetOutputModeDspPps::OutputMode;
    for (const auto mode : {Mode1, Mode2, Mode0})
    {
        const StandardResponse response = criSetOutputModeDspPps({channel, mode});
        expectDone(response);
        EXPECT_EQ("", response.additionalText);
        EXPECT_EQ(static_cast<std::uint32_t>(mode), stateOf(channel).outputMode);
        EXPECT_EQ(0U, stateOf(otherChannel).outputMode);
    }
}

INSTANTIATE_TEST_SUITE_P(EachChannel, PpsServiceTest, ::testing::Values(1, 2));

} // namespace
