#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "radio/RadioChannel.h"

/// Status of a channel's modem. Only the interface that fills the record knows how to read it.
struct DspModemStatus
{
    std::uint32_t request = 0; ///< set by the caller before the query
    std::array<std::uint32_t, 11> content{};
};

struct DspModemStatusResult
{
    std::int32_t resultCode = 0; ///< below 0x8000, negative codes among them: success
    std::string errorText;       ///< describes a failure
};

/// Query of the modem status, and its rendering as text.
class ITiGetDspModemStatus
{
public:
    virtual ~ITiGetDspModemStatus();

    virtual DspModemStatusResult getDspModemStatus(RadioChannel channel, DspModemStatus* status) = 0;
    virtual std::string toString(DspModemStatus status) = 0;
};
