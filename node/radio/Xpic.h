#pragma once

#include <cstdint>

namespace node::radio
{

enum class XpicState
{
    Idle,      ///< never started
    Acquiring, ///< looks for the other polarisation's carrier
    Acquired,
    Failed, ///< did not find it
    Lost,   ///< had it, and lost what it needs
};

/// How an acquisition looks for the carrier. The platform names these by number only; what they mean is assumed.
enum class XpicAcquireMode : std::uint32_t
{
    FullSweep,   ///< from 100 kHz below the nominal carrier to 100 kHz above, 20 kHz a second
    NarrowSweep, ///< from 20 kHz below the last carrier found to 20 kHz above
    Direct,      ///< for 1 s at the last carrier found, with 1 kHz of tolerance, without a sweep
};

/// What an acquisition needs besides time. All of it again, to keep what was acquired.
struct XpicSurroundings
{
    bool complete() const
    {
        return ownSignal && slaveSignal && preamblesAgree;
    }

    bool ownSignal = false;      ///< this channel's modem is locked
    bool slaveSignal = false;    ///< the other channel's is, and its signal comes over the cable
    bool preamblesAgree = false; ///< of the two channels
    double slaveCarrierOffset_Hz = 0;
};

/// Cross-polarisation interference canceller (XPIC) of one channel. Its slave receives the other polarisation.
struct Xpic
{
    /// Whether it takes the other polarisation out of the signal at present.
    bool cancels() const
    {
        return state == XpicState::Acquired && !slaveMuted;
    }

    bool started() const
    {
        return state == XpicState::Acquiring || state == XpicState::Acquired;
    }

    bool sweeps() const
    {
        return state == XpicState::Acquiring && mode != XpicAcquireMode::Direct;
    }

    /// Begins as one that has acquired; as one that lost it where no full sweep reaches the carrier.
    void beginAcquired(double carrier_Hz);

    /// Begins an acquisition, a running one anew.
    void startAcquisition();

    /// Gives up at once what the surroundings no longer carry.
    /// @return whether anything was given up
    bool fall(const XpicSurroundings& surroundings);

    /// One tick of an acquisition.
    void acquire(const XpicSurroundings& surroundings);

    XpicState state = XpicState::Acquired;
    bool slaveMuted = false; ///< pauses the cancelling; an acquisition finds nothing meanwhile
    bool cableConnected = true;
    std::uint32_t preamble = 0; ///< must be the other channel's

    // Of the last acquisition. The platform has one number for the two options: 1 retries, 2 re-acquires, 3 does both.
    XpicAcquireMode mode = XpicAcquireMode::FullSweep;
    bool retries = true;    ///< begins anew when it found nothing
    bool reacquires = true; ///< begins anew after a loss

    double position_Hz = 0;    ///< of the slave's receiver, about the nominal carrier
    double lastCarrier_Hz = 0; ///< that was found; the nominal one before any was

private:
    void find(double carrier_Hz);
    void lose();

    // Of the acquisition.
    double m_begin_Hz = 0;
    std::int64_t m_ticks = 0;
};

} // namespace node::radio
