#pragma once

#include <cmath>

namespace node::radio
{

/// A ratio of powers, and the same in decibels.
inline double linear(double decibels)
{
    return std::pow(10.0, decibels / 10.0);
}

inline double decibels(double ratio)
{
    return 10.0 * std::log10(ratio);
}

} // namespace node::radio
