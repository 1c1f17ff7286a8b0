#pragma once

#include <array>
#include <cstdio>
#include <string>

#include <sys/wait.h>

/// How a command of the shell ended, and what it wrote.
struct Ended
{
    int status = -1;
    std::string output; ///< on standard output and standard error
};

/// Lets the shell carry out a command.
inline Ended inShell(const std::string& command)
{
    Ended ended;
    std::FILE* const pipe = popen(("exec 2>&1; " + command).c_str(), "r");
    std::array<char, 4096> piece{};
    for (std::size_t length = 0; (length = std::fread(piece.data(), 1, piece.size(), pipe)) > 0;)
    {
        ended.output.append(piece.data(), length);
    }
    ended.status = WEXITSTATUS(pclose(pipe));
    return ended;
}

/// The word in the shell's quotation marks.
inline std::string shellWord(const std::string& word)
{
    std::string quoted = "'";
    for (const char letter : word)
    {
        quoted += letter == '\'' ? "'\\''" : std::string(1, letter);
    }
    return quoted + "'";
}
