#include "node/services/RadioChannelNearEnd.h"

#include "node/services/Answer.h"
#include "node/services/ModulationNames.h"

ITiManageRadioChannelNearEnd::~ITiManageRadioChannelNearEnd() = default;

namespace node::services
{

RadioChannelNearEnd::RadioChannelNearEnd(const radio::RadioLink& link) : m_link(link)
{
}

RadioChannelInfoResult RadioChannelNearEnd::getRadioChannelInfo(const RadioChannelInfoRequest& request,
                                                                RadioChannelInfo* info)
{
    if (!radio::RadioLink::hasChannel(request.radioChannel))
    {
        return {PlatformRefusal, unknownChannel(request.radioChannel)};
    }
    info->radioChannelId = static_cast<std::int32_t>(request.radioChannel);
    info->radioFrameId = 1;
    info->minModulationAndCode = "4QAM_STRONG";
    info->maxModulationAndCode = nameOf(m_link.hop().modulation);
    return {};
}

} // namespace node::services
