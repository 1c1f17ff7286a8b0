#pragma once

#include <array>
#include <cstdint>

#include "node/radio/Time.h"

namespace node::radio
{

/// Digital predistortion (DPD) of one channel. Running, it adapts for 10 s from no effect to its full one, an
/// assumption; stopped, it has none at once. Coefficients stay as they were written.
struct Dpd
{
    void start();
    void stop();

    /// One tick.
    void adapt();

    /// SNIR that the power amplifier lets through, -20 lg of its error vector magnitude: 35 dB without predistortion,
    /// 45 dB with an adapted one, both assumed.
    double floor_dB() const;

    static constexpr Ticks AdaptationTime = std::chrono::seconds(10);

    bool running = true;
    Ticks adapted = AdaptationTime; ///< how long it did, up to the adaptation time
    std::array<std::uint8_t, 20> coefficients{};
};

} // namespace node::radio
