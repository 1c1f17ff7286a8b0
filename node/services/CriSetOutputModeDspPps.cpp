#include "kel_top_api/CriSetOutputModeDspPps.h"

#include "node/services/TopApi.h"

namespace kel_top_api
{

StandardResponse criSetOutputModeDspPps(const CriSetOutputModeDspPps::Command& command)
{
    const auto work = [&](node::radio::RadioLink& link, StandardResponse& response)
    {
        if (command.outputMode > CriSetOutputModeDspPps::OutputMode::Mode2)
        {
            node::services::refuse(response, "output mode: found a number out of range, expected 0 to 2");
            return;
        }
        link.change(command.radioChannel, [&](node::radio::Channel& channel)
                    { channel.pps.outputMode = static_cast<std::uint32_t>(command.outputMode); });
    };
    return node::services::answer<StandardResponse>("criSetOutputModeDspPps", command.radioChannel, work);
}

} // namespace kel_top_api
