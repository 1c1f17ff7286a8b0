#include "node/radio/Modulation.h"

#include <algorithm>
#include <bit>

namespace node::radio
{

double backOff_dB(const Modulation& modulation)
{
    const int bitsAbove4Qam = std::max(0, static_cast<int>(std::bit_width(modulation.constellationSize)) - 3);
    return 0.6 * bitsAbove4Qam + 0.2 * modulation.strength;
}

} // namespace node::radio
