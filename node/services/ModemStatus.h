#pragma once

#include "node/radio/RadioLink.h"
#include "radio/ITiGetDspModemStatus.h"

namespace node::services
{

/// The status of the link's modems, and its text.
class ModemStatus : public ITiGetDspModemStatus
{
public:
    /// @param link  borrowed; outlives the object
    explicit ModemStatus(const radio::RadioLink& link);

    /// Knows request 2, the modem's full status; refuses others.
    DspModemStatusResult getDspModemStatus(RadioChannel channel, DspModemStatus* status) override;
    std::string toString(DspModemStatus status) override;

private:
    const radio::RadioLink& m_link;
};

} // namespace node::services
