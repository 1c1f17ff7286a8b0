#pragma once

#include <functional>
#include <string>
#include <vector>

#include "node/cli/Desk.h"

namespace node::cli
{

/// An argument as the user types it.
struct Argument
{
    std::string name;
    std::string form;      ///< what is accepted: "a number from 0 to 255"
    std::string meaning;   ///< what it does
    bool optional = false; ///< may be left out, with all that follow
    std::string more{};    ///< what may come after it, without a name of its own: "[KEY=VALUE...]"
};

/// What a command answered.
struct Outcome
{
    int result = 0;     ///< 0 done, 1 failed
    std::string output; ///< the report as the module wrote it, or the value that was read
};

/// A command: its words and what they call.
struct Command
{
    std::string name;
    std::string summary;
    std::vector<Argument> arguments;
    std::string details; ///< what else its help says

    /// Calls the command with the words that follow its name.
    /// @throws InputError, before anything is called, when they do not fit
    std::function<Outcome(Desk&, const std::vector<std::string>& words)> call;
};

/// Commands that belong together, under the heading that the help gives them.
struct CommandGroup
{
    std::string heading;
    std::vector<Command> commands;
};

/// Every command. The first group are those of the module, in the order of its callback interface.
const std::vector<CommandGroup>& commandGroups();

/// @throws InputError when there is none of that name
const Command& commandNamed(const std::string& name);

} // namespace node::cli
