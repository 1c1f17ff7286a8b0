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

using namespace kel_top_api;
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

} // namespace
