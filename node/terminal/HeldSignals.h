#pragma once

#include <vector>

#include <csignal>

#include "node/terminal/Descriptor.h"

namespace node::terminal
{

/// While one exists, these signals wait: they are taken here, or do what they do once it is gone. Made and used by one
/// thread, the only one of the program that lets signals through.
class HeldSignals
{
public:
    explicit HeldSignals(const std::vector<int>& signals);
    HeldSignals(const HeldSignals&) = delete;
    HeldSignals& operator=(const HeldSignals&) = delete;
    ~HeldSignals();

    /// Takes one that waits. @return whether there was one
    bool take();

    /// Lets those that wait do what they do.
    void act();

    /// Readable while one waits; for poll().
    int descriptor() const;

    /// Whether this signal was held before this was made, and still is when this is gone.
    bool isHeldOutside(int signal) const;

private:
    sigset_t m_signals;
    Descriptor m_descriptor;
    sigset_t m_before{};
};

/// Those of the signals that the program was not started to ignore.
std::vector<int> notIgnored(const std::vector<int>& candidates);

} // namespace node::terminal
