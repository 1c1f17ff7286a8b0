#pragma once

#include <ostream>
#include <string>

#include "radio/IRlbspKelApi.h"

/// A command with fixed arguments besides the channel, for tests that hold for every command of a family.
struct NamedCommand
{
    std::string name;
    int (*run)(IRlbspKelApi::KelDebugCmdCallback& commands, RadioChannel channel);
};

/// Also the name of a test that runs for the command.
inline std::ostream& operator<<(std::ostream& out, const NamedCommand& command)
{
    return out << command.name;
}
