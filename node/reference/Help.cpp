#include "node/reference/Help.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include <fmt/format.h>

#include "node/reference/Fill.h"
#include "node/reference/HowTo.h"
#include "node/reference/ProgramOptions.h"
#include "node/scenario/Reference.h"
#include "node/wording/InputError.h"

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
    const std::string lines = fillText(meaning, std::string(Column, ' '));
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

std::string exitStatusList()
{
    std::string text;
    for (const ExitStatus& status : exitStatuses())
    {
        text += row(std::to_string(status.number), status.meaning);
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
           "scenario file.\n"
           "\n" +
           fillText(HowToType, "") +
           "\n"
           "Exit status:\n" +
           exitStatusList();
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
    const std::vector<std::string> topics = commands::Topic::choices(topic);
    std::vector<std::string> meant;
    std::copy_if(topics.begin(), topics.end(), std::back_inserter(meant),
                 [&](const std::string& candidate) { return !topic.empty() && candidate.starts_with(topic); });
    if (meant.empty())
    {
        throw wording::InputError("topic", wording::quoted(topic),
                                  commands::Topic::form() + wording::didYouMean(topic, topics));
    }
    const bool isScenario = meant == std::vector<std::string>{commands::Topic::Scenario};
    return isScenario ? scenario::reference() : describe(commandNamed(topic));
}

} // namespace node::reference
