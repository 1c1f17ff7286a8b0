#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <mutex>

#include "node/radio/Modulation.h"
#include "node/radio/Pps.h"

/// One hop of a microwave link, seen from the near end: two channels, the two polarisations of one frequency.
namespace node::radio
{

/// The hop in clear sky. Frequencies of the 18 GHz plan of ITU-R F.595; the rest are assumptions of this node.
struct Hop
{
    double distance_km = 10.0;
    std::uint32_t txFrequency_kHz = 17'727'500;
    std::uint32_t rxFrequency_kHz = 18'737'500;
    Modulation modulation;         ///< of both directions
    double peakPower_dBm = 24.2;   ///< of the transmitter; the modulation's back-off comes off it
    double antennaGain_dBi = 38.5; ///< of each of the two antennas
    double gasLoss_dB = 0.6;
    double symbolRate_Bd = 25e6; ///< of a 28 MHz channel
    double noiseFigure_dB = 6.0;
    double crossPolarDiscrimination_dB = 40.0;
};

/// Cross-polarisation interference canceller (XPIC) of one channel.
struct Xpic
{
    /// Whether it takes the other polarisation out of the signal at present.
    bool cancels() const
    {
        return acquired && !slaveMuted;
    }

    bool acquired = true;
    bool slaveMuted = false;
    std::uint32_t preamble = 0;
    std::uint32_t acquireMode = 0;
    std::uint32_t acquireOption = 0;
};

/// Digital predistortion (DPD) of one channel.
struct Dpd
{
    bool running = true;
    std::array<std::uint8_t, 20> coefficients{};
};

/// What can be set on a channel.
struct Channel
{
    Dpd dpd;
    Xpic xpic;
    Pps pps;
};

/// What a channel measures.
struct Readings
{
    double txPower_dBm = 0;
    double level_dBm = 0; ///< received
    double snir_dB = 0;
    double discrimination_dB = 0;
    double slaveCarrierOffset_Hz = 0;
    double hopLengthTime_ns = 0;
};

/// A channel at one moment.
struct Snapshot
{
    Channel state;
    Readings readings; ///< in that state
};

/// The link and its state. All members may be called from any thread.
class RadioLink
{
public:
    static constexpr std::uint32_t NumberOfChannels = 2;

    static constexpr bool hasChannel(std::uint32_t channel)
    {
        return channel >= 1 && channel <= NumberOfChannels;
    }

    explicit RadioLink(const Hop& hop = {});

    const Hop& hop() const;

    /// @param channel  1 or 2, as everywhere here
    Snapshot snapshot(std::uint32_t channel) const;

    /// Changes what is set on a channel, in one step for everybody else.
    /// @return the channel right after the change
    Snapshot change(std::uint32_t channel, const std::function<void(Channel&)>& change);

private:
    Readings measure(std::uint32_t channel, const Channel& state) const;

    const Hop m_hop;
    mutable std::mutex m_mutex;
    std::array<Channel, NumberOfChannels> m_channels;
};

} // namespace node::radio
