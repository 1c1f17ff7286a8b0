#include "node/terminal/HeldSignals.h"

#include <cerrno>
#include <system_error>

#include <sys/signalfd.h>

namespace node::terminal
{

namespace
{

sigset_t setOf(const std::vector<int>& signals)
{
    sigset_t set{};
    sigemptyset(&set);
    for (const int signal : signals)
    {
        sigaddset(&set, signal);
    }
    return set;
}

} // namespace

HeldSignals::HeldSignals(const std::vector<int>& signals)
    : m_signals(setOf(signals)), m_descriptor(signalfd(-1, &m_signals, SFD_NONBLOCK | SFD_CLOEXEC))
{
    if (!m_descriptor.isOpen())
    {
        throw std::system_error(errno, std::generic_category(), "signalfd");
    }
    pthread_sigmask(SIG_BLOCK, &m_signals, &m_before);
}

HeldSignals::~HeldSignals()
{
    pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
}

bool HeldSignals::take()
{
    signalfd_siginfo signal{};
    return read(m_descriptor.get(), &signal, sizeof signal) == sizeof signal;
}

void HeldSignals::act()
{
    pthread_sigmask(SIG_UNBLOCK, &m_signals, nullptr);
    pthread_sigmask(SIG_BLOCK, &m_signals, nullptr);
}

int HeldSignals::descriptor() const
{
    return m_descriptor.get();
}

bool HeldSignals::isHeldOutside(int signal) const
{
    return sigismember(&m_before, signal) == 1;
}

std::vector<int> notIgnored(const std::vector<int>& candidates)
{
    std::vector<int> signals;
    for (const int signal : candidates)
    {
        struct sigaction action = {};
        if (sigaction(signal, nullptr, &action) == 0 && action.sa_handler != SIG_IGN)
        {
            signals.push_back(signal);
        }
    }
    return signals;
}

} // namespace node::terminal
