#include "kel_top_api/CriSetSourceDspPps.h"

#include "node/services/TopApi.h"

namespace kel_top_api
{

StandardResponse criSetSourceDspPps(const CriSetSourceDspPps::Command& command)
{
    StandardResponse response;
    if (command.source > CriSetSourceDspPps::Source::Source2)
    {
        node::services::refuse(response, "source: found a number out of range, expected 0 to 2");
        return response;
    }
    if (auto* const link = node::services::linkOf(command.radioChannel, response))
    {
        link->change(command.radioChannel,
                     [&](node::radio::Channel& channel)
                     {
                         channel.pps.source = static_cast<std::uint32_t>(command.source);
                         channel.pps.sourceParameter = command.sourceParameter;
                     });
    }
    return response;
}

} // namespace kel_top_api
