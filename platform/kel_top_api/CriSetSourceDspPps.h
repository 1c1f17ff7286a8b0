#pragma once

#include <cstdint>

#include "kel_top_api/StandardResponse.h"
#include "radio/RadioChannel.h"

namespace kel_top_api
{

/// Source of the DSP's pulse-per-second (PPS) output.
struct CriSetSourceDspPps
{
    /// Where the pulse comes from. What each number means is the API's affair.
    enum class Source : std::uint32_t
    {
        Source0 = 0,
        Source1 = 1,
        Source2 = 2,
    };

    /// A request for a source.
    struct Command
    {
        RadioChannel radioChannel = 0;    ///< 1 or 2
        Source source = Source::Source0;  ///< any of the three
        std::int32_t sourceParameter = 0; ///< of any size; the source knows what it is
    };
};

/// Sets the source.
StandardResponse criSetSourceDspPps(const CriSetSourceDspPps::Command& command);

} // namespace kel_top_api
