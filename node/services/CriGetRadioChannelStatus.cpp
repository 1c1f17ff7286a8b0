#include "kel_top_api/CriGetRadioChannelStatus.h"

#include "node/services/Answer.h"
#include "node/services/ModulationNames.h"
#include "node/services/TopApi.h"

namespace kel_top_api
{

CriGetRadioChannelStatus::Response criGetRadioChannelStatus(const CriGetRadioChannelStatus::Command& command)
{
    CriGetRadioChannelStatus::Response response;
    const auto* const link = node::services::linkOf(command.radioChannel, response);
    if (link == nullptr)
    {
        return response;
    }
    const auto [state, readings] = link->snapshot(command.radioChannel);
    const std::string modulation = node::services::nameOf(link->hop().modulation);
    response.TXActualStatus = "On";
    response.RadioChannelStatus = "Up";
    response.ActualModulation = modulation;
    response.ActualTxModulation = modulation;
    response.ActualRxModulation = modulation;
    response.ActualRFInputPower = node::services::hundredths(readings.level_dBm);
    response.ReportedRFOutputPower = node::services::hundredths(readings.txPower_dBm);
    response.ActualSNIR = node::services::hundredths(readings.snir_dB);
    response.TxFrequency = static_cast<std::int32_t>(link->hop().txFrequency_kHz);
    response.RxFrequency = static_cast<std::int32_t>(link->hop().rxFrequency_kHz);
    response.KelState = "Enabled";
    response.XpicIsStarted = state.xpic.acquired;
    response.ActualXpi = node::services::tenths(readings.discrimination_dB);
    response.XpicState = node::services::stateOf(state.xpic);
    return response;
}

} // namespace kel_top_api
