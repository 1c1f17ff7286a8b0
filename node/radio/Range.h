#pragma once

/// Which values the link can be given. Whoever reads a value from a user holds it against these.
namespace node::radio
{

template <typename Number>
struct Range
{
    /// False for what is no number, too.
    constexpr bool contains(Number value) const
    {
        return value >= lowest && value <= highest;
    }

    Number lowest;
    Number highest;
};

inline constexpr double LowestPower_dBm = -2.0; ///< that a transmitter can be set to, assumed
inline constexpr Range<double> RainRate_mm_per_h{0.0, 250.0};
inline constexpr Range<double> FadeDepth_dB{0.0, 100.0};
inline constexpr Range<double> Distance_km{0.1, 100.0};

} // namespace node::radio
