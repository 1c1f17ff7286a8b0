#include "kel_top_api/CriGetHopLengthTimeDspPps.h"

#include <cmath>

#include "node/services/TopApi.h"

namespace kel_top_api
{

CriGetHopLengthTimeDspPps::Response criGetHopLengthTimeDspPps(const CriGetHopLengthTimeDspPps::Command& command)
{
    CriGetHopLengthTimeDspPps::Response response;
    if (const auto* const link = node::services::linkOf(command.radioChannel, response))
    {
        const double time_ns = link->snapshot(command.radioChannel).readings.hopLengthTime_ns;
        response.hopLengthTime = static_cast<std::uint32_t>(std::lround(time_ns));
    }
    return response;
}

} // namespace kel_top_api
