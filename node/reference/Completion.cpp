#include "node/reference/Completion.h"

#include <vector>

#include "node/commands/Command.h"
#include "node/commands/Line.h"
#include "node/reference/Choice.h"
#include "node/reference/Place.h"
#include "node/wording/InputError.h"

namespace node::reference
{

namespace
{

/// What may stand at the end of a line of these words.
/// @throws InputError when that cannot be told
std::vector<std::string> choicesAtTheEnd(const std::vector<std::string>& words)
{
    if (words.size() == 1)
    {
        return fitting(commands::commandNames(), words.back());
    }
    const Place place = placeAfter(words);
    std::vector<std::string> choices = choicesAt(place);
    for (const commands::Argument* option : place.options)
    {
        choices.push_back(option->option);
    }
    return fitting(choices, words.back());
}

} // namespace

terminal::Candidates complete(const std::string& line)
{
    const auto split = commands::splitUnfinished(line);
    if (split.words.empty())
    {
        return {split.begin, {}};
    }
    try
    {
        return {split.begin, asTypedAfter(line.substr(split.begin), choicesAtTheEnd(split.words))};
    }
    catch (const wording::InputError&)
    {
        return {split.begin, {}};
    }
}

} // namespace node::reference
