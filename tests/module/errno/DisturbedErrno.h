#pragma once

/// An allocation may change errno even when it succeeds. In this program it does, for a while.
namespace disturbedErrno
{

// No system has these error numbers.
inline constexpr int OfTheCaller = 4711;
inline constexpr int OfAnAllocation = 4712;

/// From now on every operator new leaves `OfAnAllocation` in errno.
void begin();
void end();

/// How many allocations did so since the last begin().
int allocations();

} // namespace disturbedErrno
