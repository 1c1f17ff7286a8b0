#pragma once

#include "node/services/ServiceContext.h"
#include "radio/ITiManageRadioChannelNearEnd.h"

namespace node::services
{

/// The near end's identity of the link's channels.
class RadioChannelNearEnd : public ITiManageRadioChannelNearEnd
{
public:
    explicit RadioChannelNearEnd(const ServiceContext& context);

    RadioChannelInfoResult getRadioChannelInfo(const RadioChannelInfoRequest& request, RadioChannelInfo* info) override;

private:
    RadioChannelInfoResult fill(RadioChannel channel, RadioChannelInfo& info) const;

    ServiceContext m_context;
};

} // namespace node::services
