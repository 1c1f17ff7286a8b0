#pragma once

#include "node/radio/RadioLink.h"
#include "radio/IDpdControllerSplit.h"
#include "radio/RadioChannel.h"

namespace node::services
{

/// The DPD controller of one channel of the link.
class DpdController : public IDpdControllerSplit
{
public:
    /// @param link  borrowed; outlives the controller
    DpdController(radio::RadioLink& link, RadioChannel channel);

    /// Fails for every parameter but the one that getStartParameter() answers.
    EDPDResult start(std::uint32_t startParameter) override;
    EDPDResult stop() override;
    std::uint32_t getStartParameter() override;
    EDPDResult getCoeffs(DpdCoeffs* coefficients) override;
    EDPDResult setCoeffs(DpdCoeffs coefficients) override;

private:
    radio::RadioLink& m_link;
    RadioChannel m_channel;
};

} // namespace node::services
