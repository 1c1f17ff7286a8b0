#include <cstdint>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "kel_top_api/CriCalibrateDspPps.h"
#include "kel_top_api/CriGetCalibrationStatusDspPps.h"
#include "kel_top_api/CriGetHopLengthTimeDspPps.h"
#include "kel_top_api/CriSetOutputModeDspPps.h"
#include "kel_top_api/CriSetSourceDspPps.h"
#include "node/ServiceTest.h"

using kel_top_api::CriCalibrateDspPps;
using kel_top_api::criCalibrateDspPps;
using kel_top_api::criGetCalibrationStatusDspPps;
using kel_top_api::criGetHopLengthTimeDspPps;
using kel_top_api::criSetOutputModeDspPps;
using kel_top_api::CriSetSourceDspPps;
using kel_top_api::criSetSourceDspPps;
using kel_top_api::StandardResponse;
using node::radio::PpsCalibration;
using node::radio::PpsFailure;
using Mode = CriCalibrateDspPps::CalibrationMode;

namespace
{

class PpsServiceTest : public ServiceTest
{
protected:
    void calibrate(Mode mode, std::uint16_t value = 0)
    {
        const StandardResponse response = criCalibrateDspPps({channel, mode, value});
        expectDone(response);
        EXPECT_EQ("", response.additionalText);
    }

    static void expectStatus(RadioChannel of, std::uint32_t status, std::uint32_t reason)
    {
        const auto response = criGetCalibrationStatusDspPps({of});
        expectDone(response);
        EXPECT_EQ(status, response.calibrationStatus);
        EXPECT_EQ(reason, response.calibrationFailureReason);
    }
};

TEST_P(PpsServiceTest, StartsNeverCalibrated)
{
    expectStatus(channel, 0, 0);
}

TEST_P(PpsServiceTest, ACalibrationShowsInTheStatusOfItsChannelAlone)
{
    calibrate(Mode::Mode0);
    expectStatus(channel, 2, 0);
    calibrate(Mode::Mode1);
    expectStatus(channel, 4, 0);
    calibrate(Mode::Mode2);
    expectStatus(channel, 3, 0);
    calibrate(Mode::Mode3);
    expectStatus(channel, 4, 0);
    expectStatus(otherChannel, 0, 0);
}

TEST_P(PpsServiceTest, AFineCalibrationBeforeACoarseOneFails)
{
    calibrate(Mode::Mode1);
    expectStatus(channel, 5, 4);
    calibrate(Mode::Mode0);
    expectStatus(channel, 2, 0);
}

TEST_P(PpsServiceTest, AManualCalibrationTakesTheValue)
{
    calibrate(Mode::Mode3, 65535);
    EXPECT_EQ(65535U, link.snapshot(channel).state.pps.correction_ns);
    EXPECT_EQ(0U, link.snapshot(otherChannel).state.pps.correction_ns);
}

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
        EXPECT_EQ(static_cast<std::uint32_t>(source), link.snapshot(channel).state.pps.source);
        EXPECT_EQ(parameter, link.snapshot(channel).state.pps.sourceParameter);
        EXPECT_EQ(0U, link.snapshot(otherChannel).state.pps.source);
        EXPECT_EQ(0, link.snapshot(otherChannel).state.pps.sourceParameter);
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
        EXPECT_EQ(static_cast<std::uint32_t>(mode), link.snapshot(channel).state.pps.outputMode);
        EXPECT_EQ(0U, link.snapshot(otherChannel).state.pps.outputMode);
    }
}

TEST_P(PpsServiceTest, TheHopLengthTimeIsRoundedToNanoseconds)
{
    const auto response = criGetHopLengthTimeDspPps({channel});
    expectDone(response);
    EXPECT_EQ(33367U, response.hopLengthTime);
}

INSTANTIATE_TEST_SUITE_P(EachChannel, PpsServiceTest, ::testing::Values(1, 2));

} // namespace
