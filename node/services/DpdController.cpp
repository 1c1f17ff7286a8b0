#include "node/services/DpdController.h"

IDpdControllerSplit::~IDpdControllerSplit() = default;

namespace node::services
{

namespace
{

/// What start() expects: adapt from the present coefficients on.
constexpr std::uint32_t AdaptFromPresent = 1;

} // namespace

DpdController::DpdController(const ServiceContext& context, RadioChannel channel)
    : m_context(context), m_channel(channel)
{
}

EDPDResult DpdController::answer(std::string_view call, const std::function<EDPDResult()>& work)
{
    return answerByPlan(m_context.faults, call, m_channel, work,
                        [](const PlannedAnswer& planned) { return EDPDResult{planned.code}; });
}

EDPDResult DpdController::start(std::uint32_t startParameter)
{
    const auto work = [&]
    {
        if (startParameter != AdaptFromPresent)
        {
            return EDPDResult::Failure;
        }
        EDPDResult result = EDPDResult::Success;
        m_context.link.change(m_channel,
                              [&](radio::Channel& channel)
                              {
                                  if (channel.modem.locked)
                                  {
                                      channel.dpd.start();
                                  }
                                  else
                                  {
                                      result = NotLocked;
                                  }
                              });
        return result;
    };
    return answer("IDpdControllerSplit.start", work);
}

EDPDResult DpdController::stop()
{
    const auto work = [&]
    {
        m_context.link.change(m_channel, [](radio::Channel& channel) { channel.dpd.stop(); });
        return EDPDResult::Success;
    };
    return answer("IDpdControllerSplit.stop", work);
}

std::uint32_t DpdController::getStartParameter()
{
    const auto planned = m_context.faults.pass("IDpdControllerSplit.getStartParameter", m_channel);
    return planned ? static_cast<std::uint32_t>(planned->code) : AdaptFromPresent;
}

EDPDResult DpdController::getCoeffs(DpdCoeffs* coefficients)
{
    const auto work = [&]
    {
        coefficients->bytes = m_context.link.snapshot(m_channel).state.dpd.coefficients;
        return EDPDResult::Success;
    };
    return answer("IDpdControllerSplit.getCoeffs", work);
}

EDPDResult DpdController::setCoeffs(DpdCoeffs coefficients)
{
    const auto work = [&]
    {
        m_context.link.change(m_channel,
                              [&](radio::Channel& channel) { channel.dpd.coefficients = coefficients.bytes; });
        return EDPDResult::Success;
    };
    return answer("IDpdControllerSplit.setCoeffs", work);
}

} // namespace node::services
