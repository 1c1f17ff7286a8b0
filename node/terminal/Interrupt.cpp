#include "node/terminal/Interrupt.h"

#include <poll.h>

namespace node::terminal
{

// Held even where the program was started to ignore it, as a shell's script does for what runs in the background: who
// sends it to such a program wants its watch or its long command to end.
Interrupt::Interrupt() : m_signals({SIGINT})
{
}

Interrupt::~Interrupt()
{
    // One that came too late to be told is dropped: what it was meant for has ended. Not so inside of another one,
    // whose work goes on.
    if (!m_signals.isHeldOutside(SIGINT))
    {
        m_signals.take();
    }
}

bool Interrupt::happened()
{
    return m_signals.take();
}

bool Interrupt::happensWithin(std::chrono::milliseconds time)
{
    pollfd ready{m_signals.descriptor(), POLLIN, 0};
    return poll(&ready, 1, static_cast<int>(time.count())) == 1 && happened();
}

int Interrupt::descriptor() const
{
    return m_signals.descriptor();
}

} // namespace node::terminal
