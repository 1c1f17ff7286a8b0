#pragma once

#include <cstdint>

#include "kel_top_api/BaseResponse.h"

/// What a command answers, and how the services' answers are judged.
namespace kel::device::kelDebugCmd
{

inline constexpr int Done = 0;
inline constexpr int Failed = 1;

/// The first failing code of the platform's interfaces. Codes are signed: negative ones are success.
inline constexpr std::int32_t PlatformFailure = 0x8000;

inline bool isFailure(std::int32_t platformResultCode)
{
    return platformResultCode >= PlatformFailure;
}

/// The top-level API draws its line elsewhere: every code above 0 is a failure.
inline bool isFailure(const kel_top_api::BaseResponse& response)
{
    return response.resultCode > 0;
}

} // namespace kel::device::kelDebugCmd
