#pragma once

#include <cstddef>
#include <new>

#include <gtest/gtest.h>

#include "allocation/FailingAllocation.h"

/// A test in a program that runs out of memory.
template <typename Test>
class MemoryRounds : public Test
{
protected:
    void SetUp() override
    {
        if (!allocation::areOperatorsOurs())
        {
            GTEST_SKIP() << "a tool replaces operator new";
        }
    }

    /// Runs `act` with its first allocation failing, then with its second, and so on until it gets through. Each
    /// failure must arrive as std::bad_alloc; `afterFailure` then looks at what `act` left. `prepare` runs before each.
    /// @return how many failures there were
    template <typename Act, typename AfterFailure>
    static std::size_t failEachAllocation(
        allocation::Failing failing, const Act& act, const AfterFailure& afterFailure, void (*prepare)() = [] {})
    {
        constexpr std::size_t Enough = 10'000;
        for (std::size_t index = 0; index < Enough; ++index)
        {
            prepare();
            if (getsThrough(index, failing, act))
            {
                return index;
            }
            afterFailure();
            if (Test::HasFailure())
            {
                ADD_FAILURE() << "with allocation " << index << " failing";
                return index;
            }
        }
        ADD_FAILURE() << "did not get through";
        return Enough;
    }

private:
    template <typename Act>
    static bool getsThrough(std::size_t index, allocation::Failing failing, const Act& act)
    {
        bool thrown = false;
        const allocation::Failure failure(index, failing);
        try
        {
            act();
        }
        catch (const std::bad_alloc&)
        {
            thrown = true;
        }
        EXPECT_EQ(failure.struck(), thrown) << "with allocation " << index << " failing";
        return !failure.struck();
    }
};
