#pragma once

#include "node/radio/RadioLink.h"
#include "radio/ITiManageRadioChannelNearEnd.h"

namespace node::services
{

/// The near end's identity of the link's channels.
class RadioChannelNearEnd : public ITiManageRadioChannelNearEnd
{
public:
    /// @param link  borrowed; outlives the object
    explicit RadioChannelNearEnd(const radio::RadioLink& link);

    RadioChannelInfoResult getRadioChannelInfo(const RadioChannelInfoRequest& request, RadioChannelInfo* info) override;

private:
    const radio::RadioLink& m_link;
};

} // namespace node::services
