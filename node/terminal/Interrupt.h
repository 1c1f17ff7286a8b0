#pragma once

#include <chrono>

#include "node/terminal/HeldSignals.h"

namespace node::terminal
{

/// While one exists, Ctrl-C (SIGINT) is noted here instead of ending the program. Made and used as HeldSignals are. One
/// may exist inside of another: each Ctrl-C is told by the first that is asked.
class Interrupt
{
public:
    Interrupt();
    Interrupt(const Interrupt&) = delete;
    Interrupt& operator=(const Interrupt&) = delete;
    ~Interrupt();

    /// Whether Ctrl-C came since the last call.
    bool happened();

    /// Waits that long, or until Ctrl-C comes.
    /// @return whether it came
    bool happensWithin(std::chrono::milliseconds time);

    /// Readable while an interrupt is noted that happened() has not told; for poll().
    int descriptor() const;

private:
    HeldSignals m_signals;
};

} // namespace node::terminal
