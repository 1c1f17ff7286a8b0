#include "node/commands/Binding.h"
#include "node/commands/CommandGroups.h"

namespace node::commands
{

namespace
{

constexpr radio::Ticks DefaultInterval = std::chrono::seconds(2);
constexpr std::int32_t EveryLevel = 255;

std::string help(Desk& /*desk*/, Console& console, const std::optional<Topic>& topic)
{
    return console.help(topic ? topic->topic : "");
}

std::string leave(Desk& /*desk*/, Console& console)
{
    console.leave();
    return "";
}

Outcome watch(Desk& /*desk*/, Console& console, const Option<'n', Duration>& interval, const Option<'c', Count>& rounds,
              const CommandWords& command)
{
    const Command& watched = commandNamed(command.words.front());
    if (!watched.repeatable)
    {
        throw wording::InputError("watch: argument 1 (command)", wording::quoted(watched.name),
                                  "a command that can be watched");
    }
    return {console.watch({command.words, interval.value ? interval.value->ticks : DefaultInterval,
                           rounds.value ? std::optional(rounds.value->number) : std::nullopt}),
            "",
            {}};
}

std::string record(Desk& /*desk*/, Console& console, const FileName& file)
{
    console.startRecording(file.name);
    return "";
}

std::string stopRecord(Desk& /*desk*/, Console& console)
{
    console.stopRecording();
    return "";
}

Outcome replay(Desk& /*desk*/, Console& console, const RecordingName& file)
{
    return console.replay(file.name);
}

std::string filterTrace(Desk& /*desk*/, Console& console, const ChannelPattern& channels,
                        const std::optional<TraceLevel>& level)
{
    console.filterTrace(channels.pattern, level ? level->level : EveryLevel);
    return "";
}

std::string traceFile(Desk& /*desk*/, Console& console, const FileName& file)
{
    console.startTraceFile(file.name);
    return "";
}

std::string stopTraceFile(Desk& /*desk*/, Console& console)
{
    console.stopTraceFile();
    return "";
}

} // namespace

CommandGroup consoleCommands()
{
    CommandGroup group = {
        "The command line",
        {
            makeCommand("help", help, "Print every command, or the arguments of one", {{"topic", "what about"}}),
            makeCommand("watch", watch, "Carry out a command again and again and mark what changes",
                        {{"seconds", "time from one round to the next, 2s without it"},
                         {"count", "number of rounds; without it, until Ctrl-C"},
                         {"command", "what to carry out"}}),
            makeCommand("record", record, "Keep commands and answers in a file, from the node's start on",
                        {{"file", "where to write; what is there is replaced"}}),
            makeCommand("stopRecord", stopRecord, "End the recording"),
            makeCommand("replay", replay, "Carry out a recording again and compare the answers",
                        {{"file", "what to carry out"}}),
            makeCommand("filterTrace", filterTrace, "Show some trace messages and no others",
                        {{"channels", "of which trace channels"}, {"level", "up to which level; without it, all"}}),
            makeCommand("traceFile", traceFile, "Write trace messages to a file too, as JSON lines",
                        {{"file", "where to write; what is there is replaced"}}),
            makeCommand("stopTraceFile", stopTraceFile, "End the trace file"),
            makeCommand("exit", leave, "Leave the prompt, or end the script"),
        }};
    for (Command& command : group.commands)
    {
        command.repeatable = false;
    }
    return group;
}

} // namespace node::commands
