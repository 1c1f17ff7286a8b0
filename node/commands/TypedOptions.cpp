#include "node/commands/TypedOptions.h"

#include <algorithm>

namespace node::commands
{

TypedOptions readTypedOptions(const Command& command, const std::vector<std::string>& words)
{
    const auto isOption = [](const Argument& argument) { return !argument.option.empty(); };
    TypedOptions read;
    read.mayGoOn = std::any_of(command.arguments.begin(), command.arguments.end(), isOption);
    auto word = words.begin();
    while (read.mayGoOn && word != words.end())
    {
        const auto argument =
            std::find_if(command.arguments.begin(), command.arguments.end(),
                         [&](const Argument& known) { return isOption(known) && word->starts_with(known.option); });
        if (argument == command.arguments.end())
        {
            read.mayGoOn = false;
            word += *word == "--" ? 1 : 0;
            break;
        }
        std::string value = word->substr(argument->option.size());
        ++word;
        if (value.empty() && word == words.end())
        {
            read.unfinished = &*argument;
            return read;
        }
        read.options.push_back({&*argument, value.empty() ? *word++ : value});
    }
    read.others.assign(word, words.end());
    return read;
}

} // namespace node::commands
