#include "node/reference/Help.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <sstream>

#include <fmt/format.h>

#include "node/reference/Fill.h"
#include "node/reference/ProgramOptions.h"
#include "node/scenario/Reference.h"

namespace node::reference
{

using commands::Argument;
using commands::Command;
using commands::CommandGroup;
using commands::commandGroups;
using commands::commandNamed;
using commands::Extent;

namespace
{

/// What a label means, in a second column.
std::string row(const std::string& label, const std::string& meaning)
{
    constexpr std::size_t Column = 27;
    std::istringstream words(meaning);
    const std::string lines = fill({std::istream_iterator<std::string>(words), {}}, " ", std::string(Column, ' '));
    return fmt::format("  {:<{}} {}", label, Column - 3, lines.substr(Column));
}

std::string optionList()
{
    std::string text;
    for (const ProgramOption& option : programOptions())
    {
        text += row(usage(option), option.meaning);
    }
    return text;
}

} // namespace

std::string overview()
{
    return "Usage: kel-node [OPTION...] [COMMAND [ARGUMENT...]]\n"
           "\n"
           "Runs one command on a simulated node. Without a command, runs those that\n"
           "standard input holds, a line each, up to the first that fails.\n"
           "\n"
           "Options:\n" +
           optionList() + "\n" + commandList() +
           "\n"
           "\"help COMMAND\" prints what a command takes, \"help scenario\" every key of a\n"
           "scenario file. The beginning of a command's name does for the whole where no\n"
           "other one begins so. Numbers are decimal, or hexadecimal with 0x before them. A\n"
           "word with blanks in it stands in double quotes.\n"
           "\n"
           "Exit status: 0 done, 1 a command failed, 2 a line or scenario not understood,\n"
           "3 the node did not start.\n";
}

std::string commandList()
{
    std::string text;
    for (const CommandGroup& group : commandGroups())
    {
        text += fmt::format("{}{}:\n", text.empty() ? "" : "\n", group.heading);
        for (const Command& command : group.commands)
        {
            text += row(command.name, command.summary);
        }
    }
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

std::string usage(const Command& command)
{
    std::string text = command.name;
    for (const Argument& argument : command.arguments)
    {
        text += " " + usage(argument);
    }
    return text;
}

std::string usage(const Argument& argument)
{
    std::string text = argument.option + (argument.option.empty() ? "<" : " <") + argument.name + ">";
    const bool takesMore = argument.extent == Extent::Words && argument.more.empty();
    text += takesMore ? "..." : "";
    text = argument.optional ? "[" + text + "]" : text;
    return text + (argument.more.empty() ? "" : " " + argument.more);
}

std::string helpOn(const std::string& topic)
{
    return topic == "scenario" ? scenario::reference() : describe(commandNamed(topic));
}

} // namespace node::reference
