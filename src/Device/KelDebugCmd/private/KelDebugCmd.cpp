#include "KelDebugCmd.h"

#include <iterator>
#include <string_view>

#include "framework/CModuleManager.h"
#include "framework/InterfaceBroker.h"
#include "kel_top_api/CriCalibrateDspPps.h"
#include "kel_top_api/CriGetCalibrationStatusDspPps.h"
#include "kel_top_api/CriGetHopLengthTimeDspPps.h"
#include "kel_top_api/CriSetOutputModeDspPps.h"
#include "kel_top_api/CriSetSourceDspPps.h"
#include "kel_top_api/TiManageXpic.h"
#include "private/GetCtStatusDebugCmd.h"
#include "private/apiNumbers.h"
#include "private/failureTrace.h"
#include "private/reports.h"
#include "private/result.h"
#include "private/util.h"

namespace kel::device::kelDebugCmd
{

VemTrace KelDebugCmd::m_trace("KEL.KDC.KelDebugCmd", 3);

namespace
{

using kel_top_api::BaseResponse;
using kel_top_api::TiManageXpic;

/// The framework reads it for as long as the module lives.
constexpr unsigned long RegistrationList[] = {11};

/// A place in this file, for the trace. Two words, which cost a command nothing that does not fail.
struct Place
{
    int line;
    const char* function;
};

/// The place of the caller: its line, and its bare name where the standard's source_location would give the whole
/// signature.
Place here(int line = __builtin_LINE(), const char* function = __builtin_FUNCTION())
{
    return {line, function};
}

VemTraceHeader headerOf(Place place)
{
    return {"src/Device/KelDebugCmd/private/KelDebugCmd", place.line, place.function};
}

/// The broker's interface of that name; null when it is absent, empty or of another type.
template <typename Interface>
Interface* lookUp(const std::string& name)
{
    const auto& interfaces = InterfaceBroker::getInstance().interfaces();
    const auto entry = interfaces.find(name);
    return entry == interfaces.end() ? nullptr : dynamic_cast<Interface*>(entry->second.get());
}

/// How many DPD controllers to look up. Only nodes with one or two radio channels have any.
RadioChannel channelsWithDpd(int numberOfRadioChannels)
{
    const bool known = numberOfRadioChannels == 1 || numberOfRadioChannels == 2;
    return known ? static_cast<RadioChannel>(numberOfRadioChannels) : 0;
}

TiManageXpic::Command xpicCommand(RadioChannel channel)
{
    TiManageXpic::Command command;
    command.RadioChannelID = channel;
    return command;
}

// How a command ends: the service's answer is judged, and a failure traced in the style of the command's family.

int failDpd(std::int32_t code, VemTrace& trace, Place place, std::string_view reason)
{
    traceLine(trace, headerOf(place), place.function, reason, std::to_string(code));
    return Failed;
}

/// A channel without a controller fails without a trace.
template <typename Call>
int commandDpd(IDpdControllerSplit* dpd, const Call& call, VemTrace& trace, Place place, std::string_view reason)
{
    if (dpd == nullptr)
    {
        return Failed;
    }
    const auto code = static_cast<std::int32_t>(call(*dpd));
    return platformFailed(code) ? failDpd(code, trace, place, reason) : Done;
}

int failXpic(const TiManageXpic::Response& response, VemTrace& trace, Place place)
{
    traceText(trace, headerOf(place), response.resultText);
    return Failed;
}

int endXpic(const TiManageXpic::Response& response, VemTrace& trace, Place place)
{
    return apiFailed(response) ? failXpic(response, trace, place) : Done;
}

int failPps(const BaseResponse& response, VemTrace& trace, Place place)
{
    traceBuffer(trace, headerOf(place), response.resultText);
    return Failed;
}

int endPps(const BaseResponse& response, VemTrace& trace, Place place)
{
    return apiFailed(response) ? failPps(response, trace, place) : Done;
}

} // namespace

// Life of the module.

KelDebugCmd::KelDebugCmd(int numberOfRadioChannels, ITiManageRadioChannelNearEnd& radioChannelNearEnd,
                         ITiGetDspModemStatus& dspModemStatus)
    : ModuleInterface(120000, "KelDebugCmd", 100, 0, RegistrationList, std::size(RegistrationList)),
      m_numberOfRadioChannels(numberOfRadioChannels), m_radioChannelNearEnd(radioChannelNearEnd),
      m_dspModemStatus(dspModemStatus)
{
    CModuleManager::GetInstance().RegisterModule(this);
}

KelDebugCmd::~KelDebugCmd() = default;

std::int32_t KelDebugCmd::onModuleInit()
{
    const std::string boardSupportName = "IRlbspKelApi";
    auto* const boardSupport = lookUp<IRlbspKelApi>(boardSupportName);
    if (boardSupport == nullptr)
    {
        // Readers of the trace search for "toIRlbspKelApi": no blank.
        traceLine(m_trace, headerOf(here()), "onModuleInit", "(): failed to get interface to", boardSupportName);
        return PlatformFailure;
    }
    boardSupport->installDebugCmdCallback(this);
    m_getCtStatusDebugCmd = std::make_unique<GetCtStatusDebugCmd>(m_radioChannelNearEnd);

    for (RadioChannel channel = 1; channel <= channelsWithDpd(m_numberOfRadioChannels); ++channel)
    {
        const std::string name = "IDpdControllerSplit_" + std::to_string(channel);
        m_dpdController[channel - 1] = lookUp<IDpdControllerSplit>(name);
        if (m_dpdController[channel - 1] == nullptr)
        {
            traceLine(m_trace, headerOf(here()), "onModuleInit", "(): Error getting interface to ", name);
            return PlatformFailure;
        }
    }
    return PlatformSuccess;
}

// The commands.

int KelDebugCmd::getCtStatus(RadioChannel channel, std::string& report)
{
    m_getCtStatusDebugCmd->get(channel, report);
    return Done;
}

int KelDebugCmd::getBcmModemStatus(RadioChannel channel, std::string& report)
{
    DspModemStatus status;
    status.request = 2;
    const auto result = m_dspModemStatus.getDspModemStatus(channel, &status);
    if (platformFailed(result.resultCode))
    {
        traceLine(m_trace, {}, "getBcmModemStatus", " failed: ", result.errorText);
        report = util::DataNotRetrievedText;
        return Failed;
    }
    report = m_dspModemStatus.toString(status);
    return Done;
}

int KelDebugCmd::getPpsCalibrationStatus(RadioChannel channel, std::string& report)
{
    const auto response = kel_top_api::criGetCalibrationStatusDspPps({channel});
    const int result = endPps(response, m_trace, here());
    report = result == Done ? ppsCalibrationReport(response) : util::DataNotRetrievedText;
    return result;
}

int KelDebugCmd::getPpsHopLengthTime(RadioChannel channel, std::string& report)
{
    const auto response = kel_top_api::criGetHopLengthTimeDspPps({channel});
    const int result = endPps(response, m_trace, here());
    report = result == Done ? ppsHopLengthReport(response) : util::DataNotRetrievedText;
    return result;
}

int KelDebugCmd::calibratePps(RadioChannel channel, int mode, unsigned short value)
{
    const auto calibrationMode = calibrationModeFrom(mode);
    if (!calibrationMode)
    {
        return Failed;
    }
    return endPps(kel_top_api::criCalibrateDspPps({channel, *calibrationMode, value}), m_trace, here());
}

int KelDebugCmd::setPpsOutputMode(RadioChannel channel, int mode)
{
    const auto outputMode = outputModeFrom(mode);
    if (!outputMode)
    {
        return Failed;
    }
    return endPps(kel_top_api::criSetOutputModeDspPps({channel, *outputMode}), m_trace, here());
}

int KelDebugCmd::setPpsSource(RadioChannel channel, int source, int parameter)
{
    const auto ppsSource = sourceFrom(source);
    if (!ppsSource)
    {
        return Failed;
    }
    return endPps(kel_top_api::criSetSourceDspPps({channel, *ppsSource, parameter}), m_trace, here());
}

int KelDebugCmd::startDpd(RadioChannel channel)
{
    const auto start = [](IDpdControllerSplit& dpd) { return dpd.start(dpd.getStartParameter()); };
    return commandDpd(m_dpdController[channel - 1], start, m_trace, here(), "(): failed to start dpd, EDPDResult = ");
}

int KelDebugCmd::stopDpd(RadioChannel channel)
{
    const auto stop = [](IDpdControllerSplit& dpd) { return dpd.stop(); };
    return commandDpd(m_dpdController[channel - 1], stop, m_trace, here(), "(): failed to stop dpd, EDPDResult = ");
}

int KelDebugCmd::setDpdCoefficients(RadioChannel channel, DpdCoeffs coefficients)
{
    const auto set = [&](IDpdControllerSplit& dpd) { return dpd.setCoeffs(coefficients); };
    return commandDpd(m_dpdController[channel - 1], set, m_trace, here(),
                      "(): failed to set dpd coefficients, EDPDResult = ");
}

int KelDebugCmd::getDpdCoefficients(RadioChannel channel, DpdCoeffs* coefficients)
{
    const auto get = [&](IDpdControllerSplit& dpd) { return dpd.getCoeffs(coefficients); };
    return commandDpd(m_dpdController[channel - 1], get, m_trace, here(),
                      "(): failed to get dpd coefficients, EDPDResult = ");
}

int KelDebugCmd::setXpicSlaveMute(RadioChannel channel, unsigned char mute)
{
    auto command = xpicCommand(channel);
    command.SlaveMute = mute != 0;
    return endXpic(kel_top_api::tiManageXpic(command), m_trace, here());
}

int KelDebugCmd::xpicAcquireStart(RadioChannel channel, unsigned char acquireMode, unsigned char acquireOption)
{
    auto command = xpicCommand(channel);
    command.AcquireStart = true;
    command.AcquireMode = acquireModeFrom(acquireMode);
    command.AcquireOption = acquireOptionFrom(acquireOption);
    return endXpic(kel_top_api::tiManageXpic(command), m_trace, here());
}

int KelDebugCmd::getXpicPreamble(RadioChannel channel, unsigned char* preamble)
{
    auto command = xpicCommand(channel);
    command.GetPreamble = true;
    const auto response = kel_top_api::tiManageXpic(command);
    const int result = endXpic(response, m_trace, here());
    if (result == Done)
    {
        *preamble = byteFrom(response.XpicPreamble);
    }
    return result;
}

int KelDebugCmd::setXpicPreamble(RadioChannel channel, unsigned char preamble)
{
    auto command = xpicCommand(channel);
    command.Preamble = preambleFrom(preamble);
    return endXpic(kel_top_api::tiManageXpic(command), m_trace, here());
}

int KelDebugCmd::getXpicStatus(RadioChannel channel, std::string& report)
{
    auto command = xpicCommand(channel);
    command.GetStatus = true;
    const auto response = kel_top_api::tiManageXpic(command);
    if (apiFailed(response))
    {
        report = response.resultText; // here the API's text is the report; the trace stays silent
        return Failed;
    }
    report = xpicStatusReport(response);
    return Done;
}

} // namespace kel::device::kelDebugCmd
