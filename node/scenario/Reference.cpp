#include "node/scenario/Reference.h"

#include <fmt/format.h>

#include "node/scenario/Keys.h"

namespace node::scenario
{

namespace
{

template <typename Target>
std::string section(const std::string& heading, const std::string& about, const Keys<Target>& keys)
{
    std::string text =
        fmt::format("\n## {}\n\n{}\n\n| Key | Takes | Default | Meaning |\n|---|---|---|---|\n", heading, about);
    for (const Key<Target>& key : keys)
    {
        const std::string byDefault = key.defaultText.empty() ? "none" : "`" + key.defaultText + "`";
        text += fmt::format("| `{}` | {} | {} | {} |\n", key.name, key.form, byDefault, key.meaning);
    }
    return text;
}

} // namespace

std::string reference()
{
    return "# Scenario files\n"
           "\n"
           "A scenario is a node to start, in TOML. Every key may be left out. Names end in their unit. What does not "
           "fit is\n"
           "refused with its place, `FILE:LINE:COLUMN`, and no node starts.\n" +
           section("Before the first table", "What the scenario is.", headingKeys()) +
           section("`[node]`", "The node as a whole.", nodeKeys()) +
           section("`[hop]`", "The path, and what the two channels have in common.", hopKeys()) +
           section("`[weather]`", "Beside the two profiles below.", weatherKeys()) +
           section("`[[weather.rain]]`", "The points of the rain over time, in rising order. No points, no rain.",
                   rainKeys()) +
           section("`[[weather.fade]]`", "The points of the fade over time, in rising order. No points, no fade.",
                   fadeKeys()) +
           section("`[channel.1]`, `[channel.2]`", "One of the two polarisations, at the start.", channelKeys()) +
           section("`[broker]`", "What the module finds when it looks up its services.", brokerKeys()) +
           section("`[[fault]]`", "A fault, planned before the first call. As many as you like.", faultKeys());
}

std::string faultKeyList()
{
    std::string text;
    for (const auto& key : faultKeys())
    {
        if (key.name != "call") // stands first, without its name
        {
            text += fmt::format("  {:<10} {}:\n             {}\n", key.name, key.form, key.meaning);
        }
    }
    return text;
}

} // namespace node::scenario
