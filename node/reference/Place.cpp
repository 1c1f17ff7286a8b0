#include "node/reference/Place.h"

#include <algorithm>

#include "node/commands/TypedOptions.h"

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
    const commands::TypedOptions typed = commands::readTypedOptions(command, {words.begin(), words.end() - 1});
    if (typed.unfinished != nullptr)
    {
        return {{}, typed.unfinished, {words.back()}, false};
    }

    Place place;
    std::vector<const Argument*> others;
    for (const Argument& argument : command.arguments)
    {
        const auto isThis = [&](const commands::TypedOption& option) { return option.argument == &argument; };
        if (argument.option.empty())
        {
            others.push_back(&argument);
        }
        else if (typed.mayGoOn && std::none_of(typed.options.begin(), typed.options.end(), isThis))
        {
            place.options.push_back(&argument);
        }
    }

    auto word = typed.others.begin();
    auto argument = others.begin();
    while (word != typed.others.end() && argument != others.end() && (*argument)->extent == Extent::Word)
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
    place.mayEnd = place.argument->optional || word != typed.others.end();
    place.words.assign(word, typed.others.end());
    place.words.push_back(words.back());
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
