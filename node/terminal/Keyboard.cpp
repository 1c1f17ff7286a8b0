#include "node/terminal/Keyboard.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <system_error>

#include <poll.h>
#include <sys/eventfd.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include "node/terminal/Letters.h"

namespace node::terminal
{

namespace
{

sigset_t sizeChanges()
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGWINCH);
    return signals;
}

int opened(int descriptor, const char* what)
{
    if (descriptor < 0)
    {
        throw std::system_error(errno, std::generic_category(), what);
    }
    return descriptor;
}

int openSignals(const sigset_t& signals)
{
    return opened(signalfd(-1, &signals, SFD_NONBLOCK | SFD_CLOEXEC), "signalfd");
}

} // namespace

SizeChange::SizeChange() : m_signals(openSignals(sizeChanges()))
{
    const sigset_t signals = sizeChanges();
    pthread_sigmask(SIG_BLOCK, &signals, &m_before);
}

SizeChange::~SizeChange()
{
    pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
}

bool SizeChange::happened()
{
    signalfd_siginfo signal{};
    return read(m_signals.get(), &signal, sizeof signal) == sizeof signal;
}

int SizeChange::descriptor() const
{
    return m_signals.get();
}

Keyboard::Keyboard() : m_alarm(opened(eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC), "eventfd"))
{
}

Keyboard::Event Keyboard::wait(wchar_t& letter)
{
    for (;;)
    {
        const Letter next = firstLetter(m_bytes);
        std::array<pollfd, 4> ready{{{m_interrupt.descriptor(), POLLIN, 0},
                                     {m_sizeChange.descriptor(), POLLIN, 0},
                                     {m_alarm.get(), POLLIN, 0},
                                     {STDIN_FILENO, POLLIN, 0}}};
        if (poll(ready.data(), ready.size(), next.size > 0 ? 0 : -1) < 0)
        {
            continue; // a signal came that is not ours
        }
        // What is no letter comes first: a long paste does not hold up Ctrl-C.
        if (ready[0].revents != 0 && m_interrupt.happened())
        {
            m_bytes.clear();
            return Event::Interrupted;
        }
        if (ready[1].revents != 0 && m_sizeChange.happened())
        {
            return Event::Resized;
        }
        eventfd_t rings = 0;
        if (ready[2].revents != 0 && eventfd_read(m_alarm.get(), &rings) == 0)
        {
            return Event::Woken;
        }
        if (next.size > 0)
        {
            m_bytes.erase(0, next.size);
            letter = next.value;
            return Event::Letter;
        }
        if (ready[3].revents != 0 && !readMore())
        {
            return Event::End;
        }
    }
}

void Keyboard::dropInterrupted()
{
    if (m_interrupt.happened())
    {
        m_bytes.clear();
    }
}

void Keyboard::wake()
{
    eventfd_write(m_alarm.get(), 1);
}

bool Keyboard::readMore()
{
    std::array<char, 4096> bytes{};
    const ssize_t size = read(STDIN_FILENO, bytes.data(), bytes.size());
    if (size < 0 && (errno == EINTR || errno == EAGAIN))
    {
        return true;
    }
    m_bytes.append(bytes.data(), static_cast<std::size_t>(size > 0 ? size : 0));
    return size > 0;
}

} // namespace node::terminal
