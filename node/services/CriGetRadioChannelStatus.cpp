#include "kel_top_api/CriGetRadioChannelStatus.h"

#include "node/services/Answer.h"
#include "node/services/ModulationNames.h"
#include "node/services/TopApi.h"

namespace kel_top_api
{

namespace
{

// States of the receiver's clock. Assumed: the platform names them by number only.
constexpr std::int32_t ClockOfTheSignal = 0;
constexpr std::int32_t ClockHeldOver = 1;

void fill(CriGetRadioChannelStatus::Response& response, const node::radio::Snapshot& channel)
{
    const auto& [hop, state, readings] = channel;
    const std::string modulation = node::services::nameOf(state.modem.modulation());
    response.TXActualStatus = state.transmitter.on ? "On" : "Off";
    response.RadioChannelStatus = state.modem.locked ? "Up" : "Down";
    response.ActualModulation = modulation;
    response.ActualTxModulation = modulation;
    response.ActualRxModulation = modulation;
    response.ActualRFInputPower = node::services::hundredths(readings.level_dBm);
    response.ReportedRFOutputPower = node::services::hundredths(readings.txPower_dBm);
    response.ClockStatus = state.modem.locked ? ClockOfTheSignal : ClockHeldOver;
    response.ActualSNIR = node::services::hundredths(readings.snir_dB);
    response.ErroredBlocks = state.modem.erroredBlocks;
    response.BackgroundBlocks = state.modem.backgroundBlocks;
    response.TxFrequency = static_cast<std::int32_t>(hop.txFrequency_kHz());
    response.RxFrequency = static_cast<std::int32_t>(hop.rxFrequency_kHz());
    response.KelState = state.transmitter.on ? "Enabled" : "Disabled";
    response.XpicIsStarted = state.xpic.started();
    response.ActualXpi = node::services::tenths(readings.interference_dB);
    response.XpicState = node::services::stateOf(state.xpic);
}

} // namespace

CriGetRadioChannelStatus::Response criGetRadioChannelStatus(const CriGetRadioChannelStatus::Command& command)
{
    using Response = CriGetRadioChannelStatus::Response;
    const auto work = [&](const node::radio::RadioLink& link, Response& response)
    { fill(response, link.snapshot(command.radioChannel)); };
    return node::services::answer<Response>("criGetRadioChannelStatus", command.radioChannel, work);
}

} // namespace kel_top_api
