#pragma once

#include <cstdint>
#include <optional>

#include "node/radio/Modulation.h"
#include "node/radio/Time.h"

namespace node::radio
{

enum class PpsCalibration
{
    Never,
    CoarseNotCompleted,
    FineNotCompleted,
    Auto,
    Manual,
    Failed,
};

enum class PpsFailure
{
    None,
    SlaveLinkLoss,
    NoResponseFromMaster,
    ModulationChange,
    CoarseFirst,
};

/// What a calibration is asked for. The platform names the requests by number only; what they mean is assumed.
enum class PpsRequest
{
    Coarse, ///< resolve the hop's length to one symbol
    Fine,   ///< resolve it to 1 ns; needs a coarse calibration before
    Auto,   ///< coarse, then fine, and keep it so
    Manual, ///< take the time given
};

/// What a calibration depends on.
struct PpsSurroundings
{
    bool locked = true; ///< the modem of this channel
    bool masterAnswers = true;
    ModulationIndex modulation = 0;
};

/// The pulse-per-second (PPS) output of one channel's DSP, and its calibration. A coarse step takes 10 s, a fine one
/// 30 s, a master has 5 s to answer: assumed.
struct Pps
{
    /// Begins what is asked, in place of what runs.
    /// @param time_ns  that the signal takes over the hop, for PpsRequest::Manual
    void calibrate(PpsRequest request, std::uint16_t time_ns, const PpsSurroundings& surroundings);

    /// Gives up at once what the surroundings no longer carry: a running calibration when the lock goes or the
    /// modulation changes, a finished automatic one when the lock goes.
    void fall(const PpsSurroundings& surroundings);

    /// One tick of a running calibration.
    void advance(const PpsSurroundings& surroundings);

    bool running() const;

    /// The travel time as far as the state of the calibration resolves it: to a symbol where the fine one is not
    /// completed, to 1 ns where it is, otherwise to 1000 ns, an assumption. The time given, after a manual one.
    double resolve_ns(double travelTime_ns, double symbolTime_ns) const;

    PpsCalibration calibration = PpsCalibration::Never;
    PpsFailure failure = PpsFailure::None;
    bool coarseDone = false; ///< a fine calibration needs it; a new coarse one and a loss of the link drop it
    std::optional<std::uint16_t> givenTime_ns;
    std::uint32_t source = 0;
    std::int32_t sourceParameter = 0;
    std::uint32_t outputMode = 0;

private:
    enum class Step
    {
        None,
        Coarse,
        Fine,
    };

    void fail(PpsFailure reason);

    Step m_step = Step::None;
    bool m_automatic = false;
    Ticks m_left{0}; ///< of the step
    Ticks m_unanswered{0};
    ModulationIndex m_modulation = 0; ///< when the calibration began
};

} // namespace node::radio
