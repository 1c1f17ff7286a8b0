#pragma once

#include <cstdint>

#include "kel_top_api/BaseResponse.h"
#include "radio/RadioChannel.h"

namespace kel_top_api
{

/// Calibration status of the DSP's pulse-per-second (PPS) output.
struct CriGetCalibrationStatusDspPps
{
    struct Command
    {
        RadioChannel radioChannel = 0;
    };

    class Response : public BaseResponse
    {
    public:
        std::uint32_t calibrationStatus = 0;        ///< 5: the calibration failed
        std::uint32_t calibrationFailureReason = 0; ///< why a calibration failed
    };
};

CriGetCalibrationStatusDspPps::Response
criGetCalibrationStatusDspPps(const CriGetCalibrationStatusDspPps::Command& command);

} // namespace kel_top_api
