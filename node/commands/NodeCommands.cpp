#include <fmt/format.h>

#include "node/commands/Binding.h"
#include "node/commands/CommandGroups.h"
#include "node/commands/TraceChannels.h"
#include "node/scenario/FaultKeys.h"
#include "node/scenario/Reference.h"
#include "node/scenario/Scenario.h"
#include "node/trace/TraceLibrary.h"

namespace node::commands
{

namespace
{

std::string loadScenario(Desk& desk, const ScenarioName& name)
{
    desk.start(scenario::load(name.word));
    return "";
}

/// The first line of what a scenario says of itself; of one that does not fit, what is wrong with it.
std::string descriptionOf(const std::string& scenario)
{
    try
    {
        const std::string description = scenario::load(scenario).description;
        return description.substr(0, description.find('\n'));
    }
    catch (const wording::InputError& error)
    {
        return error.what();
    }
}

/// A line for each thing: its name, and what is said of it in a column of its own.
class List
{
public:
    explicit List(std::size_t width) : m_width(width)
    {
    }

    template <typename Value>
    void add(std::string_view name, const Value& value)
    {
        outcome.output += fmt::format("{:<{}} {}\n", name, m_width, value);
        outcome.fields.push_back({"", std::string(name), value});
    }

    Outcome outcome;

private:
    std::size_t m_width;
};

Outcome listScenarios(Desk& /*desk*/)
{
    List list(27);
    for (const std::string& name : scenario::readyScenarios())
    {
        list.add(name, descriptionOf(name));
    }
    return list.outcome;
}

std::string addFault(Desk& desk, const TypedFault& typed)
{
    desk.faults().add(typed.fault);
    return "";
}

/// "criGetRadioChannelStatus channel=1 code=7 from_call=2 calls=3"
std::string faultText(const services::Fault& fault)
{
    std::string text(fault.call->name);
    text += fault.channel ? fmt::format(" channel={}", *fault.channel) : "";
    text += fault.code ? fmt::format(" code={}", *fault.code) : "";
    text += fault.text ? " text=" + wording::quoted(*fault.text) : "";
    text += fault.throws ? " throws=true" : "";
    text += fault.fromCall != 1 ? fmt::format(" from_call={}", fault.fromCall) : "";
    text += fault.calls ? fmt::format(" calls={}", *fault.calls) : "";
    return text;
}

Outcome listFaults(Desk& desk)
{
    Outcome outcome;
    for (const services::PlannedFault& planned : desk.faults().list())
    {
        const std::string fault = faultText(planned.fault);
        outcome.output += fmt::format("{}: seen {}, hit {}\n", fault, planned.seen, planned.hits);
        outcome.fields.push_back({fault, "seen", static_cast<std::int64_t>(planned.seen)});
        outcome.fields.push_back({fault, "hit", static_cast<std::int64_t>(planned.hits)});
    }
    return outcome;
}

std::string clearFaults(Desk& desk)
{
    desk.faults().clear();
    return "";
}

std::string answerText(const services::PlatformCall& call)
{
    using enum services::AnswerKind;
    switch (call.kind)
    {
    case TopApiResult:
        return "a code, failing above 0, and a text";
    case PlatformResult:
        return "a code, failing from 32768 on, and a text";
    case PlatformCode:
        return "a code, failing from 32768 on";
    case Number:
        return "a number";
    case Text:
        return "a text";
    case Nothing:
        break;
    }
    return "nothing; a scenario can make it throw at the start";
}

Outcome listCalls(Desk& /*desk*/)
{
    List list(50);
    for (const services::PlatformCall& call : services::platformCalls())
    {
        list.add(call.name, answerText(call));
    }
    return list.outcome;
}

std::string setTraceLevel(Desk& /*desk*/, const ChannelPattern& pattern, TraceLevel level)
{
    for (const std::string& name : traceChannelsLike(pattern))
    {
        trace::setLevel(name, level.level);
    }
    return "";
}

Outcome listTraceLevels(Desk& /*desk*/)
{
    List list(32);
    for (const auto& [name, level] : trace::levels())
    {
        list.add(name, std::int64_t{level});
    }
    return list.outcome;
}

} // namespace

CommandGroup nodeCommands()
{
    Command add = makeCommand("addFault", addFault, "Plan a fault of a platform call",
                              {{"call", "which call, and what shall happen to it", "[KEY=VALUE...]"}});
    add.details = "Keys:\n" + scenario::faultKeyList();
    Command load = makeCommand("loadScenario", loadScenario, "End the node and start the one of a scenario",
                               {{"scenario", "which one"}});
    load.needsFile = true;
    Command list = makeCommand("listScenarios", listScenarios, "List the ready scenarios");
    list.repeatable = false; // it tells of a folder, not of the node
    return {"The node",
            {
                load,
                list,
                add,
                makeCommand("listFaults", listFaults, "List the planned faults and how often they hit"),
                makeCommand("clearFaults", clearFaults, "Drop all planned faults"),
                makeCommand("listCalls", listCalls, "List the platform calls that can fail"),
                makeCommand("setTraceLevel", setTraceLevel, "Choose how much trace channels let through",
                            {{"channels", "which trace channels"}, {"level", "up to which level; 0 for none"}}),
                makeCommand("listTraceLevels", listTraceLevels, "List the trace channels with their levels"),
            }};
}

} // namespace node::commands
