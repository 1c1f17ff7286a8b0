#include "node/reference/CommandReference.h"

#include <fmt/format.h>

#include "node/commands/Command.h"
#include "node/reference/Escape.h"
#include "node/reference/Help.h"

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
    std::string text = R"(# Commands

What `kel-node` carries out: on its command line, in a script, at its prompt. The beginning of a name does for the whole
where no other command begins so. Numbers are decimal, or hexadecimal with 0x before them. A word with blanks in it
stands in double quotes; between them, a backslash takes the next letter as it is. A line that begins with # is a
comment.
)";
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
