#include "kel_top_api/CriGetCalibrationStatusDspPps.h"

#include "node/services/TopApi.h"

namespace kel_top_api
{

namespace
{

/// The API's number of a calibration state. Auto mode comes before manual mode here, unlike in printed legends.
std::uint32_t numberOf(node::radio::PpsCalibration calibration)
{
    using enum node::radio::PpsCalibration;
    switch (calibration)
    {
    case Never:
        return 0;
    case CoarseNotCompleted:
        return 1;
    case FineNotCompleted:
        return 2;
    case Auto:
        return 3;
    case Manual:
        return 4;
    case Failed:
        break;
    }
    return 5;
}

std::uint32_t numberOf(node::radio::PpsFailure failure)
{
    using enum node::radio::PpsFailure;
    switch (failure)
    {
    case None:
        return 0;
    case SlaveLinkLoss:
        return 1;
    case NoResponseFromMaster:
        return 2;
    case ModulationChange:
        return 3;
    case CoarseFirst:
        break;
    }
    return 4;
}

} // namespace

CriGetCalibrationStatusDspPps::Response
criGetCalibrationStatusDspPps(const CriGetCalibrationStatusDspPps::Command& command)
{
    using Response = CriGetCalibrationStatusDspPps::Response;
    const auto work = [&](const node::radio::RadioLink& link, Response& response)
    {
        const auto pps = link.snapshot(command.radioChannel).state.pps;
        response.calibrationStatus = numberOf(pps.calibration);
        response.calibrationFailureReason = numberOf(pps.failure);
    };
    return node::services::answer<Response>("criGetCalibrationStatusDspPps", command.radioChannel, work);
}

} // namespace kel_top_api
