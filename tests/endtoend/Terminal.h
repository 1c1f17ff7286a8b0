#pragma once

#include <string>
#include <vector>

#include <sys/types.h>

/// A program at a terminal of its own. What a person sees there is what it wrote and what was typed.
class Terminal
{
public:
    /// Starts a program. @param words  its path and its arguments
    explicit Terminal(std::vector<std::string> words);

    /// Closes the terminal and waits for the program's end.
    ~Terminal();

    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    void type(const std::string& keys) const;

    /// What appears up to and with the next `end`, or up to the program's end.
    std::string readUntil(const std::string& end) const;

    /// What appears until the program ends.
    std::string readToTheEnd() const;

    /// Waits for the program's end.
    int exitStatus();

private:
    int m_terminal = -1;
    pid_t m_program;
};
