#pragma once

#include <cstdint>

#include "kel_top_api/StandardResponse.h"
#include "radio/RadioChannel.h"

namespace kel_top_api
{

/// Output mode of the DSP's pulse-per-second (PPS) output.
struct CriSetOutputModeDspPps
{
    enum class OutputMode : std::uint32_t
    {
        Mode0 = 0,
        Mode1 = 1,
        Mode2 = 2,
    };

    struct Command
    {
        RadioChannel radioChannel = 0;
        OutputMode outputMode = OutputMode::Mode0;
    };
};

StandardResponse criSetOutputModeDspPps(const CriSetOutputModeDspPps::Command& command);

} // namespace kel_top_api
