#include "kel_top_api/CriGetRadioChannelCapability.h"

#include "node/services/Answer.h"
#include "node/services/ModulationNames.h"
#include "node/services/TopApi.h"

namespace kel_top_api
{

namespace
{

// The 18 GHz plan of ITU-R F.595: 35 channels of 27.5 MHz in either half, 1010 MHz apart.
constexpr std::uint32_t Channels = 35;
constexpr std::uint32_t ChannelSpacing_kHz = 27'500;
constexpr std::uint32_t LowestTx_kHz = 17'727'500;
constexpr std::uint32_t Duplex_kHz = 1'010'000;
constexpr std::uint32_t Span_kHz = (Channels - 1) * ChannelSpacing_kHz;

// Assumed, as the radio's step and range of power and temperature are.
constexpr std::uint32_t Step_kHz = 250;
constexpr double LowestPower_dBm = -2.0;
constexpr std::int32_t LowestTemperature_C = -33;
constexpr std::int32_t HighestTemperature_C = 55;

} // namespace

CriGetRadioChannelCapability::Response
criGetRadioChannelCapability(const CriGetRadioChannelCapability::Command& command)
{
    CriGetRadioChannelCapability::Response response;
    const auto* const link = node::services::linkOf(command.radioChannel, response);
    if (link == nullptr)
    {
        return response;
    }
    response.NumberOfChannels = node::radio::RadioLink::NumberOfChannels;
    response.MinTemp = LowestTemperature_C;
    response.MaxTemp = HighestTemperature_C;
    response.AvailableMinRFOutputPower = node::services::hundredths(LowestPower_dBm);
    for (const auto& row : getModulationAndCodeVector())
    {
        if (row.code != UndefinedModulationAndCode)
        {
            const double backOff_dB = node::radio::backOff_dB(node::services::modulationOf(row));
            response.AvailableMaxRFOutputPower.push_back(
                {row.code, node::services::hundredths(link->hop().peakPower_dBm - backOff_dB)});
        }
    }
    response.MinTXFrequency = LowestTx_kHz;
    response.MaxTXFrequency = LowestTx_kHz + Span_kHz;
    response.MinRXFrequency = LowestTx_kHz + Duplex_kHz;
    response.MaxRXFrequency = LowestTx_kHz + Duplex_kHz + Span_kHz;
    response.FrequencyStepSize = Step_kHz;
    response.MinTXFrequencyStep = 0;
    response.MaxTXFrequencyStep = Span_kHz / Step_kHz;
    response.MinRXFrequencyStep = 0;
    response.MaxRXFrequencyStep = Span_kHz / Step_kHz;
    response.TXBaseFrequency = LowestTx_kHz;
    response.RXBaseFrequency = LowestTx_kHz + Duplex_kHz;
    response.FrequencyBand = 18;
    response.FrequencySubBand = 1;
    response.DuplexType = "FDD";
    response.AvailableRSECs = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
    response.TapsCapable = true;
    response.RfLoopAvailable = true;
    return response;
}

} // namespace kel_top_api
