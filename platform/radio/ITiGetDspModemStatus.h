#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "radio/RadioChannel.h"

/// Status of a channel's modem. Only the interface that fills the record knows how to read it.
struct DspModemStatus
{
    std::uint32_t request = 0;               ///< set by the caller before the query
    std::array<std::uint32_t, 11> content{}; ///< zero before the query, the status after it
};

/// How a query of the modem status ended.
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

    /// Asks for the status.
    /// @param channel  1 or 2
    /// @param status   filled in on success; not null
    virtual DspModemStatusResult getDspModemStatus(RadioChannel channel, DspModemStatus* status) = 0;

    /// A status that was filled in, as text for people.
    virtual std::string toString(DspModemStatus status) = 0;
};
