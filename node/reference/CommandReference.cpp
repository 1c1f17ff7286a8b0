#include "node/reference/CommandReference.h"

#include <cstddef>

#include <fmt/format.h>

#include "node/commands/Command.h"
#include "node/reference/Escape.h"
#include "node/reference/Fill.h"
#include "node/reference/Help.h"
#include "node/reference/HowTo.h"
#include "node/reference/PromptExamples.h"

namespace node::reference
{

using commands::Argument;
using commands::Command;
using commands::CommandGroup;

namespace
{

/// @param transcript  what stands on the screen after lines were typed
std::string section(const Command& command, const Transcript& transcript)
{
    std::string text = fmt::format("\n### {0}\n\n```\n{1}\n```\n\n{2}.\n", markdown(command.name), usage(command),
                                   markdown(command.summary));
    text += command.arguments.empty() ? "" : "\n| Argument | Takes | Meaning |\n|---|---|---|\n";
    for (const Argument& argument : command.arguments)
    {
        text += fmt::format("| {} | {} | {} |\n", markdown(argument.name), markdown(argument.form),
                            markdown(argument.meaning));
    }
    text += command.details.empty() ? "" : "\n```\n" + command.details + "```\n";
    const std::vector<std::string> example = promptExample(command);
    return text + (example.empty() ? "" : "\n```\n" + transcript(example) + "```\n");
}

} // namespace

std::string commandReference(const Transcript& transcript)
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
            text += section(command, transcript);
        }
    }
    return text;
}

} // namespace node::reference
