#include "node/commands/Binding.h"
#include "node/commands/CommandGroups.h"
#include "node/commands/TraceChannels.h"

namespace node::commands
{

namespace
{

constexpr radio::Ticks DefaultInterval = std::chrono::seconds(2);

std::string help(Desk& /*desk*/, Console& console, const std::optional<Topic>& topic)
{
    return console.help(topic ? topic->word : "");
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
        throw Misfit{"command", wording::quoted(watched.name), "a command that can be watched"};
    }
    return {console.watch({command.words, interval.value ? interval.value->ticks : DefaultInterval,
                           rounds.value ? std::optional(rounds.value->number) : std::nullopt}),
            "",
            {}};
}

std::string record(Desk& /*desk*/, Console& console, const FileName& file)
{
    console.startRecording(file.word);
    return "";
}

std::string stopRecord(Desk& /*desk*/, Console& console)
{
    console.stopRecording();
    return "";
}

Outcome replay(Desk& /*desk*/, Console& console, const RecordingName& file)
{
    return console.replay(file.word);
}

std::string filterTrace(Desk& /*desk*/, Console& console, const ChannelPattern& channels,
                        const std::optional<TraceLevel>& level)
{
    traceChannelsLike(channels); // a name that is misspelt would hide everything
    console.filterTrace(channels.word, level ? level->level : TraceLevel::Highest);
    return "";
}

std::string traceFile(Desk& /*desk*/, Console& console, const FileName& file)
{
    console.startTraceFile(file.word);
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
                        {{"seconds", fmt::format("time from one round to the next, {}s without it",
                                                 radio::seconds(DefaultInterval))},
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
