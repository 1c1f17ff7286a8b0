#include <cstdint>
#include <functional>
#include <memory>
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
#include "node/services/ModemStatus.h"
#include "node/services/RadioChannelNearEnd.h"
#include "node/services/RecordText.h"
#include "node/services/ServiceTest.h"

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
    const ServiceBench bench;
    const std::string before = contentOf(bench.link);
    expectRefusal("radio channel: found 0, expected 1 or 2", 0);
    expectRefusal("radio channel: found 3, expected 1 or 2", 3);
    expectRefusal("radio channel: found 4294967295, expected 1 or 2", 0xFFFFFFFFU);
    EXPECT_EQ(before, contentOf(bench.link));
}

TEST_P(TopApiRefusalTest, TheSecondChannelIsRefusedOnALinkOfOne)
{
    const ServiceBench bench(oneChannel());
    expectRefusal("radio channel: found 2, expected 1", 2);
    expectRefusal("radio channel: found 0, expected 1", 0);
    expectDone(*GetParam().send(1));
}

TEST_P(TopApiRefusalTest, EveryCallIsRefusedWhileNoNodeRuns)
{
    expectRefusal("the node is not started", 1);
    {
        const ServiceBench bench;
        expectDone(*GetParam().send(1));
        expectDone(*GetParam().send(2));
    }
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
    EXPECT_EQ(contentOf(CriGetRadioChannelStatus::Response()), contentOf(criGetRadioChannelStatus({3})));
    EXPECT_EQ(contentOf(CriGetRadioChannelCapability::Response()), contentOf(criGetRadioChannelCapability({3})));
    EXPECT_EQ("hopLengthTime: 0", contentOf(criGetHopLengthTimeDspPps({3})));
    EXPECT_EQ("calibrationStatus: 0, calibrationFailureReason: 0", contentOf(criGetCalibrationStatusDspPps({3})));
}

TEST(RefusalTest, ARefusedXpicResponseHoldsTheChannelAlone)
{
    TiManageXpic::Response expected;
    expected.RadioChannelID = 3;
    EXPECT_EQ(contentOf(expected), contentOf(askXpic(3)));
    const ServiceBench bench;
    EXPECT_EQ(contentOf(expected), contentOf(askXpic(3)));
}

TEST(RefusalTest, AnXpicRequestWithoutAChannelIsRefused)
{
    const ServiceBench bench;
    expectRefused("radio channel: found 0, expected 1 or 2", tiManageXpic({}));
}

struct ChannelRow
{
    std::uint32_t numberOfChannels;
    RadioChannel channel;
    std::string reason;
};

std::ostream& operator<<(std::ostream& out, const ChannelRow& row)
{
    return out << "channel " << row.channel << " of " << row.numberOfChannels;
}

class PlatformRefusalTest : public ::testing::TestWithParam<ChannelRow>, protected ServiceBench
{
protected:
    PlatformRefusalTest() : ServiceBench(GetParam().numberOfChannels == 1 ? oneChannel() : node::radio::LinkSetup())
    {
    }
};

TEST_P(PlatformRefusalTest, TheModemStatusRefusesAChannelThatTheLinkDoesNotHave)
{
    node::services::ModemStatus modem(context);
    DspModemStatus status;
    status.request = 2;
    status.content.fill(7);
    const DspModemStatus before = status;
    const auto result = modem.getDspModemStatus(GetParam().channel, &status);
    EXPECT_EQ(0x8000, result.resultCode);
    EXPECT_EQ(GetParam().reason, result.errorText);
    EXPECT_EQ(contentOf(before), contentOf(status));
}

TEST_P(PlatformRefusalTest, TheNearEndRefusesAChannelThatTheLinkDoesNotHave)
{
    node::services::RadioChannelNearEnd nearEnd(context);
    RadioChannelInfo info{1, 2, 3, "four", "five", "six", 7, 8, 9, 10};
    const auto result = nearEnd.getRadioChannelInfo({GetParam().channel}, &info);
    EXPECT_EQ(0x8000, result.resultCode);
    EXPECT_EQ(GetParam().reason, result.errorText);
    EXPECT_EQ("1 2 3 four five six 7 8 9 10", contentOf(info));
}

INSTANTIATE_TEST_SUITE_P(EachChannel, PlatformRefusalTest,
                         ::testing::Values(ChannelRow{1, 0, "radio channel: found 0, expected 1"},
                                           ChannelRow{1, 2, "radio channel: found 2, expected 1"},
                                           ChannelRow{2, 0, "radio channel: found 0, expected 1 or 2"},
                                           ChannelRow{2, 3, "radio channel: found 3, expected 1 or 2"},
                                           ChannelRow{2, 0xFFFFFFFFU,
                                                      "radio channel: found 4294967295, expected 1 or 2"}));

TEST(RefusalTest, ThePpsServicesRefuseNumbersOutsideTheirEnumerations)
{
    using kel_top_api::CriCalibrateDspPps;
    using kel_top_api::CriSetOutputModeDspPps;
    using kel_top_api::CriSetSourceDspPps;
    const ServiceBench bench;
    const std::string before = contentOf(bench.link);
    for (const auto number : {0U, 1U, 0xFFFFFFF0U})
    {
        expectRefused("calibration mode: found a number out of range, expected 0 to 3",
                      criCalibrateDspPps({1, static_cast<CriCalibrateDspPps::CalibrationMode>(4 + number), 0}));
        expectRefused("output mode: found a number out of range, expected 0 to 2",
                      criSetOutputModeDspPps({1, static_cast<CriSetOutputModeDspPps::OutputMode>(3 + number)}));
        expectRefused("source: found a number out of range, expected 0 to 2",
                      criSetSourceDspPps({1, static_cast<CriSetSourceDspPps::Source>(3 + number), 7}));
    }
    EXPECT_EQ(before, contentOf(bench.link));
}

} // namespace
