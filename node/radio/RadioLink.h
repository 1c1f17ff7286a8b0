#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <mutex>

#include "node/radio/Channel.h"
#include "node/radio/FrequencyPlan.h"
#include "node/radio/Time.h"
#include "node/radio/Weather.h"

/// One hop of a microwave link, seen from the near end: one channel, or two, the two polarisations of one frequency.
namespace node::radio
{

/// What the two channels share. The values of this default are assumptions.
struct Hop
{
    /// The near end sends in the lower half of the band. Both directions fare as that frequency does, an assumption.
    std::uint32_t txFrequency_kHz() const
    {
        return plan->low_kHz(frequencyNumber);
    }

    std::uint32_t rxFrequency_kHz() const
    {
        return plan->high_kHz(frequencyNumber);
    }

    double distance_km = 10.0;
    const FrequencyPlan* plan = findFrequencyPlan("18 GHz"); ///< never null
    std::uint32_t frequencyNumber = 1;                       ///< in the plan
    double symbolRate_Bd = 25e6;                             ///< of a 28 MHz channel
    double peakPower_dBm = 24.2; ///< of the transmitters; the modulation's back-off comes off it
    double noiseFigure_dB = 6.0;
    double antennaGain_dBi = 38.5;          ///< of each of the two antennas
    double antennaDiscrimination_dB = 36.0; ///< of the lower one of the two antennas
    double gasLoss_dB_per_km = 0.06;
    double referenceDifference_ppm = 0.5; ///< between the references of the two transmitters
};

/// A link as it is at the beginning.
struct LinkSetup
{
    static constexpr std::uint32_t LargestNumberOfChannels = 2;

    std::uint32_t numberOfChannels = LargestNumberOfChannels;
    Hop hop;
    Weather weather;
    std::array<Channel, LargestNumberOfChannels> channels = bothPolarisations();

private:
    static std::array<Channel, LargestNumberOfChannels> bothPolarisations();
};

/// A channel at one moment.
struct Snapshot
{
    Hop hop;
    Channel state;
    Readings readings; ///< in that state
};

/// What is around the link at one moment.
struct Conditions
{
    Ticks time;
    double distance_km;
    double rain_mm_per_h;
    double fade_dB; ///< scintillation included
};

/// The link and its state. Time stands still between two calls of advance(). What breaks, breaks at once, with the
/// change that breaks it; what heals, heals in time. All members may be called from any thread.
class RadioLink
{
public:
    explicit RadioLink(const LinkSetup& setup = {});

    std::uint32_t numberOfChannels() const;

    /// Channels count from 1.
    bool hasChannel(std::uint32_t channel) const;

    /// @param channel  one that the link has, as everywhere here
    /// @throws std::out_of_range for another one, as everywhere here
    Snapshot snapshot(std::uint32_t channel) const;

    /// Changes a channel, in one step for everybody else.
    /// @param apply  makes the change; it must not call the link
    /// @return the channel right after the change
    Snapshot change(std::uint32_t channel, const std::function<void(Channel&)>& apply);

    /// Begins a PPS calibration. @param time_ns  for PpsRequest::Manual
    void calibratePps(std::uint32_t channel, PpsRequest request, std::uint16_t time_ns);

    Conditions conditions() const;

    /// Turns the rain to a rate, the fade to a depth: in a straight line, from now on, in place of what was to come.
    /// Ranges: RainRate_mm_per_h, FadeDepth_dB.
    void turnRain(double rate_mm_per_h, Ticks over = {});
    void turnFade(double depth_dB, Ticks over = {});

    /// Range: Distance_km.
    void setDistance(double distance_km);

    /// Lets time go on. @param time  0 or more
    void advance(Ticks time);

private:
    /// @throws std::out_of_range for a channel that the link does not have
    void expectChannel(std::uint32_t channel) const;

    Channel& at(std::uint32_t channel);
    const Channel& at(std::uint32_t channel) const;

    /// Null on a link of one channel.
    const Channel* other(std::uint32_t channel) const;

    Conditions conditionsNow() const;
    double txPower_dBm(const Channel& state) const;
    double rain_dB(const Channel& state) const;

    /// What arrives of the sender's signal over the path of a polarisation.
    double received_dBm(const Channel& sender, const Channel& path) const;

    double slaveCarrierOffset_Hz(std::uint32_t channel) const;
    Readings measure(std::uint32_t channel) const;
    Snapshot take(std::uint32_t channel) const;
    XpicSurroundings xpicSurroundings(std::uint32_t channel) const;
    static PpsSurroundings ppsSurroundings(const Channel& state);

    /// What a channel goes by when it changes.
    struct Moment
    {
        double snir_dB = 0;
        XpicSurroundings xpic;
    };

    using Moments = std::array<Moment, LinkSetup::LargestNumberOfChannels>;

    /// At every channel before any of them changes: which one comes first must not matter.
    Moments lookAtEach() const;

    /// Lets everything give up what no longer holds, step by step, until all that is left does.
    void settle();
    void tick();

    const std::uint32_t m_numberOfChannels;
    mutable std::mutex m_mutex;
    Hop m_hop;
    Weather m_weather;
    Tremor m_tremor;
    std::array<Channel, LinkSetup::LargestNumberOfChannels> m_channels;
    std::array<bool, LinkSetup::LargestNumberOfChannels> m_errored{}; ///< since the last tick
    Ticks m_time{0};
};

} // namespace node::radio
