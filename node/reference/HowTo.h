#pragma once

#include <string>
#include <vector>

/// What the help, the manual page and the pages under docs/ all say.
namespace node::reference
{

/// How a command is typed.
inline constexpr const char* HowToType =
    "The beginning of a name does for the whole where no other command begins so. "
    "Whole numbers are decimal, or hexadecimal with 0x before them; times and all others are decimal. "
    "Options of a command stand before its arguments, as \"-n 5\" or \"-n5\"; \"--\" ends them. "
    "A word with blanks in it stands in double quotes; between them, a backslash takes the next letter as it is. "
    "A line that begins with '#' is a comment.";

struct ExitStatus
{
    int number;
    std::string meaning;
};

/// Those of the program.
const std::vector<ExitStatus>& exitStatuses();

} // namespace node::reference
