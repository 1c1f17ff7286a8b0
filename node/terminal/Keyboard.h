#pragma once

#include <string>

#include "node/terminal/Descriptor.h"
#include "node/terminal/Interrupt.h"

namespace node::terminal
{

/// Notes that the terminal's size changes (SIGWINCH). Made and used as Interrupt is.
class SizeChange
{
public:
    SizeChange();
    SizeChange(const SizeChange&) = delete;
    SizeChange& operator=(const SizeChange&) = delete;
    ~SizeChange();

    /// Whether the size changed since the last call.
    bool happened();

    /// Readable while a change is noted that happened() has not told.
    int descriptor() const;

private:
    sigset_t m_before{};
    Descriptor m_signals;
};

/// Waits for what happens while a line is typed: a letter on standard input, or an event that is none.
class Keyboard
{
public:
    Keyboard();

    enum class Event
    {
        Letter,
        Interrupted, ///< Ctrl-C; letters that came before and were not asked for are dropped
        Resized,     ///< the terminal's size changed
        Woken,       ///< by wake()
        End,         ///< standard input has ended
    };

    /// Waits for the next event. @param letter  what was typed, for Event::Letter
    Event wait(wchar_t& letter);

    /// Forgets a Ctrl-C that came before the line, and the letters that were typed ahead of it.
    void dropInterrupted();

    /// Lets wait() return. May be called from any thread.
    void wake();

private:
    /// @return false at the end of standard input
    bool readMore();

    Interrupt m_interrupt;
    SizeChange m_sizeChange;
    Descriptor m_alarm;  ///< that wake() rings
    std::string m_bytes; ///< that were read and not taken yet
};

} // namespace node::terminal
