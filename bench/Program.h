#pragma once

#include <string>
#include <vector>

namespace bench
{

/// Runs a program to its end. It reads its input from a pipe.
/// @param words   its path, and its arguments
/// @param output  the file that it prints to
/// @throw std::runtime_error  unless it starts, and ends with status 0
void run(std::vector<std::string> words, const std::string& input, const std::string& output = "/dev/null");

/// What a program did.
struct Done
{
    std::string output;
    long memory_KiB; ///< the most that it held
};

/// Runs a program as above, and keeps what it printed.
Done ask(std::vector<std::string> words, const std::string& input);

} // namespace bench
