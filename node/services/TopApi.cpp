#include "node/services/TopApi.h"

#include <atomic>

#include "node/services/Answer.h"

namespace node::services
{

namespace
{

std::atomic<radio::RadioLink*> boundLink = nullptr;

} // namespace

TopApiBinding::TopApiBinding(radio::RadioLink& link)
{
    boundLink = &link;
}

TopApiBinding::~TopApiBinding()
{
    boundLink = nullptr;
}

void refuse(kel_top_api::BaseResponse& response, const std::string& reason)
{
    response.resultCode = TopApiRefusal;
    response.resultText = reason;
}

radio::RadioLink* linkOf(RadioChannel channel, kel_top_api::BaseResponse& response)
{
    radio::RadioLink* const link = boundLink;
    if (link == nullptr)
    {
        refuse(response, "the node is not started");
        return nullptr;
    }
    if (!radio::RadioLink::hasChannel(channel))
    {
        refuse(response, unknownChannel(channel));
        return nullptr;
    }
    return link;
}

} // namespace node::services
