#pragma once

#include <string>
#include <vector>

/// How a run of the program ended, and what it wrote.
struct Finished
{
    int status = -1; ///< exit status; 128 and the signal's number when a signal ended it
    std::string output;
    std::string errors;
    long memory_KiB = 0; ///< most that it ever held
};

/// A run of kel-node with these arguments.
struct Run
{
    std::vector<std::string> arguments;
    std::string input{};      ///< what it reads from a pipe
    std::string inputFile{};  ///< what it reads instead, where there is one
    std::string outputFile{}; ///< where standard output goes instead of into Finished; "-" closes it
    std::vector<std::string> environment{};
};

/// Runs the program to its end.
Finished finish(const Run& run);

/// Runs one command, given as one line.
Finished runCommand(const std::string& line);

/// Runs the lines of a script.
Finished runScript(const std::string& lines);

/// Runs the lines of a script on the node of a scenario.
Finished runScenario(const std::string& scenario, const std::string& lines);

/// The texts as a program is given them, with a null behind the last. They point into `texts`.
std::vector<char*> pointersTo(std::vector<std::string>& texts);

/// The trace's line of a failure that a function of the module traces, with "LINE" for the number of its source line.
/// @param time  of the node
std::string traced(const std::string& function, const std::string& text, const std::string& time = "0:00:00.0");

/// The text with "LINE" for the number of each source line, which moves as the source grows.
std::string withoutSourceLines(const std::string& text);
