#include "kel_top_api/CriGetRadioChannelCapability.h"

#include "node/radio/Range.h"
#include "node/services/Answer.h"
#include "node/services/ModulationNames.h"
#include "node/services/TopApi.h"

namespace kel_top_api
{

namespace
{

// Assumed, as the sub-band, the duplex, the equipment classes and the two abilities below are.
constexpr std::uint32_t Step_kHz = 250;
constexpr std::int32_t LowestTemperature_C = -33;
constexpr std::int32_t HighestTemperature_C = 55;

void fill(CriGetRadioChannelCapability::Response& response, const node::radio::Hop& hop)
{
    response.MinTemp = LowestTemperature_C;
    response.MaxTemp = HighestTemperature_C;
    response.AvailableMinRFOutputPower = node::services::hundredths(node::radio::LowestPower_dBm);
    for (const auto& row : getModulationAndCodeVector())
    {
        if (const auto modulation = node::services::modulationOf(row))
        {
            const double backOff_dB = node::radio::backOff_dB(node::radio::modulations()[*modulation]);
            response.AvailableMaxRFOutputPower.push_back(
                {row.code, node::services::hundredths(hop.peakPower_dBm - backOff_dB)});
        }
    }
    const node::radio::FrequencyPlan& plan = *hop.plan;
    const std::uint32_t span_kHz = (plan.channels - 1) * plan.spacing_kHz;
    response.MinTXFrequency = plan.low_kHz(1);
    response.MaxTXFrequency = plan.low_kHz(plan.channels);
    response.MinRXFrequency = plan.high_kHz(1);
    response.MaxRXFrequency = plan.high_kHz(plan.channels);
    response.FrequencyStepSize = Step_kHz;
    response.MinTXFrequencyStep = 0;
    response.MaxTXFrequencyStep = span_kHz / Step_kHz;
    response.MinRXFrequencyStep = 0;
    response.MaxRXFrequencyStep = span_kHz / Step_kHz;
    response.TXBaseFrequency = plan.low_kHz(1);
    response.RXBaseFrequency = plan.high_kHz(1);
    response.FrequencyBand = plan.band_GHz;
    response.FrequencySubBand = 1;
    response.DuplexType = "FDD";
    response.AvailableRSECs = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
    response.TapsCapable = true;
    response.RfLoopAvailable = true;
}

} // namespace

CriGetRadioChannelCapability::Response
criGetRadioChannelCapability(const CriGetRadioChannelCapability::Command& command)
{
    using Response = CriGetRadioChannelCapability::Response;
    const auto work = [&](const node::radio::RadioLink& link, Response& response)
    {
        response.NumberOfChannels = link.numberOfChannels();
        fill(response, link.snapshot(command.radioChannel).hop);
    };
    return node::services::answer<Response>("criGetRadioChannelCapability", command.radioChannel, work);
}

} // namespace kel_top_api
