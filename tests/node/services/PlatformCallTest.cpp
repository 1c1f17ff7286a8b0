#include <algorithm>
#include <cstdint>
#include <iterator>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/services/PlatformCall.h"

using node::services::findPlatformCall;
using node::services::PlatformCall;
using node::services::platformCalls;
using ::testing::ElementsAreArray;

namespace
{

constexpr std::int64_t Never = INT64_MAX;
constexpr bool Code = true;
constexpr bool Text = true;
constexpr bool Channel = true;

/// What can be put into a call's answer.
struct CallRow
{
    std::string name;
    bool answersCode;
    bool answersText;
    bool hasChannel;
    std::int64_t failsFrom;
};

std::ostream& operator<<(std::ostream& out, const CallRow& row)
{
    return out << row.name;
}

const std::vector<CallRow> Rows = {
    {"criCalibrateDspPps", Code, Text, Channel, 1},
    {"criGetCalibrationStatusDspPps", Code, Text, Channel, 1},
    {"criGetHopLengthTimeDspPps", Code, Text, Channel, 1},
    {"criGetRadioChannelCapability", Code, Text, Channel, 1},
    {"criGetRadioChannelStatus", Code, Text, Channel, 1},
    {"criSetOutputModeDspPps", Code, Text, Channel, 1},
    {"criSetSourceDspPps", Code, Text, Channel, 1},
    {"tiManageXpic", Code, Text, Channel, 1},
    {"IDpdControllerSplit.start", Code, !Text, Channel, 0x8000},
    {"IDpdControllerSplit.stop", Code, !Text, Channel, 0x8000},
    {"IDpdControllerSplit.getStartParameter", Code, !Text, Channel, Never},
    {"IDpdControllerSplit.getCoeffs", Code, !Text, Channel, 0x8000},
    {"IDpdControllerSplit.setCoeffs", Code, !Text, Channel, 0x8000},
    {"ITiGetDspModemStatus.getDspModemStatus", Code, Text, Channel, 0x8000},
    {"ITiGetDspModemStatus.toString", !Code, Text, Channel, Never},
    {"ITiManageRadioChannelNearEnd.getRadioChannelInfo", Code, Text, Channel, 0x8000},
    {"IRlbspKelApi.installDebugCmdCallback", !Code, !Text, !Channel, Never},
    {"CModuleManager.RegisterModule", !Code, !Text, !Channel, Never},
};

TEST(PlatformCallsTest, TheseAreAllOfThem)
{
    std::vector<std::string_view> expected;
    std::transform(std::begin(Rows), std::end(Rows), std::back_inserter(expected),
                   [](const CallRow& row) -> std::string_view { return row.name; });
    std::vector<std::string_view> names;
    std::transform(platformCalls().begin(), platformCalls().end(), std::back_inserter(names),
                   [](const PlatformCall& call) { return call.name; });
    EXPECT_THAT(names, ElementsAreArray(expected));
}

TEST(PlatformCallsTest, ANameIsItsWholeSpelling)
{
    for (const char* const name : {"", "tiManageXpic ", "TiManageXpic", "IDpdControllerSplit", "start"})
    {
        EXPECT_EQ(nullptr, findPlatformCall(name)) << name;
    }
}

class PlatformCallTest : public ::testing::TestWithParam<CallRow>
{
};

TEST_P(PlatformCallTest, IsFoundUnderItsNameAndAnswersWhatItAnswers)
{
    const CallRow& row = GetParam();
    const PlatformCall* const call = findPlatformCall(row.name);
    ASSERT_NE(nullptr, call);
    EXPECT_EQ(row.name, call->name);
    EXPECT_EQ(row.answersCode, call->answersCode());
    EXPECT_EQ(row.answersText, call->answersText());
    EXPECT_EQ(row.hasChannel, call->hasChannel);
    for (const std::int32_t code : {INT32_MIN, -0x8000, -1, 0, 1, 0x7FFF, 0x8000, 0x8001, INT32_MAX})
    {
        EXPECT_EQ(code >= row.failsFrom, call->fails(code)) << code;
    }
}

INSTANTIATE_TEST_SUITE_P(EachCall, PlatformCallTest, ::testing::ValuesIn(Rows));

} // namespace
