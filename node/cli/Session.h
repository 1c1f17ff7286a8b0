#pragma once

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

#include "node/cli/Desk.h"
#include "node/radio/Time.h"

namespace node::cli
{

/// Exit status of the program.
enum class Status : int
{
    Done = 0,
    CommandFailed = 1,
    NotUnderstood = 2,
    NotStarted = 3,
};

/// Carries out commands: what they print goes to one stream, what went wrong to the other.
class Session
{
public:
    /// A clock that moves by itself. Reads the time since any moment.
    using Clock = std::function<radio::Ticks()>;

    /// @param desk   borrowed, as the streams are; outlives the session
    /// @param clock  lets the link's time go on before each command; without one, time moves when it is told to
    Session(Desk& desk, std::ostream& output, std::ostream& errors, Clock clock = nullptr);

    /// Carries out one command.
    /// @param words  the command's name and its arguments
    /// @param place  where the words stand, to begin an error with: "" or "line 3: "
    Status carryOut(const std::vector<std::string>& words, const std::string& place = "");

    /// Where lines come from: a file or pipe, whose first failing line ends the session, or a person at a prompt.
    enum class Lines
    {
        FromScript,
        AtPrompt,
    };

    /// Carries out line after line until the input ends or a line says "exit".
    Status runLines(std::istream& input, Lines kind);

private:
    /// Carries out `step`; words what it throws.
    Status guard(const std::string& place, const std::function<Status()>& step);
    Status call(const std::vector<std::string>& words, const std::string& place);
    void keepTime();
    void print(const std::string& text);
    bool prompt(bool atPrompt);

    Desk& m_desk;
    std::ostream& m_output;
    std::ostream& m_errors;
    Clock m_clock;
    std::string m_command;      ///< that was called last
    radio::Ticks m_lastTime{0}; ///< of the clock
    bool m_left = false;        ///< "exit" was said
    bool m_lineIsOpen = false;  ///< what was printed last did not end its line
};

} // namespace node::cli
