#pragma once

#include <cstdint>
#include <string>

#include "kel_top_api/BaseResponse.h"
#include "node/radio/RadioLink.h"
#include "radio/RadioChannel.h"

/// What the substitutes of the top-level API share. The API is made of free functions, so the link that they answer
/// from is bound here for as long as the node runs.
namespace node::services
{

/// Binds the top-level API to a link for its own lifetime. There is one at a time.
class TopApiBinding
{
public:
    /// @param link  borrowed; outlives the binding
    explicit TopApiBinding(radio::RadioLink& link);
    TopApiBinding(const TopApiBinding&) = delete;
    TopApiBinding& operator=(const TopApiBinding&) = delete;
    ~TopApiBinding();
};

/// Refuses: the response fails with that text.
void refuse(kel_top_api::BaseResponse& response, const std::string& reason);

/// The bound link when it has the channel; otherwise null, with the response refused.
radio::RadioLink* linkOf(RadioChannel channel, kel_top_api::BaseResponse& response);

} // namespace node::services
