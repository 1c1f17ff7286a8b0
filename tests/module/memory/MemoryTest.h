#pragma once

#include "allocation/MemoryRounds.h"
#include "module/CtStatusTest.h"

/// The module on a node that runs out of memory.
class MemoryTest : public MemoryRounds<CtStatusTest>
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

    /// Gives back what the recording doubles keep, so that every round allocates alike.
    static void forgetRound()
    {
        doubles::calls() = doubles::CallLog();
        doubles::trace().messages = std::vector<doubles::TraceMessage>();
        doubles::trace().discarded = std::string();
    }

    /// As the base's. The last round, which gets through, leaves its traces in the doubles.
    template <typename Act, typename AfterFailure>
    static std::size_t failEachAllocation(allocation::Failing failing, const Act& act, const AfterFailure& afterFailure)
    {
        return MemoryRounds::failEachAllocation(failing, act, afterFailure, forgetRound);
    }
};
