#include "kel_top_api/CriSetOutputModeDspPps.h"

#include "node/services/TopApi.h"

namespace kel_top_api
{

StandardResponse criSetOutputModeDspPps(const CriSetOutputModeDspPps::Command& command)
{
    StandardResponse response;
    if (command.outputMode > CriSetOutputModeDspPps::OutputMode::Mode2)
    {
        node::services::refuse(response, "output mode: found a number out of range, expected 0 to 2");
        return response;
    }
    if (auto* const link = node::services::linkOf(command.radioChannel, response))
    {
        link->change(command.radioChannel, [&](node::radio::Channel& channel)
                     { channel.pps.outputMode = static_cast<std::uint32_t>(command.outputMode); });
    }
    return response;
}

} // namespace kel_top_api
