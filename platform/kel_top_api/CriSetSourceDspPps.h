#pragma once

#include <cstdint>

#include "kel_top_api/StandardResponse.h"
#include "radio/RadioChannel.h"

namespace kel_top_api
{

/// Source of the DSP's pulse-per-second (PPS) output.
struct CriSetSourceDspPps
{
    enum class Source : std::uint32_t
    {
        Source0 = 0,
        Source1 = 1,
        Source2 = 2,
    };

    struct Command
    {
        RadioChannel radioChannel = 0;
        Source source = Source::Source0;
        std::int32_t sourceParameter = 0;
    };
};

StandardResponse criSetSourceDspPps(const CriSetSourceDspPps::Command& command);

} // namespace kel_top_api
