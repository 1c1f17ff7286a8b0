#include "fuzz/Records.h"

namespace fuzz
{

using kel_top_api::CriGetRadioChannelCapability;
using kel_top_api::CriGetRadioChannelStatus;
using kel_top_api::TiManageXpic;

namespace
{

constexpr std::uint32_t LongestList = 6;

std::string lockText(Input& input)
{
    switch (input.below(3))
    {
    case 0:
        return "Up";
    case 1:
        return "Down";
    default:
        return input.text();
    }
}

} // namespace

void fillOutcome(Input& input, kel_top_api::BaseResponse& response)
{
    response.opaqueWord = input.byte();
    response.resultCode = input.number();
    response.resultText = input.text();
}

void fill(Input& input, TiManageXpic::Response& response)
{
    fillOutcome(input, response);
    response.XpicPreamble = TiManageXpic::PreambleType{input.unsignedNumber()};
    response.Xpd = input.number();
    response.SlaveCarrierOffset = input.number();
    response.SlaveSweepOngoing = input.flag();
    response.CalibrationStatus = input.byte();
    response.RadioChannelID = input.unsignedNumber();
    response.XpicControlBarOn = input.flag();
    response.XpicEnable = input.flag();
    response.AverageI = input.number();
    response.AverageQ = input.number();
    response.TxMessage = input.text();
    response.RxMessage = input.text();
    response.XpicLockStateMachine = input.flag();
    response.XpicState = input.text();
    response.SlaveInternalAgc = input.number();
    response.SlaveExternalAgc = input.number();
    response.XpicCableConnected = input.flag();
    response.XpicTxEnable = input.flag();
    response.XpicEnableExt = TiManageXpic::XpicEnableExtType{input.unsignedNumber()};
    response.SlaveDiffGain = input.number();
}

void fill(Input& input, CriGetRadioChannelStatus::Response& response)
{
    fillOutcome(input, response);
    response.TXActualStatus = input.text();
    response.RadioChannelStatus = lockText(input);
    response.ActualModulation = input.text();
    response.ActualTxModulation = input.text();
    response.ActualRxModulation = input.text();
    response.ActualRFInputPower = input.number();
    response.ReportedRFOutputPower = input.number();
    response.ClockStatus = input.number();
    response.ActualSNIR = input.number();
    response.ErroredBlocks = input.number();
    response.BackgroundBlocks = input.number();
    response.TxFrequency = input.number();
    response.RxFrequency = input.number();
    response.KelState = input.text();
    response.XpicIsStarted = input.flag();
    response.ActualXpi = input.number();
    response.XpicState = input.text();
}

void fill(Input& input, CriGetRadioChannelCapability::Response& response)
{
    fillOutcome(input, response);
    response.AvailableMaxRFOutputPower.clear();
    for (std::uint32_t left = input.below(LongestList + 1); left > 0; --left)
    {
        const std::uint32_t modulation = input.flag() ? input.unsignedNumber() : input.byte();
        response.AvailableMaxRFOutputPower.push_back({modulation, input.number()});
    }
    response.AvailableRSECs.clear();
    for (std::uint32_t left = input.below(LongestList + 1); left > 0; --left)
    {
        response.AvailableRSECs.push_back(input.flag() ? input.unsignedNumber() : input.below(12));
    }
    response.NumberOfChannels = input.unsignedNumber();
    response.MinTemp = input.number();
    response.MaxTemp = input.number();
    response.AvailableMinRFOutputPower = input.number();
    for (std::uint32_t* const number :
         {&response.MinTXFrequency, &response.MaxTXFrequency, &response.MinRXFrequency, &response.MaxRXFrequency,
          &response.FrequencyStepSize, &response.MinTXFrequencyStep, &response.MaxTXFrequencyStep,
          &response.MinRXFrequencyStep, &response.MaxRXFrequencyStep, &response.TXBaseFrequency,
          &response.RXBaseFrequency, &response.FrequencyBand, &response.FrequencySubBand})
    {
        *number = input.unsignedNumber();
    }
    response.DuplexType = input.text();
    response.TapsCapable = input.flag();
    response.RfLoopAvailable = input.flag();
}

DpdCoeffs coefficientsOf(Input& input)
{
    DpdCoeffs coefficients;
    for (std::uint8_t& byte : coefficients.bytes)
    {
        byte = input.byte();
    }
    return coefficients;
}

} // namespace fuzz
