#pragma once

#include <cstdint>

#include "kel_top_api/BaseResponse.h"

/// What a command answers, and how the services' answers are judged.
namespace kel::device::kelDebugCmd
{

inline constexpr int Done = 0;
inline constexpr int Failed = 1;

/// The platform's interfaces and the framework fail from 0x8000 on. Codes are signed: negative ones are success.
inline constexpr std::int32_t PlatformSuccess = 0;
inline constexpr std::int32_t PlatformFailure = 0x8000;

inline bool platformFailed(std::int32_t resultCode)
{
    return resultCode >= PlatformFailure;
}

/// The top-level API draws its line elsewhere: every code above 0 is a failure.
inline bool apiFailed(const kel_top_api::BaseResponse& response)
{
    return response.resultCode > 0;
}

} // namespace kel::device::kelDebugCmd
