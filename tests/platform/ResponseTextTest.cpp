#include <cstdint>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "kel_top_api/BaseResponse.h"
#include "kel_top_api/CriGetCalibrationStatusDspPps.h"
#include "kel_top_api/CriGetHopLengthTimeDspPps.h"
#include "kel_top_api/CriGetRadioChannelCapability.h"
#include "kel_top_api/CriGetRadioChannelStatus.h"
#include "kel_top_api/StandardResponse.h"
#include "kel_top_api/TiManageXpic.h"
#include "platform/Fresh.h"
#include "platform/ResponseText.h"

using namespace kel_top_api;

namespace
{

constexpr auto Lowest = std::numeric_limits<std::int32_t>::min();
constexpr auto Highest = std::numeric_limits<std::int32_t>::max();

TiManageXpic::Response distinctXpicResponse()
{
    TiManageXpic::Response response;
    response.RadioChannelID = 2;
    response.XpicControlBarOn = true;
    response.AverageI = -31;
    response.AverageQ = 47;
    response.TxMessage = "sent well";
    response.RxMessage = "got \"it\", all";
    response.XpicLockStateMachine = true;
    response.XpicState = "TRACKING";
    response.SlaveInternalAgc = -1200;
    response.SlaveExternalAgc = 815;
    response.XpicTxEnable = true;
    response.XpicEnableExt = TiManageXpic::XpicEnableExtType::Enable_C;
    response.SlaveDiffGain = -3;
    return response;
}

constexpr const char* DistinctXpicText =
    R"(RadioChannelID: 2, XpicControlBarOn: 1, XpicEnable: 0, AverageI: -31, AverageQ: 47, )"
    R"(TxMessage: sent well, RxMessage: got "it", all, XpicLockStateMachine: 1, XpicState: TRACKING, )"
    R"(SlaveInternalAgc: -1200, SlaveExternalAgc: 815, XpicCableConnected: 0, XpicTxEnable: 1, )"
    R"(XpicEnableExt: Enable_C, SlaveDiffGain: -3)";

constexpr const char* NewXpicText =
    R"(RadioChannelID: 0, XpicControlBarOn: 0, XpicEnable: 0, AverageI: 0, AverageQ: 0, )"
    R"(TxMessage: , RxMessage: , XpicLockStateMachine: 0, XpicState: , )"
    R"(SlaveInternalAgc: 0, SlaveExternalAgc: 0, XpicCableConnected: 0, XpicTxEnable: 0, )"
    R"(XpicEnableExt: Disable, SlaveDiffGain: 0)";

TEST(ResponseTextTest, BaseResponseLooksAtNoMember)
{
    BaseResponse response;
    EXPECT_EQ("Sent\n", response.printResponse());
    response.opaqueWord = 5;
    response.resultCode = 1;
    response.resultText = "refused";
    EXPECT_EQ("Sent\n", response.printResponse());
}

TEST(ResponseTextTest, StandardResponseLooksAtNoMember)
{
    StandardResponse response;
    EXPECT_EQ("StandardResponse Sent\n", response.printResponse());
    response.opaqueWord = 5;
    response.resultCode = 1;
    response.resultText = "refused";
    response.additionalText = "try later";
    EXPECT_EQ("StandardResponse Sent\n", response.printResponse());
}

TEST(ResponseTextTest, PpsResponsesKeepTheBasesText)
{
    CriGetCalibrationStatusDspPps::Response calibration;
    calibration.calibrationStatus = 3;
    CriGetHopLengthTimeDspPps::Response hopLength;
    hopLength.hopLengthTime = 4711;
    EXPECT_EQ("Sent\n", calibration.printResponse());
    EXPECT_EQ("Sent\n", hopLength.printResponse());
}

TEST(ResponseTextTest, XpicResponse)
{
    EXPECT_EQ(DistinctXpicText, distinctXpicResponse().printResponse());
}

TEST(ResponseTextTest, NewXpicResponseHasEmptyTextsAndZeros)
{
    EXPECT_EQ(NewXpicText, Fresh<TiManageXpic::Response>()->printResponse());
}

TEST(ResponseTextTest, EachXpicFlagIsPrintedInItsOwnPlace)
{
    using R = TiManageXpic::Response;
    const std::vector<std::pair<bool R::*, const char*>> flags = {
        {&R::XpicControlBarOn, "XpicControlBarOn: "},
        {&R::XpicEnable, "XpicEnable: "},
        {&R::XpicLockStateMachine, "XpicLockStateMachine: "},
        {&R::XpicCableConnected, "XpicCableConnected: "},
        {&R::XpicTxEnable, "XpicTxEnable: "},
    };
    for (const auto& [flag, label] : flags)
    {
        R response;
        response.*flag = true;
        EXPECT_EQ(replaced(NewXpicText, label, "0", "1"), response.printResponse());
    }
}

TEST(ResponseTextTest, XpicNumbersReachTheirExtremes)
{
    TiManageXpic::Response response;
    response.RadioChannelID = 4294967295;
    response.AverageI = Lowest;
    response.AverageQ = Highest;
    response.SlaveInternalAgc = Highest;
    response.SlaveExternalAgc = Lowest;
    response.SlaveDiffGain = Lowest;
    EXPECT_EQ(R"(RadioChannelID: 4294967295, XpicControlBarOn: 0, XpicEnable: 0, )"
              R"(AverageI: -2147483648, AverageQ: 2147483647, )"
              R"(TxMessage: , RxMessage: , XpicLockStateMachine: 0, XpicState: , )"
              R"(SlaveInternalAgc: 2147483647, SlaveExternalAgc: -2147483648, )"
              R"(XpicCableConnected: 0, XpicTxEnable: 0, XpicEnableExt: Disable, SlaveDiffGain: -2147483648)",
              response.printResponse());
}

TEST(ResponseTextTest, XpicEnableExtIsNamedOrNothing)
{
    const std::vector<std::pair<std::uint32_t, const char*>> names = {
        {0, "Disable"},  {1, "Enable_A"}, {2, "Enable_B"},   {3, "Enable_C"},
        {4, "Enable_D"}, {5, ""},         {0x80000000U, ""}, {0xFFFFFFFFU, ""},
    };
    for (const auto& [value, name] : names)
    {
        TiManageXpic::Response response;
        response.XpicEnableExt = static_cast<TiManageXpic::XpicEnableExtType>(value);
        EXPECT_EQ(replaced(NewXpicText, "XpicEnableExt: ", "Disable", name), response.printResponse()) << value;
    }
}

TEST(ResponseTextTest, XpicMessagesArePrintedAsTheyStand)
{
    TiManageXpic::Response response;
    response.TxMessage = std::string("a\0b", 3);
    response.RxMessage = "two\nlines\t, XpicState: ";
    response.XpicState = "%s \\ \xff";
    const std::string text = replaced(NewXpicText, ", TxMessage: ", "", response.TxMessage);
    EXPECT_EQ(
        replaced(replaced(text, ", XpicState: ", "", response.XpicState), ", RxMessage: ", "", response.RxMessage),
        response.printResponse());
}

TEST(ResponseTextTest, SomeXpicMembersAreLeftOut)
{
    auto response = distinctXpicResponse();
    response.opaqueWord = 77;
    response.resultCode = 88;
    response.resultText = "refused";
    response.XpicPreamble = TiManageXpic::PreambleType::Preamble3;
    response.Xpd = 250;
    response.SlaveCarrierOffset = -5000;
    response.SlaveSweepOngoing = true;
    response.CalibrationStatus = 9;
    EXPECT_EQ(DistinctXpicText, response.printResponse());
}

TEST(ResponseTextTest, AHolderOfABaseResponseGetsTheTextOfTheWholeOne)
{
    BaseResponse base;
    StandardResponse standard;
    auto xpic = distinctXpicResponse();
    CriGetRadioChannelStatus::Response status;
    CriGetRadioChannelCapability::Response capability;
    const auto textOf = [](BaseResponse& response) { return response.printResponse(); };

    EXPECT_EQ("Sent\n", textOf(base));
    EXPECT_EQ("StandardResponse Sent\n", textOf(standard));
    EXPECT_EQ(DistinctXpicText, textOf(xpic));
    EXPECT_EQ(status.printResponse(), textOf(status));
    EXPECT_EQ(capability.printResponse(), textOf(capability));
    EXPECT_EQ("TXActualStatus: ", textOf(status).substr(0, 16));
    EXPECT_EQ("NumberOfChannels: ", textOf(capability).substr(0, 18));
}

TEST(ResponseTextTest, NumbersAreNotGroupedWhateverTheLocale)
{
    const GroupingLocale grouping;
    TiManageXpic::Response xpic;
    xpic.AverageI = -1234567;
    CriGetRadioChannelStatus::Response status;
    status.TxFrequency = 18000000;
    CriGetRadioChannelCapability::Response capability;
    capability.MaxTXFrequency = 19700000;
    EXPECT_EQ(replaced(NewXpicText, "AverageI: ", "0", "-1234567"), xpic.printResponse());
    EXPECT_NE(std::string::npos, status.printResponse().find(", TxFrequency: 18000000, "));
    EXPECT_NE(std::string::npos, capability.printResponse().find(", MaxTXFrequency: 19700000, "));
}

} // namespace
