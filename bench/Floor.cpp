#include "bench/Floor.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>
#include <utility>

namespace bench::floor
{

namespace
{

using namespace std::string_view_literals;

constexpr std::array Names = {
    std::pair{10U, "HALF_BPSK_STRONG"sv}, std::pair{11U, "HALF_BPSK"sv}, std::pair{12U, "HALF_BPSK_LIGHT"sv},
    std::pair{20U, "BPSK_STRONG"sv},      std::pair{21U, "BPSK"sv},      std::pair{22U, "BPSK_LIGHT"sv},
    std::pair{30U, "4QAM_STRONG"sv},      std::pair{31U, "4QAM"sv},      std::pair{32U, "4QAM_LIGHT"sv},
    std::pair{40U, "16QAM_STRONG"sv},     std::pair{41U, "16QAM"sv},     std::pair{42U, "16QAM_LIGHT"sv},
    std::pair{50U, "32QAM_STRONG"sv},     std::pair{51U, "32QAM"sv},     std::pair{52U, "32QAM_LIGHT"sv},
    std::pair{60U, "64QAM_STRONG"sv},     std::pair{61U, "64QAM"sv},     std::pair{62U, "64QAM_LIGHT"sv},
    std::pair{70U, "128QAM_STRONG"sv},    std::pair{71U, "128QAM"sv},    std::pair{72U, "128QAM_LIGHT"sv},
    std::pair{80U, "256QAM_STRONG"sv},    std::pair{81U, "256QAM"sv},    std::pair{82U, "256QAM_LIGHT"sv},
    std::pair{90U, "512QAM_STRONG"sv},    std::pair{91U, "512QAM"sv},    std::pair{92U, "512QAM_LIGHT"sv},
    std::pair{100U, "1024QAM_STRONG"sv},  std::pair{101U, "1024QAM"sv},  std::pair{102U, "1024QAM_LIGHT"sv},
    std::pair{110U, "2048QAM_STRONG"sv},  std::pair{111U, "2048QAM"sv},  std::pair{112U, "2048QAM_LIGHT"sv},
    std::pair{120U, "4096QAM_STRONG"sv},  std::pair{121U, "4096QAM"sv},  std::pair{122U, "4096QAM_LIGHT"sv},
    std::pair{130U, "8192QAM_STRONG"sv},  std::pair{131U, "8192QAM"sv},  std::pair{132U, "8192QAM_LIGHT"sv},
    std::pair{140U, "16384QAM_STRONG"sv}, std::pair{141U, "16384QAM"sv}, std::pair{142U, "16384QAM_LIGHT"sv},
};

std::string_view nameOf(std::uint32_t modulationAndCode)
{
    for (const auto& [code, name] : Names)
    {
        if (code == modulationAndCode)
        {
            return name;
        }
    }
    return "UNDEFINED"sv;
}

std::string_view equipmentClass(std::uint32_t code)
{
    constexpr std::array names = {"2"sv, "4L"sv, "4H"sv, "5B"sv, "6B"sv, "5LB"sv, "5HB"sv, "6LB"sv, "6HB"sv, "7B"sv};
    return code < names.size() ? names[code] : "UNDEFINED"sv;
}

std::string_view nameOf(kel_top_api::TiManageXpic::XpicEnableExtType mode)
{
    constexpr std::array names = {"Disable"sv, "Enable_A"sv, "Enable_B"sv, "Enable_C"sv, "Enable_D"sv};
    const auto number = static_cast<std::uint32_t>(mode);
    return number < names.size() ? names[number] : ""sv;
}

std::string_view dspLock(std::string_view status)
{
    return status == "Up" ? "Locked"sv : status == "Down" ? "Unlocked"sv : status;
}

template <typename... Values>
void append(Buffer& buffer, fmt::format_string<Values...> format, Values&&... values)
{
    fmt::format_to(std::back_inserter(buffer), format, std::forward<Values>(values)...);
}

} // namespace

void ctReport(Buffer& buffer, RadioChannel channel, const kel_top_api::CriGetRadioChannelStatus::Response& status,
              const kel_top_api::CriGetRadioChannelCapability::Response& capability, const RadioChannelInfo& info)
{
    buffer.clear();
    append(buffer,
           "\n=====================================\nCT info channel {}\n-------------------------------------\n\n"
           "Tx Actual Status:         {}\n"
           "DSP Lock:                 {}\n"
           "Actual Tx Modulation:     {}\n"
           "Actual Rx Modulation:     {}\n"
           "Actual Rf Input Power:    {:.6g} dBm\n"
           "Reported Rf Output Power: {:.6g} dBm\n"
           "Actual SNIR:              {:.6g} dB\n"
           "Tx Frequency:             {} kHz\n"
           "Rx Frequency:             {} kHz\n"
           "XPIC Started:             {}\n",
           channel, status.TXActualStatus, dspLock(status.RadioChannelStatus), status.ActualTxModulation,
           status.ActualRxModulation, status.ActualRFInputPower / 100.0, status.ReportedRFOutputPower / 100.0,
           status.ActualSNIR / 100.0, status.TxFrequency, status.RxFrequency, status.XpicIsStarted);
    if (status.XpicIsStarted)
    {
        append(buffer,
               "Actual XPI:               {}\n"
               "XPIC State:               {}\n",
               status.ActualXpi, status.XpicState);
    }
    append(buffer,
           "Min Tx Frequency:         {} kHz\n"
           "Max Tx Frequency:         {} kHz\n"
           "Min Rx Frequency:         {} kHz\n"
           "Max Rx Frequency:         {} kHz\n"
           "Frequency Step Size:      {} kHz\n"
           "Available Min Output Pwr: {:.6g} dBm\n"
           "Available Max Output Pwr: \n",
           capability.MinTXFrequency, capability.MaxTXFrequency, capability.MinRXFrequency, capability.MaxRXFrequency,
           capability.FrequencyStepSize, capability.AvailableMinRFOutputPower / 100.0);
    for (const auto& entry : capability.AvailableMaxRFOutputPower)
    {
        append(buffer, "            {:<14}{:.6g} dBm\n", nameOf(entry.modulationAndCode), entry.power / 100.0);
    }
    append(buffer,
           "\n"
           "Radio Channel Id:         {}\n"
           "Radio Frame Id:           {}\n"
           "Min Modulation and Code:  {}\n"
           "Max Modulation and Code:  {}\n",
           info.radioChannelId, info.radioFrameId, info.minModulationAndCode, info.maxModulationAndCode);
}

void xpicStatusReport(Buffer& buffer, const kel_top_api::TiManageXpic::Response& response)
{
    buffer.clear();
    append(buffer,
           "Modem XPIC Information:\n"
           "--- XPD [.1dB]                 : {}\n"
           "--- Slave carrier Offset [KHz] : {:f}\n"
           "--- Slave Sweep ongoing        : {:d}\n"
           "--- Calibration Status         : {}\n",
           response.Xpd, static_cast<float>(response.SlaveCarrierOffset) / 1000.0F, response.SlaveSweepOngoing,
           response.CalibrationStatus);
}

void ppsCalibrationReport(Buffer& buffer, const kel_top_api::CriGetCalibrationStatusDspPps::Response& response)
{
    constexpr std::array shownStatus = {0, 1, 2, 4, 3};
    const std::uint32_t status = response.calibrationStatus;
    buffer.clear();
    append(buffer,
           "PPS PPs Calibration: {}\n"
           "--- [0]: RTC calibration never initiated\n"
           "--- [1]: Coarse calibration not completed\n"
           "--- [2]: Fine calibration not completed\n"
           "--- [3]: Calibration completed in manual mode\n"
           "--- [4]: Fine calibration in auto mode\n"
           "--- [5]: Calibration failed: {}\n",
           status < shownStatus.size() ? shownStatus[status] : 5, std::min(response.calibrationFailureReason, 5U));
    if (status == 5)
    {
        append(buffer, "------ [0]: No reason\n"
                       "------ [1]: Slave Link Loss\n"
                       "------ [2]: No response from master\n"
                       "------ [3]: Modulation change\n"
                       "------ [4]: Calibration coarse need to be completed first\n"
                       "------ [5]: Reserved\n");
    }
}

void ppsHopLengthReport(Buffer& buffer, const kel_top_api::CriGetHopLengthTimeDspPps::Response& response)
{
    buffer.clear();
    append(buffer, "PPS hop length time[nsec]: {}\n", response.hopLengthTime);
}

void printed(Buffer& buffer, const kel_top_api::BaseResponse& /*response*/)
{
    buffer.clear();
    append(buffer, "Sent\n");
}

void printed(Buffer& buffer, const kel_top_api::StandardResponse& /*response*/)
{
    buffer.clear();
    append(buffer, "StandardResponse Sent\n");
}

void printed(Buffer& buffer, const kel_top_api::TiManageXpic::Response& response)
{
    buffer.clear();
    append(buffer,
           "RadioChannelID: {}, XpicControlBarOn: {:d}, XpicEnable: {:d}, AverageI: {}, AverageQ: {}, TxMessage: {}, "
           "RxMessage: {}, XpicLockStateMachine: {:d}, XpicState: {}, SlaveInternalAgc: {}, SlaveExternalAgc: {}, "
           "XpicCableConnected: {:d}, XpicTxEnable: {:d}, XpicEnableExt: {}, SlaveDiffGain: {}",
           response.RadioChannelID, response.XpicControlBarOn, response.XpicEnable, response.AverageI,
           response.AverageQ, response.TxMessage, response.RxMessage, response.XpicLockStateMachine, response.XpicState,
           response.SlaveInternalAgc, response.SlaveExternalAgc, response.XpicCableConnected, response.XpicTxEnable,
           nameOf(response.XpicEnableExt), response.SlaveDiffGain);
}

void printed(Buffer& buffer, const kel_top_api::CriGetRadioChannelStatus::Response& response)
{
    buffer.clear();
    append(buffer,
           "TXActualStatus: {}, RadioChannelStatus: {}, ActualModulation: {}, ActualTxModulation: {}, "
           "ActualRxModulation:{}, ActualRFInputPower: {}, ReportedRFOutputPower: {}, ClockStatus: {}, ActualSNIR: {}, "
           "ErroredBlocks: {}, BackgroundBlocks: {}, TxFrequency: {}, RxFrequency: {}, KelState: {}\n",
           response.TXActualStatus, response.RadioChannelStatus, response.ActualModulation, response.ActualTxModulation,
           response.ActualRxModulation, response.ActualRFInputPower, response.ReportedRFOutputPower,
           response.ClockStatus, response.ActualSNIR, response.ErroredBlocks, response.BackgroundBlocks,
           response.TxFrequency, response.RxFrequency, response.KelState);
}

void printed(Buffer& buffer, const kel_top_api::CriGetRadioChannelCapability::Response& response)
{
    buffer.clear();
    append(buffer, "NumberOfChannels: {}, MinTemp: {}, MaxTemp: {}, AvailableMinRFOutputPower: {}, ",
           response.NumberOfChannels, response.MinTemp, response.MaxTemp, response.AvailableMinRFOutputPower);
    append(buffer, "AvailableMaxRFOutputPower: ");
    for (const auto& entry : response.AvailableMaxRFOutputPower)
    {
        append(buffer, "Modulation:{} Pmax:{}\t", nameOf(entry.modulationAndCode), entry.power);
    }
    append(buffer,
           ", MinTXFrequency: {}, MaxTXFrequency: {}, MinRXFrequency: {}, MaxRXFrequency: {}, FrequencyStepSize: {}, "
           "MinTXFrequencyStep: {}, MaxTXFrequencyStep: {}, MinRXFrequencyStep: {}, MaxRXFrequencyStep: {}, "
           "TXBaseFrequency: {}, RXBaseFrequency: {}, FrequencyBand: {}, FrequencySubBand: {}, DuplexType: {}, "
           "AvailableRSECs: ",
           response.MinTXFrequency, response.MaxTXFrequency, response.MinRXFrequency, response.MaxRXFrequency,
           response.FrequencyStepSize, response.MinTXFrequencyStep, response.MaxTXFrequencyStep,
           response.MinRXFrequencyStep, response.MaxRXFrequencyStep, response.TXBaseFrequency, response.RXBaseFrequency,
           response.FrequencyBand, response.FrequencySubBand, response.DuplexType);
    for (const std::uint32_t code : response.AvailableRSECs)
    {
        append(buffer, "{}\t", equipmentClass(code));
    }
    append(buffer, "\n, TapsCapable: {:d}, RfLoopAvailable: {:d}", response.TapsCapable, response.RfLoopAvailable);
}

} // namespace bench::floor
