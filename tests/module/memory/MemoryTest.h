#pragma once

#include <new>

#include "module/CtStatusTest.h"
#include "module/memory/FailingAllocation.h"

/// The module on a node that runs out of memory.
class MemoryTest : public CtStatusTest
{
protected:
    MemoryTest()
    {
        // Texts that do not fit into a string object, so that nearly every copy allocates.
        modemStatus.text = "modem: in lock, and has been so since yesterday\n";
        capability().AvailableMaxRFOutputPower = {{10, 2400}, {13, 0}, {140, -700}};
        capability().AvailableRSECs = {0, 5, 10};
        capability().DuplexType = "frequency division duplex";
        doubles::topApi().manageXpic.TxMessage = "a message to the other side";
    }

    void SetUp() override
    {
        if (!allocation::areOperatorsOurs())
        {
            GTEST_SKIP() << "a tool replaces operator new";
        }
    }

    /// Gives back what the recording doubles keep, so that every round allocates alike.
    static void forgetRound()
    {
        doubles::calls() = doubles::CallLog();
        doubles::trace().messages = std::vector<doubles::TraceMessage>();
        doubles::trace().discarded = std::string();
    }

    /// Runs `act` with its first allocation failing, then with its second, and so on until it gets through. Each
    /// failure must arrive as std::bad_alloc; `afterFailure` then looks at what `act` left. Answers how many there
    /// were. The last round, which gets through, leaves its traces in the doubles.
    template <typename Act, typename AfterFailure>
    static std::size_t failEachAllocation(allocation::Failing failing, Act act, AfterFailure afterFailure)
    {
        for (std::size_t index = 0;; ++index)
        {
            forgetRound();
            bool thrown = false;
            bool struck = false;
            {
                const allocation::Failure failure(index, failing);
                try
                {
                    act();
                }
                catch (const std::bad_alloc&)
                {
                    thrown = true;
                }
                struck = failure.struck();
            }
            EXPECT_EQ(struck, thrown) << "with allocation " << index << " failing";
            if (!struck)
            {
                return index;
            }
            afterFailure();
            if (HasFailure())
            {
                ADD_FAILURE() << "with allocation " << index << " failing";
                return index;
            }
        }
    }
};
