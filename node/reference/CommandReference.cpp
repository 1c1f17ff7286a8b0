#include "node/reference/CommandReference.h"

#include <cstddef>

#include <fmt/format.h>

#include "node/commands/Command.h"
#include "node/reference/Escape.h"
#include "node/reference/Fill.h"
#include "node/reference/Help.h"
#include "node/reference/HowTo.h"

namespace node::reference
{

using commands::Argument;
using commands::Command;
using commands::CommandGroup;

namespace
{

std::string section(const Command& command)
{
    std::string text = fmt::format("\n### {0}\n\n```\n{1}\n```\n\n{2}.\n", markdown(command.name), usage(command),
                                   markdown(command.summary));
    text += command.arguments.empty() ? "" : "\n| Argument | Takes | Meaning |\n|---|---|---|\n";
    for (const Argument& argument : command.arguments)
    {
        text += fmt::format("| {} | {} | {} |\n", markdown(argument.name), markdown(argument.form),
                            markdown(argument.meaning));
    }
    return text + (command.details.empty() ? "" : "\n```\n" + command.details + "```\n");
}

} // namespace

std::string commandReference()
{
    constexpr std::size_t PageColumns = 120;
    std::string text = "# Commands\n"
                       "\n"
                       "What `kel-node` carries out: on its command line, in a script, at its prompt.\n"
                       "\n" +
                       fillText(markdown(HowToType), "", PageColumns);
    for (const CommandGroup& group : commands::commandGroups())
    {
        text += fmt::format("\n## {}\n", markdown(group.heading));
        for (const Command& command : group.commands)
        {
            text += section(command);
        }
    }
    return text;
}

} // namespace node::reference
