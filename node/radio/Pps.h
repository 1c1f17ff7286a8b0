#pragma once

#include <cstdint>

/// The pulse-per-second (PPS) output of a channel's DSP.
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

/// What a calibration is asked for. Assumed: the platform names the requests by number only.
enum class PpsRequest
{
    Coarse, ///< resolve the delay to one symbol; a fine calibration may follow
    Fine,   ///< resolve it to 1 ns; needs a coarse calibration before
    Auto,   ///< coarse, then fine, and keep it so
    Manual, ///< take the value given as the delay's correction, in ns
};

struct Pps
{
    PpsCalibration calibration = PpsCalibration::Never;
    PpsFailure failure = PpsFailure::None;
    std::uint16_t correction_ns = 0;
    std::uint32_t source = 0;
    std::int32_t sourceParameter = 0;
    std::uint32_t outputMode = 0;
};

/// Carries out one request, at once.
void calibrate(Pps& pps, PpsRequest request, std::uint16_t correction_ns);

} // namespace node::radio
