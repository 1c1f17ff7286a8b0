#include "node/radio/Pps.h"

#include <cmath>

namespace node::radio
{

namespace
{

constexpr Ticks CoarseTime = std::chrono::seconds(10);
constexpr Ticks FineTime = std::chrono::seconds(30);
constexpr Ticks AnswerTime = std::chrono::seconds(5);

constexpr double UncalibratedResolution_ns = 1000.0;

double toMultipleOf(double step, double value)
{
    return std::round(value / step) * step;
}

} // namespace

bool Pps::running() const
{
    return m_step != Step::None;
}

void Pps::fail(PpsFailure reason)
{
    calibration = PpsCalibration::Failed;
    failure = reason;
    coarseDone = coarseDone && reason != PpsFailure::SlaveLinkLoss;
    m_step = Step::None;
}

void Pps::calibrate(PpsRequest request, std::uint16_t time_ns, const PpsSurroundings& surroundings)
{
    failure = PpsFailure::None;
    givenTime_ns.reset();
    m_step = Step::None;
    m_automatic = request == PpsRequest::Auto;
    m_unanswered = Ticks(0);
    m_modulation = surroundings.modulation;
    switch (request)
    {
    case PpsRequest::Manual:
        calibration = PpsCalibration::Manual;
        givenTime_ns = time_ns;
        return;
    case PpsRequest::Fine:
        if (!coarseDone)
        {
            fail(PpsFailure::CoarseFirst);
            return;
        }
        calibration = PpsCalibration::FineNotCompleted;
        m_step = Step::Fine;
        m_left = FineTime;
        break;
    case PpsRequest::Coarse:
    case PpsRequest::Auto:
        calibration = PpsCalibration::CoarseNotCompleted;
        coarseDone = false;
        m_step = Step::Coarse;
        m_left = CoarseTime;
        break;
    }
    fall(surroundings);
}

void Pps::fall(const PpsSurroundings& surroundings)
{
    if (!surroundings.locked && (running() || calibration == PpsCalibration::Auto))
    {
        fail(PpsFailure::SlaveLinkLoss);
    }
    else if (running() && surroundings.modulation != m_modulation)
    {
        fail(PpsFailure::ModulationChange);
    }
}

void Pps::advance(const PpsSurroundings& surroundings)
{
    if (!running())
    {
        return;
    }
    if (!surroundings.masterAnswers)
    {
        m_unanswered += Ticks(1);
        if (m_unanswered == AnswerTime)
        {
            fail(PpsFailure::NoResponseFromMaster);
        }
        return;
    }
    m_unanswered = Ticks(0);
    m_left -= Ticks(1);
    if (m_left > Ticks(0))
    {
        return;
    }
    if (m_step == Step::Fine)
    {
        calibration = m_automatic ? PpsCalibration::Auto : PpsCalibration::Manual;
        m_step = Step::None;
        return;
    }
    calibration = PpsCalibration::FineNotCompleted;
    coarseDone = true;
    m_step = m_automatic ? Step::Fine : Step::None;
    m_left = FineTime;
}

double Pps::resolve_ns(double travelTime_ns, double symbolTime_ns) const
{
    switch (calibration)
    {
    case PpsCalibration::Auto:
    case PpsCalibration::Manual:
        return givenTime_ns ? *givenTime_ns : toMultipleOf(1.0, travelTime_ns);
    case PpsCalibration::FineNotCompleted:
        return toMultipleOf(symbolTime_ns, travelTime_ns);
    case PpsCalibration::Never:
    case PpsCalibration::CoarseNotCompleted:
    case PpsCalibration::Failed:
        break;
    }
    return toMultipleOf(UncalibratedResolution_ns, travelTime_ns);
}

} // namespace node::radio
