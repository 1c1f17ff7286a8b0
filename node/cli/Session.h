#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "radio/IRlbspKelApi.h"

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

/// Carries out commands: their reports go to one stream as the module wrote them, what went wrong to the other.
class Session
{
public:
    /// @param commands  borrowed, as the streams are; outlives the session
    Session(IRlbspKelApi::KelDebugCmdCallback& commands, std::ostream& output, std::ostream& errors);

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
    Status call(const std::vector<std::string>& words, const std::string& place);
    void print(const std::string& text);
    bool prompt(bool atPrompt);

    IRlbspKelApi::KelDebugCmdCallback& m_commands;
    std::ostream& m_output;
    std::ostream& m_errors;
    bool m_left = false;       ///< "exit" was said
    bool m_lineIsOpen = false; ///< what was printed last did not end its line
};

} // namespace node::cli
