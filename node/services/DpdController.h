#pragma once

#include <functional>
#include <string_view>

#include "node/services/ServiceContext.h"
#include "radio/IDpdControllerSplit.h"
#include "radio/RadioChannel.h"

namespace node::services
{

/// The DPD controller of one channel of the link.
class DpdController : public IDpdControllerSplit
{
public:
    DpdController(const ServiceContext& context, RadioChannel channel);

    /// Fails for every parameter but the one that getStartParameter() answers, and with a code of its own while the
    /// channel's modem is not locked: the controller adapts on what the far end acknowledges, an assumption.
    EDPDResult start(std::uint32_t startParameter) override;
    EDPDResult stop() override;
    std::uint32_t getStartParameter() override;
    EDPDResult getCoeffs(DpdCoeffs* coefficients) override;
    EDPDResult setCoeffs(DpdCoeffs coefficients) override;

    static constexpr EDPDResult NotLocked{0x8001};

private:
    EDPDResult answer(std::string_view call, const std::function<EDPDResult()>& work);

    ServiceContext m_context;
    RadioChannel m_channel;
};

} // namespace node::services
