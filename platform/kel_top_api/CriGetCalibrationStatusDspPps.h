#pragma once

#include <cstdint>

#include "kel_top_api/BaseResponse.h"
#include "radio/RadioChannel.h"

namespace kel_top_api
{

/// Calibration status of the DSP's pulse-per-second (PPS) output.
struct CriGetCalibrationStatusDspPps
{
    /// Whose status is wanted.
    struct Command
    {
        RadioChannel radioChannel = 0; ///< 1 or 2
    };

    /// How the calibration stands.
    class Response : public BaseResponse
    {
    public:
        /// 0 never begun, 1 the coarse one and 2 the fine one is not completed, 3 fine calibration in auto mode,
        /// 4 completed in manual mode, 5 failed.
        std::uint32_t calibrationStatus = 0;
        /// Why a calibration failed: 0 for no reason, 1 the slave lost its link, 2 the master did not answer, 3 the
        /// modulation changed, 4 the coarse calibration has to come first.
        std::uint32_t calibrationFailureReason = 0;
    };
};

/// Asks how the calibration stands.
CriGetCalibrationStatusDspPps::Response
criGetCalibrationStatusDspPps(const CriGetCalibrationStatusDspPps::Command& command);

} // namespace kel_top_api
