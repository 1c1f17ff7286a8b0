#include "node/terminal/Interrupt.h"

#include <cerrno>
#include <system_error>

#include <poll.h>
#include <sys/signalfd.h>
#include <unistd.h>

namespace node::terminal
{

Interrupt::Interrupt()
{
    sigset_t interrupt;
    sigemptyset(&interrupt);
    sigaddset(&interrupt, SIGINT);
    m_signals = signalfd(-1, &interrupt, SFD_NONBLOCK | SFD_CLOEXEC);
    if (m_signals < 0)
    {
        throw std::system_error(errno, std::generic_category(), "signalfd");
    }
    pthread_sigmask(SIG_BLOCK, &interrupt, &m_before);
}

Interrupt::~Interrupt()
{
    // One that came too late to be told is dropped: what it was meant for has ended.
    happened();
    pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
    close(m_signals);
}

bool Interrupt::happened()
{
    return happensWithin(std::chrono::milliseconds(0));
}

bool Interrupt::happensWithin(std::chrono::milliseconds time)
{
    pollfd ready{m_signals, POLLIN, 0};
    if (poll(&ready, 1, static_cast<int>(time.count())) != 1)
    {
        return false;
    }
    signalfd_siginfo signal{};
    return read(m_signals, &signal, sizeof signal) == sizeof signal;
}

int Interrupt::descriptor() const
{
    return m_signals;
}

} // namespace node::terminal
