#include "node/radio/Dpd.h"

#include <algorithm>

namespace node::radio
{

namespace
{

constexpr double FloorWithout_dB = 35.0;
constexpr double FloorWith_dB = 45.0;

} // namespace

void Dpd::start()
{
    running = true;
}

void Dpd::stop()
{
    running = false;
    adapted = Ticks(0);
}

void Dpd::adapt()
{
    if (running)
    {
        adapted = std::min(adapted + Ticks(1), AdaptationTime);
    }
}

double Dpd::floor_dB() const
{
    const double share = static_cast<double>(adapted.count()) / static_cast<double>(AdaptationTime.count());
    return FloorWithout_dB + (FloorWith_dB - FloorWithout_dB) * share;
}

} // namespace node::radio
