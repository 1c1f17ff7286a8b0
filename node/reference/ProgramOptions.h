#pragma once

#include <string>
#include <vector>

#include "node/commands/Value.h"

namespace node::reference
{

/// An option of the program itself.
struct ProgramOption
{
    char letter;       ///< 's' where "-s" is the same; 0 for none
    std::string name;  ///< "scenario"
    std::string value; ///< as the help has it: "NAME|FILE"; "" where it takes none
    std::string meaning;
    commands::WordKind kind = commands::WordKind::Other; ///< what its value names
    std::vector<std::string> choices{};                  ///< the only values that fit; none where others do too
};

/// The values of "--clock".
inline constexpr const char* ToldClock = "told";
inline constexpr const char* WallClock = "wall";

/// In the order that the help has.
const std::vector<ProgramOption>& programOptions();

/// "-s, --scenario NAME|FILE"
std::string usage(const ProgramOption& option);

} // namespace node::reference
