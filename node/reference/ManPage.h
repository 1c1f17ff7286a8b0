#pragma once

#include <string>
#include <vector>

namespace node::reference
{

/// Something to try at a shell's prompt.
struct ShellExample
{
    std::string purpose;
    std::string line;
};

/// Those of the manual page.
const std::vector<ShellExample>& shellExamples();

/// The manual page of the program, in the macros of man(7).
/// @param version  of the program
/// @param date     of that version: "2026-11-21"
std::string manPage(const std::string& version, const std::string& date);

} // namespace node::reference
