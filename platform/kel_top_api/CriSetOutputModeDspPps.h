#pragma once

#include <cstdint>

#include "kel_top_api/StandardResponse.h"
#include "radio/RadioChannel.h"

namespace kel_top_api
{

/// Output mode of the DSP's pulse-per-second (PPS) output.
struct CriSetOutputModeDspPps
{
    /// What is put out. What each number means is the API's affair.
    enum class OutputMode : std::uint32_t
    {
        Mode0 = 0,
        Mode1 = 1,
        Mode2 = 2,
    };

    /// A request for an output mode.
    struct Command
    {
        RadioChannel radioChannel = 0;             ///< 1 or 2
        OutputMode outputMode = OutputMode::Mode0; ///< any of the three
    };
};

/// Sets the output mode.
StandardResponse criSetOutputModeDspPps(const CriSetOutputModeDspPps::Command& command);

} // namespace kel_top_api
