#pragma once

#include <cstdint>

#include "kel_top_api/BaseResponse.h"
#include "radio/RadioChannel.h"

namespace kel_top_api
{

/// Time that the signal travels over the hop, as the DSP's pulse-per-second (PPS) function measured it.
struct CriGetHopLengthTimeDspPps
{
    struct Command
    {
        RadioChannel radioChannel = 0;
    };

    class Response : public BaseResponse
    {
    public:
        std::uint32_t hopLengthTime = 0; ///< ns
    };
};

CriGetHopLengthTimeDspPps::Response criGetHopLengthTimeDspPps(const CriGetHopLengthTimeDspPps::Command& command);

} // namespace kel_top_api
