#include "node/services/RadioChannelNearEnd.h"

#include "node/services/Answer.h"
#include "node/services/ModulationNames.h"
#include "node/services/PlatformCall.h"

ITiManageRadioChannelNearEnd::~ITiManageRadioChannelNearEnd() = default;

namespace node::services
{

RadioChannelNearEnd::RadioChannelNearEnd(const ServiceContext& context) : m_context(context)
{
}

RadioChannelInfoResult RadioChannelNearEnd::getRadioChannelInfo(const RadioChannelInfoRequest& request,
                                                                RadioChannelInfo* info)
{
    return answerByPlan(
        m_context.faults, "ITiManageRadioChannelNearEnd.getRadioChannelInfo", request.radioChannel,
        [&] { return fill(request.radioChannel, *info); },
        [](const PlannedAnswer& planned) {
            return RadioChannelInfoResult{planned.code, planned.text};
        });
}

RadioChannelInfoResult RadioChannelNearEnd::fill(RadioChannel channel, RadioChannelInfo& info) const
{
    if (!m_context.link.hasChannel(channel))
    {
        return {PlatformRefusal, unknownChannel(channel, m_context.link)};
    }
    const auto modem = m_context.link.snapshot(channel).state.modem;
    info.radioChannelId = static_cast<std::int32_t>(channel);
    info.radioFrameId = 1;
    info.minModulationAndCode = nameOf(radio::modulations()[modem.lowest]);
    info.maxModulationAndCode = nameOf(radio::modulations()[modem.highest]);
    return {};
}

} // namespace node::services
