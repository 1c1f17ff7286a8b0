#include "node/services/ServiceCalls.h"

#include "kel_top_api/CriCalibrateDspPps.h"
#include "kel_top_api/CriGetCalibrationStatusDspPps.h"
#include "kel_top_api/CriGetHopLengthTimeDspPps.h"
#include "kel_top_api/CriGetRadioChannelCapability.h"
#include "kel_top_api/CriGetRadioChannelStatus.h"
#include "kel_top_api/CriSetOutputModeDspPps.h"
#include "kel_top_api/CriSetSourceDspPps.h"
#include "kel_top_api/TiManageXpic.h"
#include "node/commands/RecordingCommands.h"
#include "node/services/DpdController.h"
#include "node/services/ModemStatus.h"
#include "node/services/RadioChannelNearEnd.h"
#include "node/services/RecordText.h"

using namespace kel_top_api;
using node::services::DpdController;

namespace
{

constexpr std::int32_t ApiRefusal = 1;
constexpr std::int32_t InterfaceRefusal = 0x8000;
constexpr bool Text = true;

template <typename Response>
Outcome outcomeOf(const Response& response)
{
    return {response.resultCode, response.resultText, contentOf(response)};
}

template <typename Response>
std::string nothingOf(RadioChannel /*channel*/)
{
    return contentOf(Response());
}

std::string nothing(RadioChannel /*channel*/)
{
    return "";
}

Outcome outcomeOf(EDPDResult result)
{
    return {static_cast<std::int32_t>(result), "", ""};
}

TiManageXpic::Command muting(RadioChannel channel)
{
    TiManageXpic::Command command;
    command.RadioChannelID = channel;
    command.SlaveMute = true;
    return command;
}

std::vector<ServiceCall> topApiCalls()
{
    return {
        {"criCalibrateDspPps", ApiRefusal, Text,
         [](CallBench&, RadioChannel channel) {
             return outcomeOf(criCalibrateDspPps({channel, CriCalibrateDspPps::CalibrationMode::Mode2, 0}));
         },
         nothingOf<StandardResponse>},
        {"criGetCalibrationStatusDspPps", ApiRefusal, Text,
         [](CallBench&, RadioChannel channel) { return outcomeOf(criGetCalibrationStatusDspPps({channel})); },
         nothingOf<CriGetCalibrationStatusDspPps::Response>},
        {"criGetHopLengthTimeDspPps", ApiRefusal, Text,
         [](CallBench&, RadioChannel channel) { return outcomeOf(criGetHopLengthTimeDspPps({channel})); },
         nothingOf<CriGetHopLengthTimeDspPps::Response>},
        {"criGetRadioChannelCapability", ApiRefusal, Text,
         [](CallBench&, RadioChannel channel) { return outcomeOf(criGetRadioChannelCapability({channel})); },
         nothingOf<CriGetRadioChannelCapability::Response>},
        {"criGetRadioChannelStatus", ApiRefusal, Text,
         [](CallBench&, RadioChannel channel) { return outcomeOf(criGetRadioChannelStatus({channel})); },
         nothingOf<CriGetRadioChannelStatus::Response>},
        {"criSetOutputModeDspPps", ApiRefusal, Text,
         [](CallBench&, RadioChannel channel) {
             return outcomeOf(criSetOutputModeDspPps({channel, CriSetOutputModeDspPps::OutputMode::Mode2}));
         },
         nothingOf<StandardResponse>},
        {"criSetSourceDspPps", ApiRefusal, Text,
         [](CallBench&, RadioChannel channel) {
             return outcomeOf(criSetSourceDspPps({channel, CriSetSourceDspPps::Source::Source1, 17}));
         },
         nothingOf<StandardResponse>},
        {"tiManageXpic", ApiRefusal, Text,
         [](CallBench&, RadioChannel channel) { return outcomeOf(tiManageXpic(muting(channel))); },
         [](RadioChannel channel)
         {
             TiManageXpic::Response response;
             response.RadioChannelID = channel;
             return contentOf(response);
         }},
    };
}

std::vector<ServiceCall> controllerCalls()
{
    return {
        {"IDpdControllerSplit.start", InterfaceRefusal, !Text,
         [](CallBench& bench, RadioChannel channel)
         { return outcomeOf(DpdController(bench.context, channel).start(1)); },
         nothing},
        {"IDpdControllerSplit.stop", InterfaceRefusal, !Text,
         [](CallBench& bench, RadioChannel channel) { return outcomeOf(DpdController(bench.context, channel).stop()); },
         nothing},
        {"IDpdControllerSplit.getStartParameter", std::nullopt, !Text,
         [](CallBench& bench, RadioChannel channel) {
             return Outcome{DpdController(bench.context, channel).getStartParameter(), "", ""};
         },
         nothing},
        {"IDpdControllerSplit.getCoeffs", InterfaceRefusal, !Text,
         [](CallBench& bench, RadioChannel channel)
         { return outcomeOf(DpdController(bench.context, channel).getCoeffs(&bench.records.coefficients)); },
         nothing},
        {"IDpdControllerSplit.setCoeffs", InterfaceRefusal, !Text,
         [](CallBench& bench, RadioChannel channel) {
             return outcomeOf(DpdController(bench.context, channel).setCoeffs({{1, 2, 3}}));
         },
         nothing},
    };
}

std::vector<ServiceCall> otherCalls()
{
    return {
        {"ITiGetDspModemStatus.getDspModemStatus", InterfaceRefusal, Text,
         [](CallBench& bench, RadioChannel channel)
         {
             const auto result =
                 node::services::ModemStatus(bench.context).getDspModemStatus(channel, &bench.records.status);
             return Outcome{result.resultCode, result.errorText, ""};
         },
         nothing},
        {"ITiGetDspModemStatus.toString", std::nullopt, Text,
         [](CallBench& bench, RadioChannel channel)
         {
             DspModemStatus status;
             status.content[0] = channel;
             return Outcome{0, node::services::ModemStatus(bench.context).toString(status), ""};
         },
         nothing},
        {"ITiManageRadioChannelNearEnd.getRadioChannelInfo", InterfaceRefusal, Text,
         [](CallBench& bench, RadioChannel channel)
         {
             const auto result =
                 node::services::RadioChannelNearEnd(bench.context).getRadioChannelInfo({channel}, &bench.records.info);
             return Outcome{result.resultCode, result.errorText, ""};
         },
         nothing},
        {"IRlbspKelApi.installDebugCmdCallback", std::nullopt, !Text,
         [](CallBench& bench, RadioChannel)
         {
             static RecordingCommands commands;
             bench.boardSupport.installDebugCmdCallback(&commands);
             return Outcome{};
         },
         nothing},
    };
}

} // namespace

CallerRecords::CallerRecords() : info{-1, 2, -3, "four", "five", "six", 7, 8, 9, 10}
{
    coefficients.bytes.fill(0xA5);
    status.request = 2;
    status.content.fill(0xA5A5A5A5U);
}

std::string contentOf(const CallerRecords& records)
{
    return contentOf(records.coefficients) + "\n" + contentOf(records.status) + "\n" + contentOf(records.info);
}

CallBench::CallBench()
{
    for (const RadioChannel channel : {1U, 2U})
    {
        link.change(channel, [](node::radio::Channel& state) { state.dpd.stop(); });
    }
}

std::ostream& operator<<(std::ostream& out, const ServiceCall& call)
{
    return out << call.name;
}

const std::vector<ServiceCall>& serviceCalls()
{
    static const std::vector<ServiceCall> all = []
    {
        std::vector<ServiceCall> calls = topApiCalls();
        for (const auto& more : {controllerCalls(), otherCalls()})
        {
            calls.insert(calls.end(), more.begin(), more.end());
        }
        return calls;
    }();
    return all;
}
