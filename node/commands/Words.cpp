#include "node/commands/Words.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace node::commands
{

Words::Words(const Command& command, const std::vector<std::string>& words) : m_command(command)
{
    for (const Argument& argument : command.arguments)
    {
        if (argument.option.empty())
        {
            m_arguments.push_back(&argument);
        }
    }
    TypedOptions typed = readTypedOptions(command, words);
    for (const TypedOption& option : typed.options)
    {
        if (!m_options.try_emplace(option.argument->option, option).second)
        {
            throw unfit(*option.argument, "it twice", "it once");
        }
    }
    if (typed.unfinished != nullptr)
    {
        throw unfit(*typed.unfinished, "nothing", typed.unfinished->form);
    }
    m_words = std::move(typed.others);
}

wording::InputError Words::unfit(const Argument& argument, const std::string& found, const std::string& expected) const
{
    const auto number = std::find(m_arguments.begin(), m_arguments.end(), &argument) - m_arguments.begin() + 1;
    const std::string which =
        argument.option.empty() ? fmt::format("argument {}", number) : fmt::format("option {}", argument.option);
    return {fmt::format("{}: {} ({})", m_command.name, which, argument.name), found, expected};
}

wording::InputError Words::unfit(const Misfit& misfit) const
{
    const auto argument = std::find_if(m_command.arguments.begin(), m_command.arguments.end(),
                                       [&](const Argument& known) { return known.name == misfit.argument; });
    if (argument == m_command.arguments.end())
    {
        throw std::logic_error(m_command.name + " has no argument " + misfit.argument);
    }
    return unfit(*argument, misfit.found, misfit.expected.empty() ? argument->form : misfit.expected);
}

} // namespace node::commands
