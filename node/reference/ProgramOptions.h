#pragma once

#include <string>
#include <vector>

namespace node::reference
{

/// An option of the program itself.
struct ProgramOption
{
    char letter;       ///< 's' where "-s" is the same; 0 for none
    std::string name;  ///< "scenario"
    std::string value; ///< "NAME|FILE"; "" where it takes none
    std::string meaning;
};

/// In the order that the help has.
const std::vector<ProgramOption>& programOptions();

/// "-s, --scenario NAME|FILE"
std::string usage(const ProgramOption& option);

} // namespace node::reference
