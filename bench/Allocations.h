#pragma once

#include <cstdint>
#include <functional>

namespace bench
{

/// What was taken from the heap, freed since or not.
struct Allocations
{
    std::uint64_t number = 0;
    std::uint64_t bytes = 0;
};

/// What the program and its libraries take from the heap while that runs. Not for two threads at once.
Allocations allocationsOf(const std::function<void()>& act);

} // namespace bench
