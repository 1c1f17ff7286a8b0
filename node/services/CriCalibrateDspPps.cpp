#include "kel_top_api/CriCalibrateDspPps.h"

#include "node/services/TopApi.h"

namespace kel_top_api
{

namespace
{

node::radio::PpsRequest requestOf(CriCalibrateDspPps::CalibrationMode mode)
{
    using node::radio::PpsRequest;
    using enum CriCalibrateDspPps::CalibrationMode;
    switch (mode)
    {
    case Mode0:
        return PpsRequest::Coarse;
    case Mode1:
        return PpsRequest::Fine;
    case Mode2:
        return PpsRequest::Auto;
    case Mode3:
        break;
    }
    return PpsRequest::Manual;
}

} // namespace

StandardResponse criCalibrateDspPps(const CriCalibrateDspPps::Command& command)
{
    const auto work = [&](node::radio::RadioLink& link, StandardResponse& response)
    {
        if (command.calibrationMode > CriCalibrateDspPps::CalibrationMode::Mode3)
        {
            node::services::refuse(response, "calibration mode: found a number out of range, expected 0 to 3");
            return;
        }
        link.calibratePps(command.radioChannel, requestOf(command.calibrationMode), command.calibrationValue);
    };
    return node::services::answer<StandardResponse>("criCalibrateDspPps", command.radioChannel, work);
}

} // namespace kel_top_api
