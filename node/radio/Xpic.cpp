#include "node/radio/Xpic.h"

#include <cmath>

namespace node::radio
{

namespace
{

constexpr double Step_Hz = 2e3; // a tick

/// How an acquisition goes, by its mode.
struct Plan
{
    double reach_Hz; ///< on either side of where it looks
    double step_Hz;
    std::int64_t ticks;
};

constexpr Plan FullSweep = {100e3, Step_Hz, 100};
constexpr Plan NarrowSweep = {20e3, Step_Hz, 20};
constexpr Plan Direct = {0, 0, 10};
constexpr double DirectTolerance_Hz = 1e3;

const Plan& planOf(XpicAcquireMode mode)
{
    switch (mode)
    {
    case XpicAcquireMode::FullSweep:
        return FullSweep;
    case XpicAcquireMode::NarrowSweep:
        return NarrowSweep;
    case XpicAcquireMode::Direct:
        break;
    }
    return Direct;
}

} // namespace

void Xpic::find(double carrier_Hz)
{
    state = XpicState::Acquired;
    position_Hz = carrier_Hz;
    lastCarrier_Hz = carrier_Hz;
}

void Xpic::lose()
{
    state = XpicState::Lost;
    if (reacquires)
    {
        startAcquisition();
    }
}

void Xpic::beginAcquired(double carrier_Hz)
{
    if (std::abs(carrier_Hz) > FullSweep.reach_Hz)
    {
        lose();
        return;
    }
    find(carrier_Hz);
}

void Xpic::startAcquisition()
{
    state = XpicState::Acquiring;
    const double centre_Hz = mode == XpicAcquireMode::FullSweep ? 0.0 : lastCarrier_Hz;
    m_begin_Hz = centre_Hz - planOf(mode).reach_Hz;
    m_ticks = 0;
    position_Hz = m_begin_Hz;
}

bool Xpic::fall(const XpicSurroundings& surroundings)
{
    if (state != XpicState::Acquired || surroundings.complete())
    {
        return false;
    }
    lose();
    return true;
}

void Xpic::acquire(const XpicSurroundings& surroundings)
{
    if (state != XpicState::Acquiring)
    {
        return;
    }
    const Plan& plan = planOf(mode);
    ++m_ticks;
    const double before_Hz = position_Hz;
    position_Hz = m_begin_Hz + static_cast<double>(m_ticks) * plan.step_Hz;
    const bool atEnd = m_ticks == plan.ticks;
    const double carrier_Hz = surroundings.slaveCarrierOffset_Hz;
    const bool met = mode == XpicAcquireMode::Direct ? atEnd && std::abs(carrier_Hz - position_Hz) <= DirectTolerance_Hz
                                                     : before_Hz <= carrier_Hz && carrier_Hz <= position_Hz;
    if (met && !slaveMuted && surroundings.complete())
    {
        find(carrier_Hz);
    }
    else if (atEnd && retries)
    {
        startAcquisition();
    }
    else if (atEnd)
    {
        state = XpicState::Failed;
    }
}

} // namespace node::radio
