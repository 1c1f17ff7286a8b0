#include "fuzz/expected/CtStatus.h"

#include <cstring>
#include <iomanip>
#include <locale>
#include <sstream>

#include "fuzz/expected/Texts.h"
#include "fuzz/expected/Trace.h"

namespace expected
{

namespace
{

constexpr std::int32_t FirstFailure = 0x8000; // of what is no top-level API

void line(std::ostream& report, const std::string& caption, const std::string& value)
{
    report << std::left << std::setw(26) << caption << std::setw(0) << value << "\n";
}

template <typename Number>
std::string kilohertz(Number number)
{
    std::ostringstream text;
    text << number << " kHz";
    return text.str();
}

std::string lock(const std::string& status)
{
    if (status == "Up")
    {
        return "Locked";
    }
    if (status == "Down")
    {
        return "Unlocked";
    }
    return status;
}

void statusLines(std::ostream& report, const kel_top_api::CriGetRadioChannelStatus::Response& status)
{
    line(report, "Tx Actual Status:", status.TXActualStatus);
    line(report, "DSP Lock:", lock(status.RadioChannelStatus));
    line(report, "Actual Tx Modulation:", status.ActualTxModulation);
    line(report, "Actual Rx Modulation:", status.ActualRxModulation);
    line(report, "Actual Rf Input Power:", level(status.ActualRFInputPower, " dBm"));
    line(report, "Reported Rf Output Power:", level(status.ReportedRFOutputPower, " dBm"));
    line(report, "Actual SNIR:", level(status.ActualSNIR, " dB"));
    line(report, "Tx Frequency:", kilohertz(status.TxFrequency));
    line(report, "Rx Frequency:", kilohertz(status.RxFrequency));
    line(report, "XPIC Started:", status.XpicIsStarted ? "true" : "false");
    if (status.XpicIsStarted)
    {
        line(report, "Actual XPI:", std::to_string(status.ActualXpi));
        line(report, "XPIC State:", status.XpicState);
    }
}

void capabilityLines(std::ostream& report, const kel_top_api::CriGetRadioChannelCapability::Response& capability)
{
    line(report, "Min Tx Frequency:", kilohertz(capability.MinTXFrequency));
    line(report, "Max Tx Frequency:", kilohertz(capability.MaxTXFrequency));
    line(report, "Min Rx Frequency:", kilohertz(capability.MinRXFrequency));
    line(report, "Max Rx Frequency:", kilohertz(capability.MaxRXFrequency));
    line(report, "Frequency Step Size:", kilohertz(capability.FrequencyStepSize));
    line(report, "Available Min Output Pwr:", level(capability.AvailableMinRFOutputPower, " dBm"));
    line(report, "Available Max Output Pwr:", "");
    for (const auto& [modulation, power] : capability.AvailableMaxRFOutputPower)
    {
        report << std::string(12, ' ') << std::left << std::setw(14) << modulationName(modulation)
               << level(power, " dBm") << "\n";
    }
    report << "\n";
}

void identityLines(std::ostream& report, const RadioChannelInfo& info)
{
    line(report, "Radio Channel Id:", std::to_string(info.radioChannelId));
    line(report, "Radio Frame Id:", std::to_string(info.radioFrameId));
    line(report, "Min Modulation and Code:", info.minModulationAndCode);
    line(report, "Max Modulation and Code:", info.maxModulationAndCode);
}

void fail(const Platform& platform, const std::string& reason, Outcome& outcome)
{
    traceLine(outcome, "KEL.KDC.GetCtStatusDebugCmd", platform.ctStatusTraced, "", "get failed: " + reason);
    outcome.report = NoData;
}

} // namespace

void getCtStatus(const Platform& platform, RadioChannel channel, Outcome& outcome)
{
    const std::string number = std::to_string(channel);
    outcome.result = 0;

    outcome.calls.push_back("criGetRadioChannelStatus(radioChannel=" + number + ", flag2=0)");
    const auto& status = platform.api.radioChannelStatus;
    if (status.resultCode > 0)
    {
        fail(platform, status.resultText, outcome);
        return;
    }
    outcome.calls.push_back("criGetRadioChannelCapability(radioChannel=" + number +
                            ", number2=0, modulationAndCode3=143, modulationAndCode4=143, number5=1000, number6=0, "
                            "number7=0)");
    const auto& capability = platform.api.radioChannelCapability;
    if (capability.resultCode > 0)
    {
        fail(platform, capability.resultText, outcome);
        return;
    }
    outcome.calls.push_back("ITiManageRadioChannelNearEnd.getRadioChannelInfo(" + number + ")");
    if (platform.nearEnd.result.resultCode >= FirstFailure)
    {
        fail(platform, platform.nearEnd.result.errorText, outcome);
        return;
    }

    std::ostringstream report;
    report.imbue(std::locale::classic());
    report << "\n" << std::string(37, '=') << "\n";
    report << "CT info channel " << channel << "\n";
    report << std::string(37, '-') << "\n\n";
    statusLines(report, status);
    capabilityLines(report, capability);
    identityLines(report, platform.nearEnd.info);
    outcome.report = report.str();
}

std::array<unsigned char, 88> identityRequest(RadioChannel channel)
{
    std::array<unsigned char, 88> bytes{};
    const auto put = [&](std::size_t offset, std::uint32_t word)
    { std::memcpy(&bytes.at(offset), &word, sizeof word); };
    put(0, channel);
    bytes[4] = 1;
    put(20, 143);
    put(28, 143);
    put(36, 1000);
    bytes[60] = 1;
    return bytes;
}

} // namespace expected
