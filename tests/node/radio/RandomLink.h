#pragma once

#include <cmath>
#include <cstdint>
#include <random>
#include <vector>

#include "node/radio/RadioLink.h"

/// Random numbers that are the same with every standard library.
class Random
{
public:
    explicit Random(std::uint64_t seed) : m_generator(seed)
    {
    }

    double real(double lowest, double highest)
    {
        constexpr int MantissaBits = 53;
        return lowest + (highest - lowest) *
                            std::ldexp(static_cast<double>(m_generator() >> (64 - MantissaBits)), -MantissaBits);
    }

    /// As many small values as large ones.
    double scaled(double lowest, double highest)
    {
        return std::exp(real(std::log(lowest), std::log(highest)));
    }

    std::uint32_t whole(std::uint32_t lowest, std::uint32_t highest)
    {
        return lowest + static_cast<std::uint32_t>(m_generator() % (highest - lowest + 1));
    }

    bool flag()
    {
        return whole(0, 1) == 1;
    }

private:
    std::mt19937_64 m_generator;
};

inline node::radio::Channel randomChannel(Random& random)
{
    node::radio::Channel channel;
    channel.transmitter.power_dBm = random.real(-2, 40);
    channel.modem.lowest = random.whole(0, 41);
    channel.modem.highest = random.whole(static_cast<std::uint32_t>(channel.modem.lowest), 41);
    channel.modem.current = channel.modem.highest;
    channel.xpic.state = random.flag() ? node::radio::XpicState::Acquired : node::radio::XpicState::Idle;
    channel.xpic.mode = static_cast<node::radio::XpicAcquireMode>(random.whole(0, 2));
    channel.xpic.retries = random.flag();
    channel.xpic.reacquires = random.flag();
    return channel;
}

/// A link as a scenario can make it, in still air.
inline node::radio::LinkSetup randomSetup(Random& random)
{
    const auto plans = node::radio::frequencyPlans();
    node::radio::LinkSetup setup;
    setup.numberOfChannels = random.whole(1, 2);
    setup.hop.distance_km = random.scaled(0.1, 100);
    setup.hop.plan = &plans[random.whole(0, static_cast<std::uint32_t>(plans.size()) - 1)];
    setup.hop.frequencyNumber = random.whole(1, setup.hop.plan->channels);
    setup.hop.symbolRate_Bd = 25e6 * random.whole(1, 4);
    setup.hop.peakPower_dBm = random.real(-10, 40);
    setup.hop.noiseFigure_dB = random.real(0, 20);
    setup.hop.antennaGain_dBi = random.real(20, 50);
    setup.hop.antennaDiscrimination_dB = random.real(10, 60);
    setup.hop.gasLoss_dB_per_km = random.real(0, 1);
    setup.hop.referenceDifference_ppm = random.real(-5, 5);
    for (node::radio::Channel& channel : setup.channels)
    {
        const auto polarisation = channel.polarisation;
        channel = randomChannel(random);
        channel.polarisation = polarisation;
    }
    return setup;
}

/// One of the things that can happen to a channel.
inline void changeSomething(Random& random, node::radio::Channel& channel)
{
    switch (random.whole(0, 7))
    {
    case 0:
        channel.transmitter.on = random.flag();
        break;
    case 1:
        channel.transmitter.power_dBm = random.real(-2, 40);
        break;
    case 2:
        channel.dpd.stop();
        break;
    case 3:
        channel.dpd.start();
        break;
    case 4:
        channel.xpic.slaveMuted = random.flag();
        break;
    case 5:
        channel.xpic.preamble = random.whole(0, 1);
        break;
    case 6:
        channel.xpic.cableConnected = random.flag();
        break;
    default:
        channel.xpic.startAcquisition();
        break;
    }
}

/// One of the things that can happen to a link. Time stands still.
inline void changeSomething(Random& random, node::radio::RadioLink& link)
{
    const std::uint32_t channel = random.whole(1, link.numberOfChannels());
    const node::radio::Ticks over(random.flag() ? 0 : random.whole(1, 100));
    switch (random.whole(0, 5))
    {
    case 0:
        link.turnRain(random.flag() ? 0 : random.scaled(0.01, 250), over);
        break;
    case 1:
        link.turnFade(random.flag() ? 0 : random.real(0, 60), over);
        break;
    case 2:
        link.setDistance(random.scaled(0.1, 100));
        break;
    case 3:
        link.calibratePps(channel, static_cast<node::radio::PpsRequest>(random.whole(0, 3)), 17);
        break;
    default:
        link.change(channel, [&](node::radio::Channel& state) { changeSomething(random, state); });
        break;
    }
}

/// All that can be told of a link, to compare links with each other.
inline std::vector<double> everythingOf(const node::radio::RadioLink& link)
{
    const node::radio::Conditions conditions = link.conditions();
    std::vector<double> all{static_cast<double>(conditions.time.count()), conditions.distance_km,
                            conditions.rain_mm_per_h, conditions.fade_dB};
    for (std::uint32_t channel = 1; channel <= link.numberOfChannels(); ++channel)
    {
        const auto& [hop, state, readings] = link.snapshot(channel);
        all.insert(all.end(),
                   {readings.txPower_dBm, readings.level_dBm, readings.snir_dB, readings.discrimination_dB,
                    readings.interference_dB, readings.slaveCarrierOffset_Hz, readings.slaveSignal ? 1.0 : 0.0,
                    readings.slaveLevel_dBm, static_cast<double>(readings.slavePreamble), readings.hopLengthTime_ns});
        all.insert(all.end(),
                   {static_cast<double>(state.modem.current), state.modem.locked ? 1.0 : 0.0,
                    static_cast<double>(state.modem.erroredBlocks), static_cast<double>(state.modem.backgroundBlocks),
                    static_cast<double>(state.dpd.adapted.count()), static_cast<double>(state.xpic.state),
                    static_cast<double>(state.pps.calibration), static_cast<double>(state.pps.failure)});
    }
    return all;
}
