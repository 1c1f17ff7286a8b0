#include "node/radio/Pps.h"

namespace node::radio
{

void calibrate(Pps& pps, PpsRequest request, std::uint16_t correction_ns)
{
    const bool coarseIsThere = pps.calibration == PpsCalibration::FineNotCompleted ||
                               pps.calibration == PpsCalibration::Auto || pps.calibration == PpsCalibration::Manual;
    pps.failure = PpsFailure::None;
    switch (request)
    {
    case PpsRequest::Coarse:
        pps.calibration = PpsCalibration::FineNotCompleted;
        return;
    case PpsRequest::Fine:
        pps.calibration = coarseIsThere ? PpsCalibration::Manual : PpsCalibration::Failed;
        pps.failure = coarseIsThere ? PpsFailure::None : PpsFailure::CoarseFirst;
        return;
    case PpsRequest::Auto:
        pps.calibration = PpsCalibration::Auto;
        return;
    case PpsRequest::Manual:
        pps.calibration = PpsCalibration::Manual;
        pps.correction_ns = correction_ns;
        return;
    }
}

} // namespace node::radio
