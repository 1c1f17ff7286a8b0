#pragma once

#include <array>
#include <optional>
#include <string>

#include <poll.h>

#include "node/terminal/Descriptor.h"
#include "node/terminal/HeldSignals.h"
#include "node/terminal/Interrupt.h"

namespace node::terminal
{

/// Waits for what happens while a line is typed: a letter on standard input, or an event that is none.
class Keyboard
{
public:
    Keyboard();

    /// A line that is typed, for as long as it is. Forgets a Ctrl-C that came before it, and the letters that were
    /// typed ahead of that. Signals wait, so that the terminal can be left as it was: those that end the program
    /// (SIGHUP, SIGQUIT, SIGTERM) end the line and act when this is gone, Ctrl-Z (SIGTSTP) acts at stop().
    class Line
    {
    public:
        explicit Line(Keyboard& keyboard);
        Line(const Line&) = delete;
        Line& operator=(const Line&) = delete;
        ~Line();

    private:
        Keyboard& m_keyboard;
    };

    enum class Event
    {
        Letter,
        Interrupted, ///< Ctrl-C; letters that came before and were not asked for are dropped
        Resized,     ///< the terminal's size changed
        Stopping,    ///< Ctrl-Z: to be followed by stop()
        Continued,   ///< after a stop that nobody was asked about
        Woken,       ///< by wake()
        End,         ///< standard input has ended, or the program is about to
    };

    /// Waits for the next event. @param letter  what was typed, for Event::Letter
    Event wait(wchar_t& letter);

    /// Stops the program, until somebody lets it go on.
    void stop();

    /// Lets wait() return. May be called from any thread.
    void wake();

private:
    using Sources = std::array<pollfd, 7>; ///< of events, in the order in which they are looked at

    std::optional<Event> takeEvent(const Sources& sources);

    Interrupt m_interrupt;
    HeldSignals m_sizeChanges;
    HeldSignals m_continuations;
    Descriptor m_alarm;                         ///< that wake() rings
    std::string m_bytes;                        ///< that were read and not taken yet
    std::optional<HeldSignals> m_endingSignals; ///< while a line is typed, as the next
    std::optional<HeldSignals> m_stopSignals;
};

} // namespace node::terminal
