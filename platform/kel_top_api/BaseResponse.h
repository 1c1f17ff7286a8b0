#pragma once

#include <cstdint>
#include <string>

/// The node's top-level API: functions that take a command record, return when the node has dealt with it, and answer
/// with a response record, in which a refusal stands.
namespace kel_top_api
{

/// What every call of the top-level API answers.
///
/// The order of members and virtual operations is part of the binary contract.
class BaseResponse
{
public:
    BaseResponse() = default;
    /// @{
    /// A response is a value: member by member.
    BaseResponse(const BaseResponse&) = default;
    BaseResponse(BaseResponse&&) = default;
    BaseResponse& operator=(const BaseResponse&) = default;
    BaseResponse& operator=(BaseResponse&&) = default;
    /// @}
    virtual ~BaseResponse() = default;

    /// The response as text; each kind of response has a form of its own.
    virtual std::string printResponse()
    {
        return "Sent\n";
    }

    std::uint32_t opaqueWord = 0; ///< the API's own
    std::int32_t resultCode = 0;  ///< above 0: the call failed; 0 and negative codes: success
    std::string resultText;       ///< the API's description of the outcome
};

} // namespace kel_top_api
