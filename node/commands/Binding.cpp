#include "node/commands/Binding.h"

#include <algorithm>

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
    auto word = words.begin();
    for (; word != words.end(); ++word)
    {
        const auto argument =
            std::find_if(command.arguments.begin(), command.arguments.end(),
                         [&](const Argument& known) { return !known.option.empty() && known.option == *word; });
        if (argument == command.arguments.end())
        {
            break;
        }
        if (++word == words.end())
        {
            throw wording::InputError(placeOf(*argument), "nothing", argument->form);
        }
        if (!m_options.try_emplace(argument->option, TypedOption{&*argument, *word}).second)
        {
            throw wording::InputError(placeOf(*argument), "it twice", "it once");
        }
    }
    m_words.assign(word, words.end());
}

} // namespace node::commands
