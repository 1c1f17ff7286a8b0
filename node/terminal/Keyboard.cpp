#include "node/terminal/Keyboard.h"

#include <cerrno>
#include <csignal>
#include <system_error>

#include <sys/eventfd.h>
#include <unistd.h>

#include "node/terminal/Letters.h"
#include "node/terminal/StandardInput.h"

namespace node::terminal
{

namespace
{

Descriptor openAlarm()
{
    Descriptor alarm(eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC));
    if (!alarm.isOpen())
    {
        throw std::system_error(errno, std::generic_category(), "eventfd");
    }
    return alarm;
}

} // namespace

Keyboard::Line::Line(Keyboard& keyboard) : m_keyboard(keyboard)
{
    if (m_keyboard.m_interrupt.happened())
    {
        m_keyboard.m_bytes.clear();
    }
    m_keyboard.m_endingSignals.emplace(notIgnored({SIGHUP, SIGQUIT, SIGTERM}));
    m_keyboard.m_stopSignals.emplace(notIgnored({SIGTSTP}));
}

Keyboard::Line::~Line()
{
    m_keyboard.m_stopSignals.reset();
    m_keyboard.m_endingSignals.reset();
}

Keyboard::Keyboard() : m_sizeChanges({SIGWINCH}), m_continuations({SIGCONT}), m_alarm(openAlarm())
{
}

Keyboard::Event Keyboard::wait(wchar_t& letter)
{
    const auto held = [](const std::optional<HeldSignals>& signals) { return signals ? signals->descriptor() : -1; };
    for (;;)
    {
        const Letter next = firstLetter(m_bytes);
        Sources sources{{{held(m_endingSignals), POLLIN, 0},
                         {m_interrupt.descriptor(), POLLIN, 0},
                         {held(m_stopSignals), POLLIN, 0},
                         {m_continuations.descriptor(), POLLIN, 0},
                         {m_sizeChanges.descriptor(), POLLIN, 0},
                         {m_alarm.get(), POLLIN, 0},
                         {STDIN_FILENO, POLLIN, 0}}};
        if (poll(sources.data(), sources.size(), next.size > 0 ? 0 : -1) < 0)
        {
            continue; // a signal came that is not ours
        }
        // What is no letter comes first: a long paste does not hold up Ctrl-C.
        if (const std::optional<Event> event = takeEvent(sources))
        {
            return *event;
        }
        if (next.size > 0)
        {
            m_bytes.erase(0, next.size);
            letter = next.value;
            return Event::Letter;
        }
        if (sources[6].revents != 0 && !readInput(m_bytes))
        {
            return Event::End;
        }
    }
}

std::optional<Keyboard::Event> Keyboard::takeEvent(const Sources& sources)
{
    if (sources[0].revents != 0)
    {
        return Event::End; // the signal waits, and ends the program when the line has been left
    }
    if (sources[1].revents != 0 && m_interrupt.happened())
    {
        m_bytes.clear();
        return Event::Interrupted;
    }
    if (sources[2].revents != 0)
    {
        return Event::Stopping;
    }
    if (sources[3].revents != 0 && m_continuations.take())
    {
        return Event::Continued;
    }
    if (sources[4].revents != 0 && m_sizeChanges.take())
    {
        return Event::Resized;
    }
    eventfd_t rings = 0;
    if (sources[5].revents != 0 && eventfd_read(m_alarm.get(), &rings) == 0)
    {
        return Event::Woken;
    }
    return std::nullopt;
}

void Keyboard::stop()
{
    m_stopSignals->act();
    m_continuations.take();
}

void Keyboard::wake()
{
    eventfd_write(m_alarm.get(), 1);
}

} // namespace node::terminal
