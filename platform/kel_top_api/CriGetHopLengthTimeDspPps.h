#pragma once

#include <cstdint>

#include "kel_top_api/BaseResponse.h"
#include "radio/RadioChannel.h"

namespace kel_top_api
{

/// Time that the signal travels over the hop, as the DSP's pulse-per-second (PPS) function measured it.
struct CriGetHopLengthTimeDspPps
{
    /// Whose time is wanted.
    struct Command
    {
        RadioChannel radioChannel = 0; ///< 1 or 2
    };

    /// The time.
    class Response : public BaseResponse
    {
    public:
        std::uint32_t hopLengthTime = 0; ///< ns
    };
};

/// Asks for the time over the hop.
CriGetHopLengthTimeDspPps::Response criGetHopLengthTimeDspPps(const CriGetHopLengthTimeDspPps::Command& command);

} // namespace kel_top_api
