#include "module/errno/DisturbedErrno.h"

#include <cerrno>
#include <cstdlib>
#include <new>

namespace
{

bool disturbing = false;
int disturbed = 0;

} // namespace

namespace disturbedErrno
{

void begin()
{
    disturbed = 0;
    disturbing = true;
}

void end()
{
    disturbing = false;
}

int allocations()
{
    return disturbed;
}

} // namespace disturbedErrno

void* operator new(std::size_t size)
{
    void* const memory = std::malloc(size != 0 ? size : 1);
    if (memory == nullptr)
    {
        throw std::bad_alloc();
    }
    if (disturbing)
    {
        ++disturbed;
        errno = disturbedErrno::OfAnAllocation;
    }
    return memory;
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
