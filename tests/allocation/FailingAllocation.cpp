#include "allocation/FailingAllocation.h"

#include <cstdlib>
#include <new>

namespace
{

bool armed = false;
bool hasStruck = false;
allocation::Failing failureKind = allocation::Failing::Once;
std::size_t leftToSucceed = 0;
std::size_t inUse = 0;

bool strikes()
{
    if (!armed)
    {
        return false;
    }
    if (leftToSucceed > 0)
    {
        --leftToSucceed;
        return false;
    }
    armed = failureKind == allocation::Failing::FromThenOn;
    hasStruck = true;
    return true;
}

void* counted(void* memory)
{
    inUse += memory != nullptr ? 1 : 0;
    return memory;
}

/// Null when there is no memory.
void* obtain(std::size_t size) noexcept
{
    return strikes() ? nullptr : counted(std::malloc(size != 0 ? size : 1));
}

void* obtain(std::size_t size, std::align_val_t alignment) noexcept
{
    const auto unit = static_cast<std::size_t>(alignment);
    const auto rounded = (size + unit - 1) / unit * unit;
    return strikes() ? nullptr : counted(std::aligned_alloc(unit, rounded != 0 ? rounded : unit));
}

void* orThrow(void* memory)
{
    if (memory == nullptr)
    {
        throw std::bad_alloc();
    }
    return memory;
}

void release(void* memory) noexcept
{
    inUse -= memory != nullptr ? 1 : 0;
    std::free(memory);
}

} // namespace

namespace allocation
{

Failure::Failure(std::size_t index, Failing failing)
{
    leftToSucceed = index;
    failureKind = failing;
    hasStruck = false;
    armed = true;
}

Failure::~Failure()
{
    armed = false;
}

bool Failure::struck() const
{
    return hasStruck;
}

std::size_t blocksInUse()
{
    return inUse;
}

bool areOperatorsOurs()
{
    const std::size_t before = inUse;
    void* const memory = ::operator new(1);
    const bool ours = inUse == before + 1;
    ::operator delete(memory);
    return ours;
}

} // namespace allocation

void* operator new(std::size_t size)
{
    return orThrow(obtain(size));
}

void* operator new[](std::size_t size)
{
    return orThrow(obtain(size));
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return obtain(size);
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return obtain(size);
}

void* operator new(std::size_t size, std::align_val_t alignment)
{
    return orThrow(obtain(size, alignment));
}

void* operator new[](std::size_t size, std::align_val_t alignment)
{
    return orThrow(obtain(size, alignment));
}

void* operator new(std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept
{
    return obtain(size, alignment);
}

void* operator new[](std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept
{
    return obtain(size, alignment);
}

void operator delete(void* memory) noexcept
{
    release(memory);
}

void operator delete[](void* memory) noexcept
{
    release(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    release(memory);
}

void operator delete[](void* memory, std::size_t) noexcept
{
    release(memory);
}

void operator delete(void* memory, const std::nothrow_t&) noexcept
{
    release(memory);
}

void operator delete[](void* memory, const std::nothrow_t&) noexcept
{
    release(memory);
}

void operator delete(void* memory, std::align_val_t) noexcept
{
    release(memory);
}

void operator delete[](void* memory, std::align_val_t) noexcept
{
    release(memory);
}

void operator delete(void* memory, std::size_t, std::align_val_t) noexcept
{
    release(memory);
}

void operator delete[](void* memory, std::size_t, std::align_val_t) noexcept
{
    release(memory);
}

void operator delete(void* memory, std::align_val_t, const std::nothrow_t&) noexcept
{
    release(memory);
}

void operator delete[](void* memory, std::align_val_t, const std::nothrow_t&) noexcept
{
    release(memory);
}
