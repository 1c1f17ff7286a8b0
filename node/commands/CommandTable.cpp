#include <algorithm>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "node/commands/Command.h"
#include "node/commands/CommandGroups.h"
#include "node/wording/InputError.h"

namespace node::commands
{

const std::vector<CommandGroup>& commandGroups()
{
    static const std::vector<CommandGroup> groups = {debugCommands(), linkCommands(), nodeCommands(),
                                                     consoleCommands()};
    return groups;
}

const Command& commandNamed(const std::string& name)
{
    std::vector<const Command*> candidates;
    for (const CommandGroup& group : commandGroups())
    {
        for (const Command& command : group.commands)
        {
            if (command.name == name)
            {
                return command;
            }
            if (!name.empty() && command.name.starts_with(name))
            {
                candidates.push_back(&command);
            }
        }
    }
    if (candidates.size() == 1)
    {
        return *candidates.front();
    }
    if (candidates.empty())
    {
        throw wording::InputError("command", wording::quoted(name),
                                  "one that \"help\" lists" + wording::didYouMean(name, commandNames()));
    }
    std::vector<std::string> names;
    std::transform(candidates.begin(), candidates.end(), std::back_inserter(names),
                   [](const Command* command) { return command->name; });
    throw wording::InputError("command", wording::quoted(name),
                              fmt::format("more of its name: {}", fmt::join(names, ", ")));
}

bool isRecorded(const std::string& name)
{
    const Command& command = commandNamed(name);
    return command.repeatable || (!command.arguments.empty() && command.arguments.back().extent == Extent::Command);
}

std::vector<std::string> commandNames()
{
    std::vector<std::string> names;
    for (const CommandGroup& group : commandGroups())
    {
        for (const Command& command : group.commands)
        {
            names.push_back(command.name);
        }
    }
    return names;
}

} // namespace node::commands
