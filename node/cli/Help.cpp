#include "node/cli/Help.h"

#include <algorithm>

#include <fmt/format.h>

#include "node/scenario/Reference.h"
#include "node/wording/InputError.h"

namespace node::cli
{

namespace
{

/// "setRain <rate> [<over>]"
std::string usage(const Command& command)
{
    std::string text = command.name;
    for (const Argument& argument : command.arguments)
    {
        text += argument.optional ? " [<" + argument.name + ">]" : " <" + argument.name + ">";
        text += argument.more.empty() ? "" : " " + argument.more;
    }
    return text;
}

} // namespace

std::string overview()
{
    std::string text = "Usage: kel-node [OPTION...] [COMMAND [ARGUMENT...]]\n"
                       "\n"
                       "Runs one command on a simulated node. Without a command, runs those that\n"
                       "standard input holds, a line each, up to the first that fails.\n"
                       "\n"
                       "Options:\n"
                       "  -s, --scenario NAME|FILE Start the node of that scenario\n"
                       "  --clock told|wall        Let time go on when told (\"advance\"), as scripts do,\n"
                       "                           or with the clock on the wall, as prompts do\n"
                       "  -h, --help               Print this\n"
                       "  --version                Print the version\n";
    for (const CommandGroup& group : commandGroups())
    {
        text += fmt::format("\n{}:\n", group.heading);
        for (const Command& command : group.commands)
        {
            text += fmt::format("  {:<24} {}\n", command.name, command.summary);
        }
    }
    text += "\n"
            "Everywhere:\n"
            "  help [COMMAND]           Print this, or the arguments of a command\n"
            "  help scenario            Print every key of a scenario file\n"
            "  exit                     Leave the prompt\n"
            "\n"
            "Numbers are decimal, or hexadecimal with 0x before them. A word with blanks in\n"
            "it stands in double quotes.\n"
            "\n"
            "Exit status: 0 done, 1 a command failed, 2 a line or scenario not understood,\n"
            "3 the node did not start.\n";
    return text;
}

std::string describe(const Command& command)
{
    std::size_t width = 0;
    for (const Argument& argument : command.arguments)
    {
        width = std::max(width, argument.name.size());
    }
    std::string text = usage(command) + "\n" + command.summary + ".\n";
    text += command.arguments.empty() ? "" : "\n";
    for (const Argument& argument : command.arguments)
    {
        text += fmt::format("  {:<{}}  {}: {}\n", argument.name, width, argument.form, argument.meaning);
    }
    return text + (command.details.empty() ? "" : "\n" + command.details);
}

std::string helpOn(const std::string& topic)
{
    if (topic == "help" || topic == "exit")
    {
        return overview();
    }
    if (topic == "scenario")
    {
        return scenario::reference();
    }
    return describe(commandNamed(topic));
}

} // namespace node::cli
