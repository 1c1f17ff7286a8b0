#include "fuzz/expected/Operations.h"

#include <cstdio>
#include <sstream>

#include "fuzz/expected/Texts.h"
#include "fuzz/expected/Trace.h"

namespace expected
{

namespace
{

template <typename... Values>
std::string call(const Values&... values)
{
    std::ostringstream text;
    (text << ... << values);
    return text.str();
}

/// A PPS command that reached the API.
void judgePps(const Platform& platform, const kel_top_api::BaseResponse& response, const std::string& function,
              Outcome& outcome)
{
    outcome.result = 0;
    if (response.resultCode > 0)
    {
        outcome.result = 1;
        traceBuffer(outcome, platform.commandsTraced, function, response.resultText);
    }
}

void judgeXpic(const Platform& platform, const std::string& function, Outcome& outcome)
{
    const auto& response = platform.api.manageXpic;
    outcome.result = 0;
    if (response.resultCode > 0)
    {
        outcome.result = 1;
        traceBare(outcome, platform.commandsTraced, function, response.resultText);
    }
}

const doubles::RecordingDpdController* controller(const Platform& platform, RadioChannel channel)
{
    return channel == 1 ? platform.dpd[0] : platform.dpd[1];
}

std::string controllerName(RadioChannel channel)
{
    return channel == 1 ? "IDpdControllerSplit_1" : "IDpdControllerSplit_2";
}

void judgeDpd(const Platform& platform, RadioChannel channel, const std::string& function, const std::string& what,
              Outcome& outcome)
{
    const auto code = static_cast<std::int32_t>(controller(platform, channel)->result);
    outcome.result = 0;
    if (code >= 32768)
    {
        outcome.result = 1;
        traceLine(outcome, CommandsChannel, platform.commandsTraced, function,
                  call(function, "(): failed to ", what, ", EDPDResult = ", code));
    }
}

} // namespace

void getBcmModemStatus(const Platform& platform, RadioChannel channel, Outcome& outcome)
{
    outcome.calls.push_back(call("ITiGetDspModemStatus.getDspModemStatus(", channel, ", 2 0 0 0 0 0 0 0 0 0 0 0)"));
    const DspModemStatusResult& result = platform.modemStatus.result;
    if (result.resultCode >= 32768)
    {
        traceLine(outcome, CommandsChannel, platform.commandsTraced, "",
                  "getBcmModemStatus failed: " + result.errorText);
        outcome.report = NoData;
        outcome.result = 1;
        return;
    }
    std::ostringstream words;
    words << platform.modemStatus.filled.request;
    for (const std::uint32_t word : platform.modemStatus.filled.content)
    {
        words << " " << word;
    }
    outcome.calls.push_back(call("ITiGetDspModemStatus.toString(", words.str(), ")"));
    outcome.report = platform.modemStatus.text;
    outcome.result = 0;
}

void getPpsCalibrationStatus(const Platform& platform, RadioChannel channel, Outcome& outcome)
{
    outcome.calls.push_back(call("criGetCalibrationStatusDspPps(radioChannel=", channel, ")"));
    const auto& response = platform.api.calibrationStatusDspPps;
    judgePps(platform, response, "getPpsCalibrationStatus", outcome);
    outcome.report = outcome.result == 1
                         ? NoData
                         : ppsCalibrationStatus(response.calibrationStatus, response.calibrationFailureReason);
}

void getPpsHopLengthTime(const Platform& platform, RadioChannel channel, Outcome& outcome)
{
    outcome.calls.push_back(call("criGetHopLengthTimeDspPps(radioChannel=", channel, ")"));
    const auto& response = platform.api.hopLengthTimeDspPps;
    judgePps(platform, response, "getPpsHopLengthTime", outcome);
    outcome.report = outcome.result == 1 ? NoData : ppsHopLengthTime(response.hopLengthTime);
}

void calibratePps(const Platform& platform, RadioChannel channel, int mode, std::uint16_t value, Outcome& outcome)
{
    if (mode != 0 && mode != 1 && mode != 2 && mode != 3)
    {
        outcome.result = 1;
        return;
    }
    outcome.calls.push_back(call("criCalibrateDspPps(radioChannel=", channel, ", calibrationMode=", mode,
                                 ", calibrationValue=", value, ")"));
    judgePps(platform, platform.api.calibrateDspPps, "calibratePps", outcome);
}

void setPpsSource(const Platform& platform, RadioChannel channel, int source, int parameter, Outcome& outcome)
{
    if (source != 0 && source != 1 && source != 2)
    {
        outcome.result = 1;
        return;
    }
    outcome.calls.push_back(
        call("criSetSourceDspPps(radioChannel=", channel, ", source=", source, ", sourceParameter=", parameter, ")"));
    judgePps(platform, platform.api.setSourceDspPps, "setPpsSource", outcome);
}

void setPpsOutputMode(const Platform& platform, RadioChannel channel, int mode, Outcome& outcome)
{
    if (mode != 0 && mode != 1 && mode != 2)
    {
        outcome.result = 1;
        return;
    }
    outcome.calls.push_back(call("criSetOutputModeDspPps(radioChannel=", channel, ", outputMode=", mode, ")"));
    judgePps(platform, platform.api.setOutputModeDspPps, "setPpsOutputMode", outcome);
}

void startDpd(const Platform& platform, RadioChannel channel, Outcome& outcome)
{
    outcome.result = 1;
    if (controller(platform, channel) != nullptr)
    {
        outcome.calls.push_back(call(controllerName(channel), ".getStartParameter()"));
        outcome.calls.push_back(
            call(controllerName(channel), ".start(", controller(platform, channel)->startParameter, ")"));
        judgeDpd(platform, channel, "startDpd", "start dpd", outcome);
    }
}

void stopDpd(const Platform& platform, RadioChannel channel, Outcome& outcome)
{
    outcome.result = 1;
    if (controller(platform, channel) != nullptr)
    {
        outcome.calls.push_back(call(controllerName(channel), ".stop()"));
        judgeDpd(platform, channel, "stopDpd", "stop dpd", outcome);
    }
}

void setDpdCoefficients(const Platform& platform, RadioChannel channel, const DpdCoeffs& coefficients, Outcome& outcome)
{
    outcome.result = 1;
    if (controller(platform, channel) != nullptr)
    {
        std::string digits;
        for (const std::uint8_t byte : coefficients.bytes)
        {
            char two[3];
            std::snprintf(two, sizeof two, "%02x", static_cast<unsigned>(byte));
            digits += two;
        }
        outcome.calls.push_back(call(controllerName(channel), ".setCoeffs(", digits, ")"));
        judgeDpd(platform, channel, "setDpdCoefficients", "set dpd coefficients", outcome);
    }
}

void getDpdCoefficients(const Platform& platform, RadioChannel channel, Outcome& outcome)
{
    outcome.result = 1;
    if (controller(platform, channel) != nullptr)
    {
        outcome.calls.push_back(call(controllerName(channel), ".getCoeffs()"));
        outcome.coefficients = controller(platform, channel)->coefficients; // also where the controller fails
        judgeDpd(platform, channel, "getDpdCoefficients", "get dpd coefficients", outcome);
    }
}

void setXpicSlaveMute(const Platform& platform, RadioChannel channel, std::uint8_t mute, Outcome& outcome)
{
    outcome.calls.push_back(call("tiManageXpic(RadioChannelID=", channel, ", SlaveMute=", mute == 0 ? "0" : "1", ")"));
    judgeXpic(platform, "setXpicSlaveMute", outcome);
}

void xpicAcquireStart(const Platform& platform, RadioChannel channel, std::uint8_t mode, std::uint8_t option,
                      Outcome& outcome)
{
    const int sentMode = mode > 2 ? 3 : mode;
    const int sentOption = option > 3 ? 4 : option;
    outcome.calls.push_back(call("tiManageXpic(RadioChannelID=", channel, ", AcquireStart=1, AcquireMode=", sentMode,
                                 ", AcquireOption=", sentOption, ")"));
    judgeXpic(platform, "xpicAcquireStart", outcome);
}

void getXpicPreamble(const Platform& platform, RadioChannel channel, Outcome& outcome)
{
    outcome.calls.push_back(call("tiManageXpic(RadioChannelID=", channel, ", GetPreamble=1)"));
    judgeXpic(platform, "getXpicPreamble", outcome);
    if (outcome.result == 0)
    {
        const auto number = static_cast<std::uint32_t>(platform.api.manageXpic.XpicPreamble);
        outcome.preamble = number <= 3 ? static_cast<unsigned char>(number) : static_cast<unsigned char>(255);
    }
}

void setXpicPreamble(const Platform& platform, RadioChannel channel, std::uint8_t preamble, Outcome& outcome)
{
    const int sent = preamble > 3 ? 4 : preamble;
    outcome.calls.push_back(call("tiManageXpic(RadioChannelID=", channel, ", Preamble=", sent, ")"));
    judgeXpic(platform, "setXpicPreamble", outcome);
}

void getXpicStatus(const Platform& platform, RadioChannel channel, Outcome& outcome)
{
    outcome.calls.push_back(call("tiManageXpic(RadioChannelID=", channel, ", GetStatus=1)"));
    const auto& response = platform.api.manageXpic;
    outcome.result = response.resultCode > 0 ? 1 : 0;
    outcome.report = response.resultCode > 0 ? response.resultText : xpicStatus(response);
}

} // namespace expected
