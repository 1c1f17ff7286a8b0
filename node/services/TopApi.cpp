#include "node/services/TopApi.h"

#include <atomic>
#include <stdexcept>

#include "node/services/Answer.h"
#include "node/services/PlatformCall.h"

namespace node::services
{

namespace
{

std::atomic<const ServiceContext*> bound = nullptr;

} // namespace

TopApiBinding::TopApiBinding(const ServiceContext& context) : m_context(context)
{
    const ServiceContext* none = nullptr;
    if (!bound.compare_exchange_strong(none, &m_context))
    {
        throw std::logic_error("top-level API: found another node, expected one at a time");
    }
}

TopApiBinding::~TopApiBinding()
{
    bound = nullptr;
}

const ServiceContext* boundContext()
{
    return bound;
}

void refuse(kel_top_api::BaseResponse& response, const std::string& reason)
{
    response.resultCode = TopApiRefusal;
    response.resultText = reason;
}

bool checkChannel(const radio::RadioLink& link, RadioChannel channel, kel_top_api::BaseResponse& response)
{
    if (!link.hasChannel(channel))
    {
        refuse(response, unknownChannel(channel, link));
        return false;
    }
    return true;
}

} // namespace node::services
