#pragma once

#include <cstdint>

#include "kel_top_api/StandardResponse.h"
#include "radio/RadioChannel.h"

namespace kel_top_api
{

/// Calibration of the DSP's pulse-per-second (PPS) output.
struct CriCalibrateDspPps
{
    enum class CalibrationMode : std::uint32_t
    {
        Mode0 = 0,
        Mode1 = 1,
        Mode2 = 2,
        Mode3 = 3,
    };

    struct Command
    {
        RadioChannel radioChannel = 0;
        CalibrationMode calibrationMode = CalibrationMode::Mode0;
        std::uint16_t calibrationValue = 0;
    };
};

StandardResponse criCalibrateDspPps(const CriCalibrateDspPps::Command& command);

} // namespace kel_top_api
