#include "node/reference/ProgramOptions.h"

#include <fmt/format.h>

namespace node::reference
{

using commands::WordKind;

const std::vector<ProgramOption>& programOptions()
{
    static const std::vector<ProgramOption> options = {
        {'s', "scenario", "NAME|FILE", "Start the node of that scenario", WordKind::Scenario},
        {'f', "file", "FILE", "Carry out the lines of a file, - for standard input", WordKind::File},
        {'k', "keep-going", "", "Go on after a failure (the exit status still tells it)"},
        {0, "json", "", "Print a JSON document for each command"},
        {0,
         "clock",
         fmt::format("{}|{}", ToldClock, WallClock),
         "Let time go on when told (\"advance\"), as scripts do, or with the clock on the wall, as prompts do",
         WordKind::Other,
         {ToldClock, WallClock}},
        {0, "record", "FILE", "Record the commands and their answers", WordKind::File},
        {0, "trace", "CHANNELS[:LEVEL]", "Show the trace messages of these channels alone, up to that level",
         WordKind::TraceChannels},
        {0, "trace-file", "FILE", "Write trace messages to a file too, as JSON lines", WordKind::File},
        {'h', "help", "", "Print this"},
        {0, "version", "", "Print the version"},
    };
    return options;
}

std::string usage(const ProgramOption& option)
{
    std::string text = option.letter == 0 ? "" : std::string("-") + option.letter + ", ";
    text += "--" + option.name;
    return text + (option.value.empty() ? "" : " " + option.value);
}

} // namespace node::reference
