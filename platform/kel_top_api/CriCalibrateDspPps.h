#pragma once

#include <cstdint>

#include "kel_top_api/StandardResponse.h"
#include "radio/RadioChannel.h"

namespace kel_top_api
{

/// Calibration of the DSP's pulse-per-second (PPS) output.
struct CriCalibrateDspPps
{
    /// How to calibrate. What each number means is the API's affair.
    enum class CalibrationMode : std::uint32_t
    {
        Mode0 = 0,
        Mode1 = 1,
        Mode2 = 2,
        Mode3 = 3,
    };

    /// A request to calibrate.
    struct Command
    {
        RadioChannel radioChannel = 0;                            ///< 1 or 2
        CalibrationMode calibrationMode = CalibrationMode::Mode0; ///< any of the four
        std::uint16_t calibrationValue = 0;                       ///< of any size; the mode knows what it is
    };
};

/// Requests a calibration, whose progress criGetCalibrationStatusDspPps() tells.
StandardResponse criCalibrateDspPps(const CriCalibrateDspPps::Command& command);

} // namespace kel_top_api
