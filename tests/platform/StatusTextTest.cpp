#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "kel_top_api/CriGetRadioChannelStatus.h"
#include "platform/Fresh.h"
#include "platform/ResponseText.h"

namespace
{

using Status = kel_top_api::CriGetRadioChannelStatus::Response;

constexpr const char* NewStatusText =
    "TXActualStatus: , RadioChannelStatus: , ActualModulation: , ActualTxModulation: , ActualRxModulation:, "
    "ActualRFInputPower: 0, ReportedRFOutputPower: 0, ClockStatus: 0, ActualSNIR: 0, ErroredBlocks: 0, "
    "BackgroundBlocks: 0, TxFrequency: 0, RxFrequency: 0, KelState: \n";

Status distinctStatus()
{
    Status status;
    status.TXActualStatus = "On";
    status.RadioChannelStatus = "Up";
    status.ActualModulation = "256QAM";
    status.ActualTxModulation = "512QAM_LIGHT";
    status.ActualRxModulation = "1024QAM_STRONG";
    status.ActualRFInputPower = -4250;
    status.ReportedRFOutputPower = 1875;
    status.ClockStatus = 3;
    status.ActualSNIR = 3120;
    status.ErroredBlocks = 14;
    status.BackgroundBlocks = 15;
    status.TxFrequency = 18115000;
    status.RxFrequency = 17105000;
    status.KelState = "Working";
    return status;
}

constexpr const char* DistinctStatusText =
    "TXActualStatus: On, RadioChannelStatus: Up, ActualModulation: 256QAM, ActualTxModulation: 512QAM_LIGHT, "
    "ActualRxModulation:1024QAM_STRONG, ActualRFInputPower: -4250, ReportedRFOutputPower: 1875, ClockStatus: 3, "
    "ActualSNIR: 3120, ErroredBlocks: 14, BackgroundBlocks: 15, TxFrequency: 18115000, RxFrequency: 17105000, "
    "KelState: Working\n";

TEST(StatusTextTest, EveryPrintedMember)
{
    EXPECT_EQ(DistinctStatusText, distinctStatus().printResponse());
}

TEST(StatusTextTest, ANewResponseHasEmptyTextsAndEndsItsLine)
{
    EXPECT_EQ(NewStatusText, Fresh<Status>()->printResponse());
}

TEST(StatusTextTest, NumbersAreSigned)
{
    const std::vector<std::pair<std::int32_t Status::*, const char*>> numbers = {
        {&Status::ActualRFInputPower, ", ActualRFInputPower: "},
        {&Status::ReportedRFOutputPower, ", ReportedRFOutputPower: "},
        {&Status::ClockStatus, ", ClockStatus: "},
        {&Status::ActualSNIR, ", ActualSNIR: "},
        {&Status::ErroredBlocks, ", ErroredBlocks: "},
        {&Status::BackgroundBlocks, ", BackgroundBlocks: "},
        {&Status::TxFrequency, ", TxFrequency: "},
        {&Status::RxFrequency, ", RxFrequency: "},
    };
    for (const auto& [number, label] : numbers)
    {
        Status status;
        status.*number = std::numeric_limits<std::int32_t>::min();
        EXPECT_EQ(replaced(NewStatusText, label, "0", "-2147483648"), status.printResponse());
        status.*number = std::numeric_limits<std::int32_t>::max();
        EXPECT_EQ(replaced(NewStatusText, label, "0", "2147483647"), status.printResponse());
    }
}

TEST(StatusTextTest, SomeMembersAreLeftOut)
{
    auto status = distinctStatus();
    status.opaqueWord = 77;
    status.resultCode = 88;
    status.resultText = "refused";
    status.XpicIsStarted = true;
    status.ActualXpi = 99;
    status.XpicState = "TRACKING";
    EXPECT_EQ(DistinctStatusText, status.printResponse());
}

} // namespace
