#pragma once

#include <chrono>

#include <csignal>

namespace node::terminal
{

/// While one exists, Ctrl-C (SIGINT) is noted here instead of ending the program. Made and used by one thread, the only
/// one of the program that lets signals through.
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
    sigset_t m_before{};
    int m_signals = -1;
};

} // namespace node::terminal
