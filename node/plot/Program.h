#pragma once

#include <string>
#include <vector>

namespace node::plot
{

/// How a program ended, and what it wrote.
struct Ended
{
    int status = 0; ///< as waitpid() tells it
    std::string output;
    std::string errors;
};

/// Runs a program to its end, without a shell.
/// @param words      its name, to be found in PATH, and its arguments
/// @param variables  its environment: "NAME=value"
/// @param input      what it reads from standard input
/// @throws std::system_error when it does not start
Ended runProgram(std::vector<std::string> words, std::vector<std::string> variables, const std::string& input);

} // namespace node::plot
