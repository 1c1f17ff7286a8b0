#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "kel_top_api/CriCalibrateDspPps.h"
#include "kel_top_api/CriGetCalibrationStatusDspPps.h"
#include "kel_top_api/CriGetHopLengthTimeDspPps.h"
#include "kel_top_api/CriGetRadioChannelCapability.h"
#include "kel_top_api/CriGetRadioChannelStatus.h"
#include "kel_top_api/CriSetOutputModeDspPps.h"
#include "kel_top_api/CriSetSourceDspPps.h"
#include "kel_top_api/TiManageXpic.h"
#include "node/ServiceTest.h"
#include "node/services/ModemStatus.h"
#include "node/services/RadioChannelNearEnd.h"

using kel_top_api::BaseResponse;
using kel_top_api::criCalibrateDspPps;
using kel_top_api::criGetCalibrationStatusDspPps;
using kel_top_api::criGetHopLengthTimeDspPps;
using kel_top_api::CriGetRadioChannelCapability;
using kel_top_api::criGetRadioChannelCapability;
using kel_top_api::CriGetRadioChannelStatus;
using kel_top_api::criGetRadioChannelStatus;
using kel_top_api::criSetOutputModeDspPps;
using kel_top_api::criSetSourceDspPps;
using kel_top_api::TiManageXpic;
using kel_top_api::tiManageXpic;
using node::radio::RadioLink;
using node::services::TopApiBinding;

namespace
{

/// One call of the top-level API.
struct Call
{
    std::string name;
    std::function<std::unique_ptr<BaseResponse>(RadioChannel)> send;
};

std::ostream& operator<<(std::ostream& out, const Call& call)
{
    return out << call.name;
}

template <typename Response>
std::unique_ptr<BaseResponse> keep(const Response& response)
{
    return std::make_unique<Response>(response);
}

TiManageXpic::Response askXpic(RadioChannel channel)
{
    TiManageXpic::Command command;
    command.RadioChannelID = channel;
    command.GetStatus = true;
    return tiManageXpic(command);
}

class TopApiRefusalTest : public ::testing::TestWithParam<Call>
{
protected:
    /// Sends the call and expects a refusal that tells nothing but its reason.
    void expectRefusal(const std::string& reason, RadioChannel channel)
    {
        const auto response = GetParam().send(channel);
        expectRefused(reason, *response);
    }
};

TEST_P(TopApiRefusalTest, AChannelThatTheLinkDoesNotHaveIsRefused)
{
    RadioLink link;
    const TopApiBinding binding(link);
    expectRefusal("radio channel: found 0, expected 1 or 2", 0);
    expectRefusal("radio channel: found 3, expected 1 or 2", 3);
    expectRefusal("radio channel: found 4294967295, expected 1 or 2", 0xFFFFFFFFU);
}

TEST_P(TopApiRefusalTest, EveryCallIsRefusedWhileNoNodeRuns)
{
    expectRefusal("the node is not started", 1);
    std::optional<RadioLink> link(std::in_place);
    std::optional<TopApiBinding> binding(*link);
    expectDone(*GetParam().send(1));
    expectDone(*GetParam().send(2));
    binding.reset();
    link.reset();
    expectRefusal("the node is not started", 1);
    expectRefusal("the node is not started", 3);
}

INSTANTIATE_TEST_SUITE_P(
    EveryCall, TopApiRefusalTest,
    ::testing::Values(
        Call{"tiManageXpic", [](RadioChannel channel) { return keep(askXpic(channel)); }},
        Call{"criCalibrateDspPps", [](RadioChannel channel) { return keep(criCalibrateDspPps({channel})); }},
        Call{"criSetSourceDspPps", [](RadioChannel channel) { return keep(criSetSourceDspPps({channel})); }},
        Call{"criSetOutputModeDspPps", [](RadioChannel channel) { return keep(criSetOutputModeDspPps({channel})); }},
        Call{"criGetCalibrationStatusDspPps",
             [](RadioChannel channel) { return keep(criGetCalibrationStatusDspPps({channel})); }},
        Call{"criGetHopLengthTimeDspPps",
             [](RadioChannel channel) { return keep(criGetHopLengthTimeDspPps({channel})); }},
        Call{"criGetRadioChannelStatus",
             [](RadioChannel channel) { return keep(criGetRadioChannelStatus({channel})); }},
        Call{"criGetRadioChannelCapability",
             [](RadioChannel channel) { return keep(criGetRadioChannelCapability({channel})); }}),
    [](const auto& row) { return row.param.name; });

TEST(RefusalTest, ARefusedResponseHoldsNothingElse)
{
    EXPECT_EQ(TiManageXpic::Response().printResponse(), tiManageXpic({}).printResponse());
    EXPECT_EQ(CriGetRadioChannelStatus::Response().printResponse(), criGetRadioChannelStatus({3}).printResponse());
    EXPECT_EQ(CriGetRadioChannelCapability::Response().printResponse(),
              criGetRadioChannelCapability({3}).printResponse());
    EXPECT_EQ(0U, criGetHopLengthTimeDspPps({3}).hopLengthTime);
    EXPECT_EQ(0U, criGetCalibrationStatusDspPps({3}).calibrationStatus);
    EXPECT_EQ(0U, criGetCalibrationStatusDspPps({3}).calibrationFailureReason);
}

TEST(RefusalTest, AnXpicRequestWithoutAChannelIsRefused)
{
    RadioLink link;
    const TopApiBinding binding(link);
    expectRefused("radio channel: found 0, expected 1 or 2", tiManageXpic({}));
}

TEST(RefusalTest, TheModemStatusRefusesAChannelThatTheLinkDoesNotHave)
{
    const RadioLink link;
    node::services::ModemStatus modem(link);
    for (const RadioChannel channel : {0U, 3U, 0xFFFFFFFFU})
    {
        DspModemStatus status;
        status.request = 2;
        const auto result = modem.getDspModemStatus(channel, &status);
        EXPECT_EQ(0x8000, result.resultCode);
        EXPECT_EQ("radio channel: found " + std::to_string(channel) + ", expected 1 or 2", result.errorText);
        EXPECT_EQ(DspModemStatus().content, status.content);
    }
}

TEST(RefusalTest, TheNearEndRefusesAChannelThatTheLinkDoesNotHave)
{
    const RadioLink link;
    node::services::RadioChannelNearEnd nearEnd(link);
    for (const RadioChannel channel : {0U, 3U, 0xFFFFFFFFU})
    {
        RadioChannelInfo info;
        const auto result = nearEnd.getRadioChannelInfo({channel}, &info);
        EXPECT_EQ(0x8000, result.resultCode);
        EXPECT_EQ("radio channel: found " + std::to_string(channel) + ", expected 1 or 2", result.errorText);
        EXPECT_EQ(0, info.radioChannelId);
        EXPECT_EQ("", info.maxModulationAndCode);
    }
}

TEST(RefusalTest, ThePpsServicesRefuseNumbersOutsideTheirEnumerations)
{
    using kel_top_api::CriCalibrateDspPps;
    using kel_top_api::CriSetOutputModeDspPps;
    using kel_top_api::CriSetSourceDspPps;
    RadioLink link;
    const TopApiBinding binding(link);
    expectRefused("calibration mode: found a number out of range, expected 0 to 3",
                  criCalibrateDspPps({1, static_cast<CriCalibrateDspPps::CalibrationMode>(4), 0}));
    expectRefused("output mode: found a number out of range, expected 0 to 2",
                  criSetOutputModeDspPps({1, static_cast<CriSetOutputModeDspPps::OutputMode>(3)}));
    expectRefused("source: found a number out of range, expected 0 to 2",
                  criSetSourceDspPps({1, static_cast<CriSetSourceDspPps::Source>(3), 7}));
    const auto pps = link.snapshot(1).state.pps;
    EXPECT_EQ(node::radio::PpsCalibration::Never, pps.calibration);
    EXPECT_EQ(0U, pps.outputMode);
    EXPECT_EQ(0, pps.sourceParameter);
}

} // namespace
