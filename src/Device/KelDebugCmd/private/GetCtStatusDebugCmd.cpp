#include "private/GetCtStatusDebugCmd.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

#include "kel_top_api/CriGetRadioChannelCapability.h"
#include "kel_top_api/CriGetRadioChannelStatus.h"
#include "kel_top_api/ModulationAndCode.h"
#include "private/failureTrace.h"
#include "private/result.h"
#include "private/util.h"

namespace kel::device::kelDebugCmd
{

VemTrace GetCtStatusDebugCmd::trace_("KEL.KDC.GetCtStatusDebugCmd", 3);

const std::string GetCtStatusDebugCmd::TxActualStatusName = "Tx Actual Status:         ";
const std::string GetCtStatusDebugCmd::RadioChannelStatusName = "DSP Lock:                 ";
const std::string GetCtStatusDebugCmd::TxModulationAndCodeStringName = "Actual Tx Modulation:     ";
const std::string GetCtStatusDebugCmd::RxModulationAndCodeStringName = "Actual Rx Modulation:     ";
const std::string GetCtStatusDebugCmd::ActualRfInputPowerName = "Actual Rf Input Power:    ";
const std::string GetCtStatusDebugCmd::ReportedRfOutputPowerName = "Reported Rf Output Power: ";
const std::string GetCtStatusDebugCmd::MseName = "Actual SNIR:              ";
const std::string GetCtStatusDebugCmd::SelectedTxFrequencyName = "Tx Frequency:             ";
const std::string GetCtStatusDebugCmd::SelectedRxFrequencyName = "Rx Frequency:             ";
const std::string GetCtStatusDebugCmd::XpicIsStartedName = "XPIC Started:             ";
const std::string GetCtStatusDebugCmd::ActualXpiName = "Actual XPI:               ";
const std::string GetCtStatusDebugCmd::XpicStateName = "XPIC State:               ";
const std::string GetCtStatusDebugCmd::MinTxFrequencyName = "Min Tx Frequency:         ";
const std::string GetCtStatusDebugCmd::MaxTxFrequencyName = "Max Tx Frequency:         ";
const std::string GetCtStatusDebugCmd::MinRxFrequencyName = "Min Rx Frequency:         ";
const std::string GetCtStatusDebugCmd::MaxRxFrequencyName = "Max Rx Frequency:         ";
const std::string GetCtStatusDebugCmd::FrequencyStepSizeName = "Frequency Step Size:      ";
const std::string GetCtStatusDebugCmd::AvailableMinOutputPowerName = "Available Min Output Pwr: ";
const std::string GetCtStatusDebugCmd::AvailableMaxOutputPowerName = "Available Max Output Pwr: ";
const std::string GetCtStatusDebugCmd::RadioChannelId = "Radio Channel Id:         ";
const std::string GetCtStatusDebugCmd::RadioFrameIdName = "Radio Frame Id:           ";
const std::string GetCtStatusDebugCmd::MinModulationAndCodeStringName = "Min Modulation and Code:  ";
const std::string GetCtStatusDebugCmd::MaxModulationAndCodeStringName = "Max Modulation and Code:  ";
const std::string GetCtStatusDebugCmd::TxFrequencyName = "Tx Frequency:             ";
const std::string GetCtStatusDebugCmd::RxFrequencyName = "Rx Frequency:             ";

namespace
{

using Ct = GetCtStatusDebugCmd;
using kel_top_api::CriGetRadioChannelCapability;
using kel_top_api::CriGetRadioChannelStatus;
using util::KhzUnit;
using util::makeDbmString;
using util::makeDbString;

void appendLine(std::string& text, std::string_view label, std::string_view value, std::string_view unit = {})
{
    text.append(label).append(value).append(unit).append("\n");
}

/// The name that a fresh table gives to a code. The platform's records look theirs up by themselves.
std::string nameOf(std::uint32_t modulationAndCode)
{
    for (const kel_top_api::ModulationAndCode& row : getModulationAndCodeVector())
    {
        if (row.code == modulationAndCode)
        {
            return row.name;
        }
    }
    return "UNDEFINED";
}

/// The name padded to its column; a longer one is written whole.
std::string padded(std::string name)
{
    constexpr std::size_t Width = 14;
    if (name.size() < Width)
    {
        name.resize(Width, ' ');
    }
    return name;
}

std::string dspLock(const std::string& radioChannelStatus)
{
    if (radioChannelStatus == "Up")
    {
        return "Locked";
    }
    if (radioChannelStatus == "Down")
    {
        return "Unlocked";
    }
    return radioChannelStatus;
}

void appendBanner(std::string& text, RadioChannel channel)
{
    text += "\n"
            "=====================================\n"
            "CT info channel ";
    text += std::to_string(channel);
    text += "\n"
            "-------------------------------------\n"
            "\n";
}

void appendStatus(std::string& text, const CriGetRadioChannelStatus::Response& status)
{
    appendLine(text, Ct::TxActualStatusName, status.TXActualStatus);
    appendLine(text, Ct::RadioChannelStatusName, dspLock(status.RadioChannelStatus));
    appendLine(text, Ct::TxModulationAndCodeStringName, status.ActualTxModulation);
    appendLine(text, Ct::RxModulationAndCodeStringName, status.ActualRxModulation);
    appendLine(text, Ct::ActualRfInputPowerName, makeDbmString(status.ActualRFInputPower));
    appendLine(text, Ct::ReportedRfOutputPowerName, makeDbmString(status.ReportedRFOutputPower));
    appendLine(text, Ct::MseName, makeDbString(status.ActualSNIR));
    appendLine(text, Ct::SelectedTxFrequencyName, std::to_string(status.TxFrequency), KhzUnit);
    appendLine(text, Ct::SelectedRxFrequencyName, std::to_string(status.RxFrequency), KhzUnit);
    appendLine(text, Ct::XpicIsStartedName, status.XpicIsStarted ? "true" : "false");
    if (status.XpicIsStarted)
    {
        appendLine(text, Ct::ActualXpiName, std::to_string(status.ActualXpi));
        appendLine(text, Ct::XpicStateName, status.XpicState);
    }
}

void appendCapability(std::string& text, const CriGetRadioChannelCapability::Response& capability)
{
    appendLine(text, Ct::MinTxFrequencyName, std::to_string(capability.MinTXFrequency), KhzUnit);
    appendLine(text, Ct::MaxTxFrequencyName, std::to_string(capability.MaxTXFrequency), KhzUnit);
    appendLine(text, Ct::MinRxFrequencyName, std::to_string(capability.MinRXFrequency), KhzUnit);
    appendLine(text, Ct::MaxRxFrequencyName, std::to_string(capability.MaxRXFrequency), KhzUnit);
    appendLine(text, Ct::FrequencyStepSizeName, std::to_string(capability.FrequencyStepSize), KhzUnit);
    appendLine(text, Ct::AvailableMinOutputPowerName, makeDbmString(capability.AvailableMinRFOutputPower));
    appendLine(text, Ct::AvailableMaxOutputPowerName, "");
    for (const auto& entry : capability.AvailableMaxRFOutputPower)
    {
        text += "            ";
        appendLine(text, padded(nameOf(entry.modulationAndCode)), makeDbmString(entry.power));
    }
    text += "\n";
}

void appendIdentity(std::string& text, const RadioChannelInfo& info)
{
    appendLine(text, Ct::RadioChannelId, std::to_string(info.radioChannelId));
    appendLine(text, Ct::RadioFrameIdName, std::to_string(info.radioFrameId));
    appendLine(text, Ct::MinModulationAndCodeStringName, info.minModulationAndCode);
    appendLine(text, Ct::MaxModulationAndCodeStringName, info.maxModulationAndCode);
}

void giveUp(VemTrace& trace, const std::string& reason, std::string& report)
{
    traceLine(trace, {}, "get", " failed: ", reason);
    report = util::DataNotRetrievedText;
}

} // namespace

GetCtStatusDebugCmd::GetCtStatusDebugCmd(ITiManageRadioChannelNearEnd& radioChannelNearEnd)
    : m_radioChannelNearEnd(radioChannelNearEnd)
{
}

GetCtStatusDebugCmd::~GetCtStatusDebugCmd() = default;

void GetCtStatusDebugCmd::get(RadioChannel channel, std::string& report)
{
    std::string text;
    appendBanner(text, channel);

    const auto status = kel_top_api::criGetRadioChannelStatus({channel});
    if (apiFailed(status))
    {
        return giveUp(trace_, status.resultText, report);
    }
    appendStatus(text, status);

    const auto capability = kel_top_api::criGetRadioChannelCapability({channel});
    if (apiFailed(capability))
    {
        return giveUp(trace_, capability.resultText, report);
    }
    appendCapability(text, capability);

    RadioChannelInfo info;
    const auto result = m_radioChannelNearEnd.getRadioChannelInfo({channel}, &info);
    if (platformFailed(result.resultCode))
    {
        return giveUp(trace_, result.errorText, report);
    }
    appendIdentity(text, info);

    report = std::move(text);
}

} // namespace kel::device::kelDebugCmd
