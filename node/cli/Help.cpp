#include "node/cli/Help.h"

#include <algorithm>

#include <fmt/format.h>

namespace node::cli
{

namespace
{

/// "setPpsSource CHANNEL SOURCE PARAMETER"
std::string usage(const Operation& operation)
{
    std::string text = operation.name;
    for (const Argument& argument : operation.arguments)
    {
        text += " <" + argument.name + ">";
    }
    return text;
}

} // namespace

std::string overview()
{
    std::string text = "Usage: kel-node [COMMAND [ARGUMENT...]]\n"
                       "\n"
                       "Runs one debug command on a simulated node. Without a command, runs those that\n"
                       "standard input holds, a line each, up to the first that fails.\n"
                       "\n"
                       "Commands:\n";
    for (const Operation& operation : operations())
    {
        text += fmt::format("  {:<24} {}\n", operation.name, operation.summary);
    }
    text += "  help [COMMAND]           Print this, or the arguments of a command\n"
            "  exit                     Leave the prompt\n"
            "\n"
            "Numbers are decimal, or hexadecimal with 0x before them.\n"
            "\n"
            "Exit status: 0 done, 1 a command failed, 2 a line was not understood,\n"
            "3 the node did not start.\n";
    return text;
}

std::string describe(const Operation& operation)
{
    std::size_t width = 0;
    for (const Argument& argument : operation.arguments)
    {
        width = std::max(width, argument.name.size());
    }
    std::string text = usage(operation) + "\n" + operation.summary + ".\n\n";
    for (const Argument& argument : operation.arguments)
    {
        text += fmt::format("  {:<{}}  {}: {}\n", argument.name, width, argument.form, argument.meaning);
    }
    return text;
}

} // namespace node::cli
