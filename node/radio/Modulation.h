#pragma once

#include <cstdint>

namespace node::radio
{

struct Modulation
{
    std::uint32_t constellationSize = 4096; ///< points: 2 for BPSK, 4 for 4QAM ... 16384
    std::uint32_t strength = 1;             ///< of the code: 0 strong, 1 plain, 2 light
};

/// How far below its peak power a transmitter stays to carry the modulation cleanly. Assumed: 0.6 dB for each bit that
/// a symbol carries above 4QAM, 0.2 dB for each step to a lighter code.
double backOff_dB(const Modulation& modulation);

} // namespace node::radio
