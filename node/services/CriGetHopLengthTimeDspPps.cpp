#include "kel_top_api/CriGetHopLengthTimeDspPps.h"

#include <cmath>

#include "node/services/TopApi.h"

namespace kel_top_api
{

CriGetHopLengthTimeDspPps::Response criGetHopLengthTimeDspPps(const CriGetHopLengthTimeDspPps::Command& command)
{
    using Response = CriGetHopLengthTimeDspPps::Response;
    const auto work = [&](const node::radio::RadioLink& link, Response& response)
    {
        const double time_ns = link.snapshot(command.radioChannel).readings.hopLengthTime_ns;
        response.hopLengthTime = static_cast<std::uint32_t>(std::lround(time_ns));
    };
    return node::services::answer<Response>("criGetHopLengthTimeDspPps", command.radioChannel, work);
}

} // namespace kel_top_api
