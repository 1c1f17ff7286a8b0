#pragma once

#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>
#include <termios.h>

/// How large a terminal is.
struct TerminalSize
{
    unsigned short rows = 24;
    unsigned short columns = 80;
};

/// A program at a terminal of its own. What a person sees there is what it wrote and what was typed.
class Terminal
{
public:
    /// Starts a program.
    /// @param words        its path and its arguments
    /// @param environment  all of its variables; none: the test's own
    explicit Terminal(std::vector<std::string> words,
                      std::optional<std::vector<std::string>> environment = std::nullopt, TerminalSize size = {});

    /// Closes the terminal and waits for the program's end.
    ~Terminal();

    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    void type(const std::string& keys) const;

    /// What appears next; "" when the program has ended, or nothing appears for long.
    std::string readSome() const;

    /// What appears up to and with the next `end`, or up to the program's end.
    std::string readUntil(const std::string& end) const;

    /// What appears until the program ends.
    std::string readToTheEnd() const;

    /// Changes the size, of which the program is told.
    void resize(TerminalSize size) const;

    /// How the terminal treats what is typed and printed.
    termios modes() const;

    /// Sends a signal to whoever has the terminal: the program, or what it has started.
    void signalForeground(int signal) const;

    /// Sends the program a signal.
    void signal(int signal) const;

    /// Closes the terminal under the program, as when a window is closed.
    void hangUp();

    /// Waits for the program's end.
    /// @return its exit status; 128 and the signal's number when a signal ended it
    int exitStatus();

private:
    int m_terminal = -1;
    pid_t m_program;
};
