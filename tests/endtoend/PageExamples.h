#pragma once

#include <string>
#include <vector>

/// A command that a page of the documentation shows at a shell's prompt, and the output that it shows below.
struct Example
{
    std::string command;
    std::string output;
};

/// Those of a page, in their order.
/// @param page  from the top of the tree
std::vector<Example> examplesOf(const std::string& page);

/// How an example's command ends: one that shows a failure last has failed.
int expectedStatus(const Example& example);

/// What a shell's command writes to standard output, with its exit status.
struct ShellRun
{
    std::string output;
    int status = 0;
};

ShellRun runShell(const std::string& command);
