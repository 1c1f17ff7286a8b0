#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include "kel_top_api/BaseResponse.h"
#include "kel_top_api/CriGetCalibrationStatusDspPps.h"
#include "kel_top_api/CriGetHopLengthTimeDspPps.h"
#include "kel_top_api/CriGetRadioChannelCapability.h"
#include "kel_top_api/CriGetRadioChannelStatus.h"
#include "kel_top_api/StandardResponse.h"
#include "kel_top_api/TiManageXpic.h"
#include "platform/Layout.h"

using namespace kel_top_api;

namespace
{

using EnableExt = TiManageXpic::XpicEnableExtType;

static_assert(std::is_same_v<std::underlying_type_t<EnableExt>, std::uint32_t>);
static_assert(!std::is_base_of_v<StandardResponse, TiManageXpic::Response>);
static_assert(!std::is_base_of_v<StandardResponse, CriGetRadioChannelStatus::Response>);
static_assert(!std::is_base_of_v<StandardResponse, CriGetRadioChannelCapability::Response>);

/// The first rows of every response: they stand behind the pointer to the virtual table.
template <typename Response>
Layout<Response> response()
{
    return Layout<Response>()
        .template member<std::uint32_t>("opaqueWord", &Response::opaqueWord, 8, 4)
        .template member<std::int32_t>("resultCode", &Response::resultCode, 12, 8)
        .template member<std::string>("resultText", &Response::resultText, 16, 12);
}

TEST(ResponseLayoutTest, BaseResponse)
{
    response<BaseResponse>().size(48, 36);
}

TEST(ResponseLayoutTest, StandardResponse)
{
    using R = StandardResponse;
    response<R>().member<std::string>("additionalText", &R::additionalText, 48, 36).size(80, 60);
}

TEST(ResponseLayoutTest, CriGetCalibrationStatusDspPps)
{
    using R = CriGetCalibrationStatusDspPps::Response;
    response<R>()
        .member<std::uint32_t>("calibrationStatus", &R::calibrationStatus, 48, 36)
        .member<std::uint32_t>("calibrationFailureReason", &R::calibrationFailureReason, 52, 40)
        .size(56, 44);
}

TEST(ResponseLayoutTest, CriGetHopLengthTimeDspPps)
{
    using R = CriGetHopLengthTimeDspPps::Response;
    response<R>().member<std::uint32_t>("hopLengthTime", &R::hopLengthTime, 48, 36).size(56, 40);
}

TEST(ResponseLayoutTest, TiManageXpic)
{
    using R = TiManageXpic::Response;
    response<R>()
        .member<std::uint32_t>("RadioChannelID", &R::RadioChannelID, 48, 36)
        .member<bool>("XpicControlBarOn", &R::XpicControlBarOn, 52, 40)
        .member<bool>("XpicEnable", &R::XpicEnable, 53, 41)
        .member<std::int32_t>("AverageI", &R::AverageI, 56, 44)
        .member<std::int32_t>("AverageQ", &R::AverageQ, 60, 48)
        .member<std::string>("TxMessage", &R::TxMessage, 64, 52)
        .member<std::string>("RxMessage", &R::RxMessage, 96, 76)
        .member<bool>("XpicLockStateMachine", &R::XpicLockStateMachine, 128, 100)
        .member<std::string>("XpicState", &R::XpicState, 136, 104)
        .member<std::int32_t>("SlaveInternalAgc", &R::SlaveInternalAgc, 168, 128)
        .member<std::int32_t>("SlaveExternalAgc", &R::SlaveExternalAgc, 172, 132)
        .member<bool>("XpicCableConnected", &R::XpicCableConnected, 176, 136)
        .member<bool>("XpicTxEnable", &R::XpicTxEnable, 177, 137)
        .member<EnableExt>("XpicEnableExt", &R::XpicEnableExt, 180, 140)
        .member<std::int32_t>("SlaveDiffGain", &R::SlaveDiffGain, 184, 144)
        .member<TiManageXpic::PreambleType>("XpicPreamble", &R::XpicPreamble, 188, 148)
        .member<std::int32_t>("Xpd", &R::Xpd, 192, 152)
        .member<std::int32_t>("SlaveCarrierOffset", &R::SlaveCarrierOffset, 196, 156)
        .member<bool>("SlaveSweepOngoing", &R::SlaveSweepOngoing, 200, 160)
        .member<std::uint8_t>("CalibrationStatus", &R::CalibrationStatus, 201, 161)
        .size(208, 164);
}

TEST(ResponseLayoutTest, CriGetRadioChannelStatus)
{
    using R = CriGetRadioChannelStatus::Response;
    response<R>()
        .member<std::string>("TXActualStatus", &R::TXActualStatus, 48, 36)
        .member<std::string>("RadioChannelStatus", &R::RadioChannelStatus, 80, 60)
        .member<std::string>("ActualModulation", &R::ActualModulation, 112, 84)
        .member<std::string>("ActualTxModulation", &R::ActualTxModulation, 144, 108)
        .member<std::string>("ActualRxModulation", &R::ActualRxModulation, 176, 132)
        .member<std::int32_t>("ActualRFInputPower", &R::ActualRFInputPower, 208, 156)
        .member<std::int32_t>("ReportedRFOutputPower", &R::ReportedRFOutputPower, 212, 160)
        .member<std::int32_t>("ClockStatus", &R::ClockStatus, 216, 164)
        .member<std::int32_t>("ActualSNIR", &R::ActualSNIR, 220, 168)
        .member<std::int32_t>("ErroredBlocks", &R::ErroredBlocks, 224, 172)
        .member<std::int32_t>("BackgroundBlocks", &R::BackgroundBlocks, 228, 176)
        .member<std::int32_t>("TxFrequency", &R::TxFrequency, 232, 180)
        .member<std::int32_t>("RxFrequency", &R::RxFrequency, 236, 184)
        .member<std::string>("KelState", &R::KelState, 240, 188)
        .member<bool>("XpicIsStarted", &R::XpicIsStarted, 272, 212)
        .member<std::int32_t>("ActualXpi", &R::ActualXpi, 276, 216)
        .member<std::string>("XpicState", &R::XpicState, 280, 220)
        .size(312, 244);
}

TEST(ResponseLayoutTest, CriGetRadioChannelCapability)
{
    using R = CriGetRadioChannelCapability::Response;
    using MaxPowers = std::vector<CriGetRadioChannelCapability::MaxRFOutputPower>;
    response<R>()
        .member<std::uint32_t>("NumberOfChannels", &R::NumberOfChannels, 48, 36)
        .member<std::int32_t>("MinTemp", &R::MinTemp, 52, 40)
        .member<std::int32_t>("MaxTemp", &R::MaxTemp, 56, 44)
        .member<std::int32_t>("AvailableMinRFOutputPower", &R::AvailableMinRFOutputPower, 60, 48)
        .member<MaxPowers>("AvailableMaxRFOutputPower", &R::AvailableMaxRFOutputPower, 64, 52)
        .member<std::uint32_t>("MinTXFrequency", &R::MinTXFrequency, 88, 64)
        .member<std::uint32_t>("MaxTXFrequency", &R::MaxTXFrequency, 92, 68)
        .member<std::uint32_t>("MinRXFrequency", &R::MinRXFrequency, 96, 72)
        .member<std::uint32_t>("MaxRXFrequency", &R::MaxRXFrequency, 100, 76)
        .member<std::uint32_t>("FrequencyStepSize", &R::FrequencyStepSize, 104, 80)
        .member<std::uint32_t>("MinTXFrequencyStep", &R::MinTXFrequencyStep, 108, 84)
        .member<std::uint32_t>("MaxTXFrequencyStep", &R::MaxTXFrequencyStep, 112, 88)
        .member<std::uint32_t>("MinRXFrequencyStep", &R::MinRXFrequencyStep, 116, 92)
        .member<std::uint32_t>("MaxRXFrequencyStep", &R::MaxRXFrequencyStep, 120, 96)
        .member<std::uint32_t>("TXBaseFrequency", &R::TXBaseFrequency, 124, 100)
        .member<std::uint32_t>("RXBaseFrequency", &R::RXBaseFrequency, 128, 104)
        .member<std::uint32_t>("FrequencyBand", &R::FrequencyBand, 132, 108)
        .member<std::uint32_t>("FrequencySubBand", &R::FrequencySubBand, 136, 112)
        .member<std::string>("DuplexType", &R::DuplexType, 144, 116)
        .member<std::vector<std::uint32_t>>("AvailableRSECs", &R::AvailableRSECs, 176, 140)
        .member<bool>("TapsCapable", &R::TapsCapable, 200, 152)
        .member<bool>("RfLoopAvailable", &R::RfLoopAvailable, 201, 153)
        .size(208, 156);
}

TEST(ResponseLayoutTest, EntryOfTheMaximumPowerList)
{
    using E = CriGetRadioChannelCapability::MaxRFOutputPower;
    Layout<E>()
        .member<std::uint32_t>("modulationAndCode", &E::modulationAndCode, 0, 0)
        .member<std::int32_t>("power", &E::power, 4, 4)
        .size(8, 8);
}

} // namespace
