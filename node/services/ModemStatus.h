#pragma once

#include "node/services/ServiceContext.h"
#include "radio/ITiGetDspModemStatus.h"

namespace node::services
{

/// The status of the link's modems, and its text.
class ModemStatus : public ITiGetDspModemStatus
{
public:
    explicit ModemStatus(const ServiceContext& context);

    /// Knows request 2, the modem's full status; refuses others.
    DspModemStatusResult getDspModemStatus(RadioChannel channel, DspModemStatus* status) override;
    std::string toString(DspModemStatus status) override;

private:
    DspModemStatusResult fill(RadioChannel channel, DspModemStatus& status) const;

    ServiceContext m_context;
};

} // namespace node::services
