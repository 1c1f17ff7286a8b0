#include "kel_top_api/CriSetSourceDspPps.h"

#include "node/services/TopApi.h"

namespace kel_top_api
{

StandardResponse criSetSourceDspPps(const CriSetSourceDspPps::Command& command)
{
    const auto work = [&](node::radio::RadioLink& link, StandardResponse& response)
    {
        if (command.source > CriSetSourceDspPps::Source::Source2)
        {
            node::services::refuse(response, "source: found a number out of range, expected 0 to 2");
            return;
        }
        link.change(command.radioChannel,
                    [&](node::radio::Channel& channel)
                    {
                        channel.pps.source = static_cast<std::uint32_t>(command.source);
                        channel.pps.sourceParameter = command.sourceParameter;
                    });
    };
    return node::services::answer<StandardResponse>("criSetSourceDspPps", command.radioChannel, work);
}

} // namespace kel_top_api
