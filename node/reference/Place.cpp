#include "node/reference/Place.h"

#include <algorithm>
#include <cstddef>

namespace node::reference
{

using commands::Argument;
using commands::Command;
using commands::commandNamed;
using commands::Extent;

namespace
{

/// The commands that another command carries out: those that can be watched.
std::vector<std::string> carriedOutNames()
{
    std::vector<std::string> names = commands::commandNames();
    std::erase_if(names, [](const std::string& name) { return !commandNamed(name).repeatable; });
    return names;
}

} // namespace

Place placeIn(const Command& command, const std::vector<std::string>& words)
{
    Place place;
    std::vector<const Argument*> others;
    for (const Argument& argument : command.arguments)
    {
        (argument.option.empty() ? others : place.options).push_back(&argument);
    }

    auto word = words.begin();
    const auto typed = words.end() - 1;
    while (word != typed)
    {
        const auto option = std::find_if(place.options.begin(), place.options.end(),
                                         [&](const Argument* argument) { return argument->option == *word; });
        if (option == place.options.end())
        {
            place.options.clear(); // they stand before all others
            break;
        }
        if (++word == typed)
        {
            return {{}, *option, {*typed}, false};
        }
        place.options.erase(option);
        ++word;
    }

    auto argument = others.begin();
    while (word != typed && argument != others.end() && (*argument)->extent == Extent::Word)
    {
        ++word;
        ++argument;
    }
    if (argument == others.end())
    {
        place.mayEnd = true;
        return place;
    }
    place.argument = *argument;
    place.words.assign(word, words.end());
    place.mayEnd = place.argument->optional || word != typed;
    return place;
}

Place placeAfter(const std::vector<std::string>& words)
{
    const auto placeOf = [](const std::vector<std::string>& line) {
        return placeIn(commandNamed(line.front()), {line.begin() + 1, line.end()});
    };
    Place place = placeOf(words);
    while (place.argument != nullptr && place.argument->extent == Extent::Command && place.words.size() > 1)
    {
        place = placeOf(place.words);
    }
    return place;
}

std::vector<std::string> choicesAt(const Place& place)
{
    if (place.argument == nullptr)
    {
        return {};
    }
    if (place.argument->extent == Extent::Command)
    {
        return carriedOutNames();
    }
    return place.argument->choices ? place.argument->choices(place.words) : std::vector<std::string>();
}

} // namespace node::reference
