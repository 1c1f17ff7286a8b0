#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace node::radio
{

/// A modulation with a code.
struct Modulation
{
    std::uint32_t constellationSize; ///< points: 2 for BPSK, 4 for 4QAM ... 16384
    std::uint32_t strength;          ///< of the code: 0 strong, 1 plain, 2 light
    bool halfBand;                   ///< in half of the channel; BPSK alone knows it
    double requiredSnir_dB;          ///< that a receiver needs for it

    bool operator==(const Modulation&) const = default;
};

/// A place in modulations().
using ModulationIndex = std::size_t;

/// Every modulation with every code, from the most robust to the fastest; required SNIR rises strictly.
///
/// Assumed: the SNIR at which bit-interleaved coded modulation carries a code of rate 0.82, 0.85 or 0.88, and 1.5 dB.
std::span<const Modulation> modulations();

/// Of a modulation in the whole channel. @param constellationSize, strength  as in the list
ModulationIndex indexOf(std::uint32_t constellationSize, std::uint32_t strength);

/// How far below its peak power a transmitter stays to carry the modulation cleanly. Assumed: 0.6 dB for each bit that
/// a symbol carries above 4QAM, 0.2 dB for each step to a lighter code.
double backOff_dB(const Modulation& modulation);

} // namespace node::radio
