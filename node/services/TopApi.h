#pragma once

#include <string>
#include <string_view>

#include "kel_top_api/BaseResponse.h"
#include "node/radio/RadioLink.h"
#include "node/services/ServiceContext.h"
#include "radio/RadioChannel.h"

/// What the substitutes of the top-level API share. The API is made of free functions, so what they answer from is
/// bound here for as long as the node runs.
namespace node::services
{

/// Binds the top-level API to a context for its own lifetime.
class TopApiBinding
{
public:
    /// @throws std::logic_error where the API is bound already
    explicit TopApiBinding(const ServiceContext& context);
    TopApiBinding(const TopApiBinding&) = delete;
    TopApiBinding& operator=(const TopApiBinding&) = delete;
    ~TopApiBinding();

private:
    ServiceContext m_context;
};

/// Null while the API is bound to none.
const ServiceContext* boundContext();

/// Refuses: the response fails with that text.
void refuse(kel_top_api::BaseResponse& response, const std::string& reason);

/// Refuses a channel that the link does not have.
/// @return whether it has it
bool checkChannel(const radio::RadioLink& link, RadioChannel channel, kel_top_api::BaseResponse& response);

/// Answers a call: by the fault plan when that refuses it, otherwise by `work`. A planned code that is no refusal, and
/// its text, take the place of the worked-out ones.
/// @param work  called with the link and the response to fill
template <typename Response, typename Work>
Response answer(std::string_view call, RadioChannel channel, const Work& work)
{
    Response response;
    const ServiceContext* const context = boundContext();
    if (context == nullptr)
    {
        refuse(response, "the node is not started");
        return response;
    }
    const auto planned = context->faults.pass(call, channel);
    if ((!planned || !planned->failed) && checkChannel(context->link, channel, response))
    {
        work(context->link, response);
    }
    if (planned)
    {
        response.resultCode = planned->code;
        response.resultText = planned->text;
    }
    return response;
}

} // namespace node::services
