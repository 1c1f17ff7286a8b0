#include "node/cli/Command.h"
#include "node/cli/CommandGroups.h"
#include "node/wording/InputError.h"

namespace node::cli
{

const std::vector<CommandGroup>& commandGroups()
{
    static const std::vector<CommandGroup> groups = {debugCommands(), linkCommands(), nodeCommands()};
    return groups;
}

const Command& commandNamed(const std::string& name)
{
    std::vector<std::string> names;
    for (const CommandGroup& group : commandGroups())
    {
        for (const Command& command : group.commands)
        {
            if (command.name == name)
            {
                return command;
            }
            names.push_back(command.name);
        }
    }
    throw wording::InputError("command", wording::quoted(name),
                              "one that \"help\" lists" + wording::didYouMean(name, names));
}

} // namespace node::cli
