#include "node/radio/RadioLink.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <string>

#include "node/radio/CrossPolarisation.h"
#include "node/radio/Propagation.h"
#include "node/radio/Rain.h"

namespace node::radio
{

namespace
{

/// Cross-polarisation improvement factor of an acquired canceller, ITU-R P.530.
constexpr double XpicImprovement_dB = 20.0;

/// Where the detectors of power end; also what is reported of a silent transmitter. Assumed.
constexpr double LowestDetected_dBm = -110.0;
constexpr double HighestInterferenceRatio_dB = 99.9;

/// What is measured, to a millionth of a decibel. The last digits of a logarithm differ from one C library to the next
/// and must not decide on which side of a threshold a value is.
double measured(double value)
{
    return std::round(value * 1e6) / 1e6;
}

double frequency_GHz(const Hop& hop)
{
    return hop.txFrequency_kHz() / 1e6;
}

} // namespace

std::array<Channel, LinkSetup::LargestNumberOfChannels> LinkSetup::bothPolarisations()
{
    std::array<Channel, LargestNumberOfChannels> channels;
    channels[0].polarisation = Polarisation::Vertical;
    channels[1].polarisation = Polarisation::Horizontal;
    return channels;
}

RadioLink::RadioLink(const LinkSetup& setup)
    : m_numberOfChannels(setup.numberOfChannels), m_hop(setup.hop), m_weather(setup.weather),
      m_tremor(setup.weather.scintillation, setup.weather.seed), m_channels(setup.channels)
{
    for (std::uint32_t channel = 1; channel <= m_numberOfChannels; ++channel)
    {
        Xpic& xpic = at(channel).xpic;
        if (m_numberOfChannels == 1)
        {
            xpic.state = XpicState::Idle;
        }
        else if (xpic.state == XpicState::Acquired)
        {
            xpic.beginAcquired(slaveCarrierOffset_Hz(channel));
        }
    }
    settle();
    m_errored = {};
}

std::uint32_t RadioLink::numberOfChannels() const
{
    return m_numberOfChannels;
}

bool RadioLink::hasChannel(std::uint32_t channel) const
{
    return channel >= 1 && channel <= m_numberOfChannels;
}

Snapshot RadioLink::snapshot(std::uint32_t channel) const
{
    const std::lock_guard lock(m_mutex);
    return take(channel);
}

Snapshot RadioLink::change(std::uint32_t channel, const std::function<void(Channel&)>& apply)
{
    const std::lock_guard lock(m_mutex);
    apply(at(channel));
    settle();
    return take(channel);
}

void RadioLink::calibratePps(std::uint32_t channel, PpsRequest request, std::uint16_t time_ns)
{
    change(channel, [&](Channel& state) { state.pps.calibrate(request, time_ns, ppsSurroundings(state)); });
}

Conditions RadioLink::conditions() const
{
    const std::lock_guard lock(m_mutex);
    return conditionsNow();
}

void RadioLink::turnRain(double rate_mm_per_h, Ticks over)
{
    const std::lock_guard lock(m_mutex);
    m_weather.rain_mm_per_h.turnTo(rate_mm_per_h, m_time, over);
    settle();
}

void RadioLink::turnFade(double depth_dB, Ticks over)
{
    const std::lock_guard lock(m_mutex);
    m_weather.fade_dB.turnTo(depth_dB, m_time, over);
    settle();
}

void RadioLink::setDistance(double distance_km)
{
    const std::lock_guard lock(m_mutex);
    m_hop.distance_km = distance_km;
    settle();
}

void RadioLink::advance(Ticks time)
{
    const std::lock_guard lock(m_mutex);
    for (Ticks done{0}; done < time; ++done)
    {
        tick();
    }
}

void RadioLink::expectChannel(std::uint32_t channel) const
{
    if (!hasChannel(channel))
    {
        throw std::out_of_range("the link has no channel " + std::to_string(channel));
    }
}

Channel& RadioLink::at(std::uint32_t channel)
{
    expectChannel(channel);
    return m_channels.at(channel - 1);
}

const Channel& RadioLink::at(std::uint32_t channel) const
{
    expectChannel(channel);
    return m_channels.at(channel - 1);
}

const Channel* RadioLink::other(std::uint32_t channel) const
{
    return m_numberOfChannels == 1 ? nullptr : &at(channel == 1 ? 2 : 1);
}

Conditions RadioLink::conditionsNow() const
{
    return {m_time, m_hop.distance_km, m_weather.rain_mm_per_h.valueAt(m_time),
            m_weather.fade_dB.valueAt(m_time) + m_tremor.value_dB()};
}

double RadioLink::txPower_dBm(const Channel& state) const
{
    const double carried_dBm = m_hop.peakPower_dBm - backOff_dB(state.modem.modulation());
    return state.transmitter.on ? std::min(state.transmitter.power_dBm, carried_dBm) : LowestDetected_dBm;
}

double RadioLink::slaveCarrierOffset_Hz(std::uint32_t channel) const
{
    // Each channel sees the other one's reference: what is above for the one is below for the other.
    const double offset_Hz = m_hop.referenceDifference_ppm * m_hop.txFrequency_kHz() / 1e3;
    return channel == 1 ? offset_Hz : 0.0 - offset_Hz; // 0 has no sign
}

double RadioLink::rain_dB(const Channel& state) const
{
    const Conditions now = conditionsNow();
    return rainAttenuation_dB(frequency_GHz(m_hop), state.polarisation, now.rain_mm_per_h, now.distance_km);
}

double RadioLink::received_dBm(const Channel& sender, const Channel& path) const
{
    if (!sender.transmitter.on)
    {
        return LowestDetected_dBm;
    }
    const Conditions now = conditionsNow();
    const double loss_dB = freeSpaceLoss_dB(frequency_GHz(m_hop), now.distance_km) +
                           m_hop.gasLoss_dB_per_km * now.distance_km + rain_dB(path) + now.fade_dB;
    return std::max(txPower_dBm(sender) + 2 * m_hop.antennaGain_dBi - loss_dB, LowestDetected_dBm);
}

Readings RadioLink::measure(std::uint32_t channel) const
{
    const Channel& state = at(channel);
    const Channel* const slave = other(channel);

    Readings readings;
    readings.txPower_dBm = txPower_dBm(state);
    readings.level_dBm = measured(received_dBm(state, state));
    readings.discrimination_dB =
        measured(discrimination_dB(m_hop.antennaDiscrimination_dB, frequency_GHz(m_hop), rain_dB(state)));
    // The discrimination holds between two signals that came the same path.
    const double otherLevel_dBm = slave == nullptr ? LowestDetected_dBm : received_dBm(*slave, state);
    readings.interference_dB = measured(
        std::min(readings.discrimination_dB + readings.level_dBm - otherLevel_dBm, HighestInterferenceRatio_dB));
    readings.snir_dB = measured(snir_dB(readings.level_dBm - noisePower_dBm(m_hop.symbolRate_Bd, m_hop.noiseFigure_dB),
                                        readings.interference_dB + (state.xpic.cancels() ? XpicImprovement_dB : 0.0),
                                        state.dpd.floor_dB()));
    readings.slaveCarrierOffset_Hz = state.xpic.position_Hz;
    readings.slaveSignal = xpicSurroundings(channel).slaveSignal;
    readings.slaveLevel_dBm = slave == nullptr ? LowestDetected_dBm : measured(received_dBm(*slave, *slave));
    readings.slavePreamble = slave == nullptr ? 0 : slave->xpic.preamble;
    readings.hopLengthTime_ns = state.pps.resolve_ns(travelTime_ns(m_hop.distance_km), 1e9 / m_hop.symbolRate_Bd);
    return readings;
}

Snapshot RadioLink::take(std::uint32_t channel) const
{
    return {m_hop, at(channel), measure(channel)};
}

XpicSurroundings RadioLink::xpicSurroundings(std::uint32_t channel) const
{
    const Channel& state = at(channel);
    const Channel* const slave = other(channel);
    if (slave == nullptr)
    {
        return {};
    }
    return {state.modem.locked, state.xpic.cableConnected && slave->transmitter.on && slave->modem.locked,
            state.xpic.preamble == slave->xpic.preamble, slaveCarrierOffset_Hz(channel)};
}

PpsSurroundings RadioLink::ppsSurroundings(const Channel& state)
{
    return {state.modem.locked, state.ppsMasterAnswers, state.modem.current};
}

RadioLink::Moments RadioLink::lookAtEach() const
{
    Moments moments;
    for (std::uint32_t channel = 1; channel <= m_numberOfChannels; ++channel)
    {
        moments.at(channel - 1) = {measure(channel).snir_dB, xpicSurroundings(channel)};
    }
    return moments;
}

void RadioLink::settle()
{
    for (bool fell = true; fell;)
    {
        fell = false;
        const Moments moments = lookAtEach();
        for (std::uint32_t channel = 1; channel <= m_numberOfChannels; ++channel)
        {
            Channel& state = at(channel);
            const Moment& moment = moments.at(channel - 1);
            const bool modemFell = state.modem.fall(moment.snir_dB);
            const bool xpicFell = state.xpic.fall(moment.xpic);
            m_errored.at(channel - 1) |= modemFell;
            fell = fell || modemFell || xpicFell;
        }
    }
    for (std::uint32_t channel = 1; channel <= m_numberOfChannels; ++channel)
    {
        Channel& state = at(channel);
        state.pps.fall(ppsSurroundings(state));
    }
}

void RadioLink::tick()
{
    ++m_time;
    m_tremor.move();
    settle();
    const Moments before = lookAtEach();
    for (std::uint32_t channel = 1; channel <= m_numberOfChannels; ++channel)
    {
        Channel& state = at(channel);
        if (state.modem.locked)
        {
            state.dpd.adapt();
        }
        state.xpic.acquire(before.at(channel - 1).xpic);
    }
    const Moments healed = lookAtEach();
    for (std::uint32_t channel = 1; channel <= m_numberOfChannels; ++channel)
    {
        at(channel).modem.rise(healed.at(channel - 1).snir_dB);
    }
    settle();
    for (std::uint32_t channel = 1; channel <= m_numberOfChannels; ++channel)
    {
        Channel& state = at(channel);
        bool& errored = m_errored.at(channel - 1);
        state.pps.advance(ppsSurroundings(state));
        state.modem.countBlock(errored || !state.modem.locked);
        errored = false;
    }
}

} // namespace node::radio
