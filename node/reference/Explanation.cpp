#include <algorithm>
#include <cstddef>
#include <vector>

#include <fmt/format.h>

#include "node/commands/Command.h"
#include "node/commands/Line.h"
#include "node/reference/Choice.h"
#include "node/reference/Completion.h"
#include "node/reference/Fill.h"
#include "node/reference/Help.h"
#include "node/reference/Place.h"
#include "node/wording/InputError.h"

namespace node::reference
{

using commands::Argument;
using commands::commandNamed;

namespace
{

/// A text of the help, behind what it is about.
struct Row
{
    std::string label;
    std::string text;
};

std::string table(const std::vector<Row>& rows)
{
    std::size_t width = 0;
    for (const Row& row : rows)
    {
        width = std::max(width, row.label.size());
    }
    std::string text;
    for (const Row& row : rows)
    {
        text += fmt::format("{:<{}}  {}\n", row.label, width, row.text);
    }
    return text;
}

/// @throws InputError when no command begins so
std::string explainName(const std::string& typed)
{
    if (typed.empty())
    {
        return commandList();
    }
    const std::vector<std::string> names = fitting(commands::commandNames(), typed);
    if (names.empty())
    {
        commandNamed(typed); // throws
    }
    std::vector<Row> rows;
    rows.reserve(names.size());
    for (const std::string& name : names)
    {
        rows.push_back({name, commandNamed(name).summary});
    }
    return table(rows);
}

Row rowOf(const Argument& argument)
{
    return {usage(argument), argument.form + ": " + argument.meaning};
}

/// @param typed  the word at the end
/// @param begun  that word as it is typed
std::string explainPlace(const Place& place, const std::string& typed, const std::string& begun)
{
    std::vector<Row> rows;
    for (const Argument* option : place.options)
    {
        if (option->option.starts_with(typed))
        {
            rows.push_back(rowOf(*option));
        }
    }
    if (place.argument != nullptr)
    {
        rows.push_back(rowOf(*place.argument));
    }
    const std::vector<std::string> words = asTypedAfter(begun, fitting(choicesAt(place), typed));
    const bool mayEnd = place.argument == nullptr || (place.mayEnd && begun.empty());
    return table(rows) + fill(words, "  ", "  ") + (mayEnd ? "<end of line>\n" : "");
}

} // namespace

std::string explain(const std::string& line)
{
    const auto split = commands::splitUnfinished(line);
    if (split.words.empty() || split.inQuotes)
    {
        return "";
    }
    try
    {
        return split.words.size() == 1
                   ? explainName(split.words.back())
                   : explainPlace(placeAfter(split.words), split.words.back(), line.substr(split.begin));
    }
    catch (const wording::InputError& error)
    {
        return std::string(error.what()) + "\n";
    }
}

} // namespace node::reference
