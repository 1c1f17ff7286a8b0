#pragma once

#include <cstdint>

#include "node/radio/Modulation.h"

namespace node::radio
{

/// The receiver of one channel: its lock, its adaptive modulation and its count of blocks.
struct Modem
{
    /// Gives up one step of what the SNIR no longer carries: a modulation, or at the lowest one the lock. One step, for
    /// a lower modulation is sent with more power, and the SNIR must be measured anew.
    /// @return whether anything was given up
    bool fall(double snir_dB);

    /// One tick: takes the lock back, or one modulation more, where the SNIR has 1 dB to spare. The 1 dB is assumed.
    void rise(double snir_dB);

    /// One tick's block.
    /// @param errored  whether anything was given up in it
    void countBlock(bool errored);

    const Modulation& modulation() const;

    ModulationIndex lowest = indexOf(4, 0);     ///< that may be used
    ModulationIndex highest = indexOf(4096, 1); ///< that may be used
    ModulationIndex current = highest;
    bool locked = true;
    std::int32_t erroredBlocks = 0;
    /// Errored blocks outside of severely errored seconds, which ITU-T G.826 sets at 30 % of a second's blocks. Known
    /// at the end of each second.
    std::int32_t backgroundBlocks = 0;

private:
    std::int32_t m_blocksOfSecond = 0;
    std::int32_t m_erroredOfSecond = 0;
};

} // namespace node::radio
