#include "fuzz/expected/Texts.h"

#include <array>
#include <cstdio>
#include <sstream>

namespace expected
{

namespace
{

template <typename... Numbers>
std::string formatted(const char* format, Numbers... numbers)
{
    std::array<char, 512> text{};
    const int length = std::snprintf(text.data(), text.size(), format, numbers...);
    return {text.data(), static_cast<std::size_t>(length)};
}

std::string equipmentClass(std::uint32_t code)
{
    switch (code)
    {
    case 0:
        return "2";
    case 1:
        return "4L";
    case 2:
        return "4H";
    case 3:
        return "5B";
    case 4:
        return "6B";
    case 5:
        return "5LB";
    case 6:
        return "5HB";
    case 7:
        return "6LB";
    case 8:
        return "6HB";
    case 9:
        return "7B";
    default:
        return "UNDEFINED";
    }
}

std::string enableName(kel_top_api::TiManageXpic::XpicEnableExtType mode)
{
    switch (static_cast<std::uint32_t>(mode))
    {
    case 0:
        return "Disable";
    case 1:
        return "Enable_A";
    case 2:
        return "Enable_B";
    case 3:
        return "Enable_C";
    case 4:
        return "Enable_D";
    default:
        return "";
    }
}

} // namespace

std::string level(std::int32_t hundredths, const std::string& unit)
{
    return formatted("%.6g", hundredths / 100.0) + unit;
}

std::string modulationName(std::uint32_t code)
{
    const std::uint32_t position = code / 10;
    const std::uint32_t strength = code % 10;
    if (position < 1 || position > 14 || strength > 2)
    {
        return "UNDEFINED";
    }
    std::ostringstream name;
    if (position == 1)
    {
        name << "HALF_BPSK";
    }
    else if (position == 2)
    {
        name << "BPSK";
    }
    else if (position == 3)
    {
        name << "4QAM";
    }
    else
    {
        name << (1U << position) << "QAM"; // the fourth has 16 points, each further one twice as many
    }
    if (strength == 0)
    {
        name << "_STRONG";
    }
    if (strength == 2)
    {
        name << "_LIGHT";
    }
    return name.str();
}

std::string ppsCalibrationStatus(std::uint32_t status, std::uint32_t reason)
{
    int shownStatus = 5;
    if (status <= 2)
    {
        shownStatus = static_cast<int>(status);
    }
    if (status == 3) // the legend has the two modes the other way round than the API
    {
        shownStatus = 4;
    }
    if (status == 4)
    {
        shownStatus = 3;
    }
    const int shownReason = reason <= 4 ? static_cast<int>(reason) : 5;

    std::ostringstream report;
    report << "PPS PPs Calibration: " << shownStatus << "\n";
    report << "--- [0]: RTC calibration never initiated\n";
    report << "--- [1]: Coarse calibration not completed\n";
    report << "--- [2]: Fine calibration not completed\n";
    report << "--- [3]: Calibration completed in manual mode\n";
    report << "--- [4]: Fine calibration in auto mode\n";
    report << "--- [5]: Calibration failed: " << shownReason << "\n";
    if (status == 5)
    {
        report << "------ [0]: No reason\n";
        report << "------ [1]: Slave Link Loss\n";
        report << "------ [2]: No response from master\n";
        report << "------ [3]: Modulation change\n";
        report << "------ [4]: Calibration coarse need to be completed first\n";
        report << "------ [5]: Reserved\n";
    }
    return report.str();
}

std::string ppsHopLengthTime(std::uint32_t time_ns)
{
    return formatted("PPS hop length time[nsec]: %lu\n", static_cast<unsigned long>(time_ns));
}

std::string xpicStatus(const kel_top_api::TiManageXpic::Response& response)
{
    const float offset_kHz = static_cast<float>(response.SlaveCarrierOffset) / 1000.0F;
    return "Modem XPIC Information:\n" + formatted("--- XPD [.1dB]                 : %d\n", response.Xpd) +
           formatted("--- Slave carrier Offset [KHz] : %f\n", static_cast<double>(offset_kHz)) +
           formatted("--- Slave Sweep ongoing        : %d\n", response.SlaveSweepOngoing ? 1 : 0) +
           formatted("--- Calibration Status         : %d\n", static_cast<int>(response.CalibrationStatus));
}

std::string printed(const kel_top_api::TiManageXpic::Response& response)
{
    std::ostringstream line;
    line << "RadioChannelID: " << response.RadioChannelID;
    line << ", XpicControlBarOn: " << response.XpicControlBarOn;
    line << ", XpicEnable: " << response.XpicEnable;
    line << ", AverageI: " << response.AverageI;
    line << ", AverageQ: " << response.AverageQ;
    line << ", TxMessage: " << response.TxMessage;
    line << ", RxMessage: " << response.RxMessage;
    line << ", XpicLockStateMachine: " << response.XpicLockStateMachine;
    line << ", XpicState: " << response.XpicState;
    line << ", SlaveInternalAgc: " << response.SlaveInternalAgc;
    line << ", SlaveExternalAgc: " << response.SlaveExternalAgc;
    line << ", XpicCableConnected: " << response.XpicCableConnected;
    line << ", XpicTxEnable: " << response.XpicTxEnable;
    line << ", XpicEnableExt: " << enableName(response.XpicEnableExt);
    line << ", SlaveDiffGain: " << response.SlaveDiffGain;
    return line.str();
}

std::string printed(const kel_top_api::CriGetRadioChannelStatus::Response& response)
{
    std::ostringstream line;
    line << "TXActualStatus: " << response.TXActualStatus;
    line << ", RadioChannelStatus: " << response.RadioChannelStatus;
    line << ", ActualModulation: " << response.ActualModulation;
    line << ", ActualTxModulation: " << response.ActualTxModulation;
    line << ", ActualRxModulation:" << response.ActualRxModulation;
    line << ", ActualRFInputPower: " << response.ActualRFInputPower;
    line << ", ReportedRFOutputPower: " << response.ReportedRFOutputPower;
    line << ", ClockStatus: " << response.ClockStatus;
    line << ", ActualSNIR: " << response.ActualSNIR;
    line << ", ErroredBlocks: " << response.ErroredBlocks;
    line << ", BackgroundBlocks: " << response.BackgroundBlocks;
    line << ", TxFrequency: " << response.TxFrequency;
    line << ", RxFrequency: " << response.RxFrequency;
    line << ", KelState: " << response.KelState;
    line << "\n";
    return line.str();
}

std::string printed(const kel_top_api::CriGetRadioChannelCapability::Response& response)
{
    std::ostringstream text;
    text << "NumberOfChannels: " << response.NumberOfChannels;
    text << ", MinTemp: " << response.MinTemp;
    text << ", MaxTemp: " << response.MaxTemp;
    text << ", AvailableMinRFOutputPower: " << response.AvailableMinRFOutputPower;
    text << ", AvailableMaxRFOutputPower: ";
    for (const auto& [modulation, power] : response.AvailableMaxRFOutputPower)
    {
        text << "Modulation:" << modulationName(modulation) << " Pmax:" << power << "\t";
    }
    text << ", MinTXFrequency: " << response.MinTXFrequency;
    text << ", MaxTXFrequency: " << response.MaxTXFrequency;
    text << ", MinRXFrequency: " << response.MinRXFrequency;
    text << ", MaxRXFrequency: " << response.MaxRXFrequency;
    text << ", FrequencyStepSize: " << response.FrequencyStepSize;
    text << ", MinTXFrequencyStep: " << response.MinTXFrequencyStep;
    text << ", MaxTXFrequencyStep: " << response.MaxTXFrequencyStep;
    text << ", MinRXFrequencyStep: " << response.MinRXFrequencyStep;
    text << ", MaxRXFrequencyStep: " << response.MaxRXFrequencyStep;
    text << ", TXBaseFrequency: " << response.TXBaseFrequency;
    text << ", RXBaseFrequency: " << response.RXBaseFrequency;
    text << ", FrequencyBand: " << response.FrequencyBand;
    text << ", FrequencySubBand: " << response.FrequencySubBand;
    text << ", DuplexType: " << response.DuplexType;
    text << ", AvailableRSECs: ";
    for (const std::uint32_t code : response.AvailableRSECs)
    {
        text << equipmentClass(code) << "\t";
    }
    text << "\n, TapsCapable: " << response.TapsCapable;
    text << ", RfLoopAvailable: " << response.RfLoopAvailable;
    return text.str();
}

} // namespace expected
