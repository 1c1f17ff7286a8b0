#pragma once

#include <chrono>
#include <cstdint>

namespace node::radio
{

/// Node time: a count of tenths of a second. Nothing on the link happens between two of them.
using Ticks = std::chrono::duration<std::int64_t, std::deci>;

inline double seconds(Ticks time)
{
    return static_cast<double>(time.count()) / Ticks::period::den;
}

} // namespace node::radio
