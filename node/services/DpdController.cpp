#include "node/services/DpdController.h"

IDpdControllerSplit::~IDpdControllerSplit() = default;

namespace node::services
{

namespace
{

/// What start() expects: adapt from the present coefficients on.
constexpr std::uint32_t AdaptFromPresent = 1;

} // namespace

DpdController::DpdController(radio::RadioLink& link, RadioChannel channel) : m_link(link), m_channel(channel)
{
}

EDPDResult DpdController::start(std::uint32_t startParameter)
{
    if (startParameter != AdaptFromPresent)
    {
        return EDPDResult::Failure;
    }
    m_link.change(m_channel, [](radio::Channel& channel) { channel.dpd.running = true; });
    return EDPDResult::Success;
}

EDPDResult DpdController::stop()
{
    m_link.change(m_channel, [](radio::Channel& channel) { channel.dpd.running = false; });
    return EDPDResult::Success;
}

std::uint32_t DpdController::getStartParameter()
{
    return AdaptFromPresent;
}

EDPDResult DpdController::getCoeffs(DpdCoeffs* coefficients)
{
    coefficients->bytes = m_link.snapshot(m_channel).state.dpd.coefficients;
    return EDPDResult::Success;
}

EDPDResult DpdController::setCoeffs(DpdCoeffs coefficients)
{
    m_link.change(m_channel, [&](radio::Channel& channel) { channel.dpd.coefficients = coefficients.bytes; });
    return EDPDResult::Success;
}

} // namespace node::services
