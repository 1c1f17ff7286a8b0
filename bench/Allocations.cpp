#include "bench/Allocations.h"

#include <cstdlib>
#include <new>

namespace
{

// Looked at by each allocation, and counted in only while somebody asks: what is timed pays for one look.
bench::Allocations* counted = nullptr;

} // namespace

bench::Allocations bench::allocationsOf(const std::function<void()>& act)
{
    Allocations allocations;
    counted = &allocations;
    act();
    counted = nullptr;
    return allocations;
}

// The forms for arrays, and those that do not throw, end in these. Nothing that is measured is over-aligned.

void* operator new(std::size_t size)
{
    if (counted != nullptr)
    {
        ++counted->number;
        counted->bytes += size;
    }
    if (void* const memory = std::malloc(size == 0 ? 1 : size))
    {
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}
