#include "node/radio/RadioLink.h"

#include "node/radio/Propagation.h"

namespace node::radio
{

namespace
{

/// Cross-polarisation improvement factor of an acquired canceller, ITU-R P.530.
constexpr double XpicImprovement_dB = 20.0;

/// SNIR floor that the power amplifier sets: -20 lg of its error vector magnitude. Assumed.
constexpr double FloorWithDpd_dB = 45.0;
constexpr double FloorWithoutDpd_dB = 35.0;

/// How far the two transmitters' references are apart, in parts per million. Assumed.
constexpr double ReferenceDifference_ppm = 0.5;

} // namespace

RadioLink::RadioLink(const Hop& hop) : m_hop(hop)
{
}

const Hop& RadioLink::hop() const
{
    return m_hop;
}

Snapshot RadioLink::snapshot(std::uint32_t channel) const
{
    const std::lock_guard lock(m_mutex);
    const Channel& state = m_channels.at(channel - 1);
    return {state, measure(channel, state)};
}

Snapshot RadioLink::change(std::uint32_t channel, const std::function<void(Channel&)>& change)
{
    const std::lock_guard lock(m_mutex);
    Channel& state = m_channels.at(channel - 1);
    change(state);
    return {state, measure(channel, state)};
}

Readings RadioLink::measure(std::uint32_t channel, const Channel& state) const
{
    const double frequency_GHz = m_hop.txFrequency_kHz / 1e6;

    Readings readings;
    readings.txPower_dBm = m_hop.peakPower_dBm - backOff_dB(m_hop.modulation);
    readings.level_dBm = readings.txPower_dBm + 2 * m_hop.antennaGain_dBi -
                         freeSpaceLoss_dB(frequency_GHz, m_hop.distance_km) - m_hop.gasLoss_dB;
    readings.discrimination_dB = m_hop.crossPolarDiscrimination_dB;
    readings.snir_dB = snir_dB(readings.level_dBm - noisePower_dBm(m_hop.symbolRate_Bd, m_hop.noiseFigure_dB),
                               readings.discrimination_dB + (state.xpic.cancels() ? XpicImprovement_dB : 0.0),
                               state.dpd.running ? FloorWithDpd_dB : FloorWithoutDpd_dB);
    // Each channel sees the other one's reference: what is above for the one is below for the other.
    readings.slaveCarrierOffset_Hz = (channel == 1 ? 1 : -1) * ReferenceDifference_ppm * frequency_GHz * 1e3;
    readings.hopLengthTime_ns = hopLengthTime_ns(m_hop.distance_km);
    return readings;
}

} // namespace node::radio
