#include <array>
#include <cstdint>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "kel_top_api/CriCalibrateDspPps.h"
#include "kel_top_api/CriGetCalibrationStatusDspPps.h"
#include "kel_top_api/CriGetHopLengthTimeDspPps.h"
#include "kel_top_api/CriGetRadioChannelCapability.h"
#include "kel_top_api/CriGetRadioChannelStatus.h"
#include "kel_top_api/CriSetOutputModeDspPps.h"
#include "kel_top_api/CriSetSourceDspPps.h"
#include "kel_top_api/ModulationAndCode.h"
#include "kel_top_api/TiManageXpic.h"
#include "platform/Fresh.h"
#include "radio/IDpdControllerSplit.h"
#include "radio/ITiGetDspModemStatus.h"
#include "radio/ITiManageRadioChannelNearEnd.h"
#include "trace/VemTrace.h"

using namespace kel_top_api;
using ::testing::Each;

namespace
{

TEST(RecordDefaultsTest, AnXpicCommandAsksForNothing)
{
    const Fresh<TiManageXpic::Command> command;
    EXPECT_FALSE(command->RadioChannelID.present);
    EXPECT_FALSE(command->member2.present);
    EXPECT_FALSE(command->member3.present);
    EXPECT_FALSE(command->member4.present);
    EXPECT_FALSE(command->member5.present);
    EXPECT_FALSE(command->member6.present);
    EXPECT_FALSE(command->member7.present);
    EXPECT_FALSE(command->SlaveMute.present);
    EXPECT_FALSE(command->AcquireStart.present);
    EXPECT_FALSE(command->AcquireMode.present);
    EXPECT_FALSE(command->AcquireOption.present);
    EXPECT_FALSE(command->GetPreamble.present);
    EXPECT_FALSE(command->Preamble.present);
    EXPECT_FALSE(command->GetStatus.present);
}

TEST(RecordDefaultsTest, AbsentValuesAreZero)
{
    const Fresh<TiManageXpic::Command> command;
    EXPECT_EQ(0U, command->RadioChannelID.value);
    EXPECT_EQ(0U, command->member4.value);
    EXPECT_EQ("", command->member5.value);
    EXPECT_FALSE(command->SlaveMute.value);
    EXPECT_FALSE(command->AcquireStart.value);
    EXPECT_EQ(TiManageXpic::AcquireModeType::Mode0, command->AcquireMode.value);
    EXPECT_EQ(TiManageXpic::AcquireOptionType::Option0, command->AcquireOption.value);
    EXPECT_FALSE(command->GetPreamble.value);
    EXPECT_EQ(TiManageXpic::PreambleType::Preamble0, command->Preamble.value);
    EXPECT_FALSE(command->GetStatus.value);
}

TEST(RecordDefaultsTest, AssigningAValueMakesItPresent)
{
    Optional<bool> flag;
    flag = false;
    EXPECT_TRUE(flag.present);
    EXPECT_FALSE(flag.value);

    Optional<std::uint32_t> number;
    number = 7;
    EXPECT_TRUE(number.present);
    EXPECT_EQ(7U, number.value);
}

TEST(RecordDefaultsTest, PpsCommandsAreZero)
{
    const Fresh<CriCalibrateDspPps::Command> calibrate;
    EXPECT_EQ(0U, calibrate->radioChannel);
    EXPECT_EQ(CriCalibrateDspPps::CalibrationMode::Mode0, calibrate->calibrationMode);
    EXPECT_EQ(0U, calibrate->calibrationValue);

    const Fresh<CriSetOutputModeDspPps::Command> setOutputMode;
    EXPECT_EQ(0U, setOutputMode->radioChannel);
    EXPECT_EQ(CriSetOutputModeDspPps::OutputMode::Mode0, setOutputMode->outputMode);

    const Fresh<CriSetSourceDspPps::Command> setSource;
    EXPECT_EQ(0U, setSource->radioChannel);
    EXPECT_EQ(CriSetSourceDspPps::Source::Source0, setSource->source);
    EXPECT_EQ(0, setSource->sourceParameter);

    EXPECT_EQ(0U, Fresh<CriGetCalibrationStatusDspPps::Command>()->radioChannel);
    EXPECT_EQ(0U, Fresh<CriGetHopLengthTimeDspPps::Command>()->radioChannel);
}

TEST(RecordDefaultsTest, TheStatusCommandLeavesItsFlagFalse)
{
    const Fresh<CriGetRadioChannelStatus::Command> command;
    EXPECT_EQ(0U, command->radioChannel);
    EXPECT_FALSE(command->flag2);
}

TEST(RecordDefaultsTest, TheCapabilityCommandHoldsTheApisDefaults)
{
    const Fresh<CriGetRadioChannelCapability::Command> command;
    EXPECT_EQ(0U, command->radioChannel);
    EXPECT_EQ(0U, command->number2);
    EXPECT_EQ(143U, command->modulationAndCode3);
    EXPECT_EQ(143U, command->modulationAndCode4);
    EXPECT_EQ(1000U, command->number5);
    EXPECT_EQ(0U, command->number6);
    EXPECT_EQ(0U, command->number7);
}

TEST(RecordDefaultsTest, TheNearEndRequestHoldsTheInterfacesDefaults)
{
    const Fresh<RadioChannelInfoRequest> request;
    EXPECT_EQ(0U, request->radioChannel);
    EXPECT_EQ(1U, request->byte4);
    EXPECT_THAT(request->bytes5, Each(0));
    EXPECT_EQ(143U, request->modulationAndCode20);
    EXPECT_EQ(0U, request->word24);
    EXPECT_EQ(143U, request->modulationAndCode28);
    EXPECT_EQ(0U, request->word32);
    EXPECT_EQ(1000U, request->word36);
    EXPECT_THAT(request->bytes40, Each(0));
    EXPECT_EQ(1U, request->byte60);
    EXPECT_EQ(0U, request->byte61);
    EXPECT_THAT(request->ignored62, Each(0));
    EXPECT_EQ(0U, request->byte68);
    EXPECT_THAT(request->ignored69, Each(0));
    EXPECT_EQ(0U, request->byte75);
    EXPECT_THAT(request->bytes76, Each(0));
}

TEST(RecordDefaultsTest, TheNearEndInformationIsEmpty)
{
    const Fresh<RadioChannelInfo> info;
    EXPECT_EQ(0, info->radioChannelId);
    EXPECT_EQ(0U, info->flag2);
    EXPECT_EQ(0, info->radioFrameId);
    EXPECT_EQ("", info->minModulationAndCode);
    EXPECT_EQ("", info->maxModulationAndCode);
    EXPECT_EQ("", info->text6);
    EXPECT_EQ(0U, info->number7);
    EXPECT_EQ(0U, info->number8);
    EXPECT_EQ(0U, info->number9);
    EXPECT_EQ(0U, info->number10);
    EXPECT_EQ(0, Fresh<RadioChannelInfoResult>()->resultCode);
    EXPECT_EQ("", Fresh<RadioChannelInfoResult>()->errorText);
}

TEST(RecordDefaultsTest, TheOpaqueRecordsAreZero)
{
    EXPECT_EQ(0U, Fresh<DspModemStatus>()->request);
    EXPECT_THAT(Fresh<DspModemStatus>()->content, Each(0U));
    EXPECT_EQ(0, Fresh<DspModemStatusResult>()->resultCode);
    EXPECT_EQ("", Fresh<DspModemStatusResult>()->errorText);
    EXPECT_THAT(Fresh<DpdCoeffs>()->bytes, Each(0));
}

TEST(RecordDefaultsTest, AnEmptyTraceHeaderNamesNoPlace)
{
    const Fresh<VemTraceHeader> header;
    EXPECT_EQ(nullptr, header->file);
    EXPECT_EQ(0, header->line);
    EXPECT_EQ(nullptr, header->function);
}

TEST(RecordDefaultsTest, ANewResponseIsASuccessWithoutText)
{
    const Fresh<StandardResponse> response;
    EXPECT_EQ(0U, response->opaqueWord);
    EXPECT_EQ(0, response->resultCode);
    EXPECT_EQ("", response->resultText);
    EXPECT_EQ("", response->additionalText);
}

TEST(RecordDefaultsTest, WhatTheXpicResponseDoesNotPrintIsZeroToo)
{
    const Fresh<TiManageXpic::Response> response;
    EXPECT_EQ(TiManageXpic::PreambleType::Preamble0, response->XpicPreamble);
    EXPECT_EQ(0, response->Xpd);
    EXPECT_EQ(0, response->SlaveCarrierOffset);
    EXPECT_FALSE(response->SlaveSweepOngoing);
    EXPECT_EQ(0U, response->CalibrationStatus);
}

TEST(RecordDefaultsTest, WhatTheStatusResponsesDoNotPrintIsZeroToo)
{
    const Fresh<CriGetRadioChannelStatus::Response> status;
    EXPECT_FALSE(status->XpicIsStarted);
    EXPECT_EQ(0, status->ActualXpi);
    EXPECT_EQ("", status->XpicState);
    EXPECT_EQ(0U, Fresh<CriGetCalibrationStatusDspPps::Response>()->calibrationStatus);
    EXPECT_EQ(0U, Fresh<CriGetCalibrationStatusDspPps::Response>()->calibrationFailureReason);
    EXPECT_EQ(0U, Fresh<CriGetHopLengthTimeDspPps::Response>()->hopLengthTime);
}

TEST(RecordDefaultsTest, AnEntryOfTheMaximumPowerListNamesNoModulation)
{
    EXPECT_EQ(143U, UndefinedModulationAndCode);
    EXPECT_EQ(143U, Fresh<CriGetRadioChannelCapability::MaxRFOutputPower>()->modulationAndCode);
    EXPECT_EQ(0, Fresh<CriGetRadioChannelCapability::MaxRFOutputPower>()->power);
}

TEST(RecordDefaultsTest, ANewRowOfTheModulationTableNamesNoModulation)
{
    const Fresh<ModulationAndCode> row;
    EXPECT_EQ(143U, row->code);
    EXPECT_EQ("", row->name);
    EXPECT_EQ(0U, row->modulation);
    EXPECT_EQ(0U, row->variant);
    EXPECT_EQ(0U, row->strength);
}

} // namespace
