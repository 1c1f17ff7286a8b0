#include <fmt/format.h>
#include <fnmatch.h>

#include "node/cli/Binding.h"
#include "node/cli/CommandGroups.h"
#include "node/scenario/FaultKeys.h"
#include "node/scenario/Reference.h"
#include "node/scenario/Scenario.h"
#include "node/trace/TraceLibrary.h"

namespace node::cli
{

namespace
{

std::string loadScenario(Desk& desk, const ScenarioName& name)
{
    desk.start(scenario::load(name.nameOrFile).configuration);
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

std::string listScenarios(Desk& /*desk*/)
{
    std::string text;
    for (const std::string& name : scenario::readyScenarios())
    {
        text += fmt::format("{:<27} {}\n", name, descriptionOf(name));
    }
    return text;
}

std::string addFault(Desk& desk, const FaultWords& words)
{
    desk.faults().add(scenario::typedFault(words.words, "addFault"));
    return "";
}

/// "criGetRadioChannelStatus channel=1 code=7 from_call=2 calls=3: seen 4, hit 3"
std::string faultText(const services::PlannedFault& planned)
{
    const services::Fault& fault = planned.fault;
    std::string text(fault.call->name);
    text += fault.channel ? fmt::format(" channel={}", *fault.channel) : "";
    text += fault.code ? fmt::format(" code={}", *fault.code) : "";
    text += fault.text ? " text=" + wording::quoted(*fault.text) : "";
    text += fault.throws ? " throws=true" : "";
    text += fault.fromCall != 1 ? fmt::format(" from_call={}", fault.fromCall) : "";
    text += fault.calls ? fmt::format(" calls={}", *fault.calls) : "";
    return text + fmt::format(": seen {}, hit {}\n", planned.seen, planned.hits);
}

std::string listFaults(Desk& desk)
{
    std::string text;
    for (const services::PlannedFault& planned : desk.faults().list())
    {
        text += faultText(planned);
    }
    return text;
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

std::string listCalls(Desk& /*desk*/)
{
    std::string text;
    for (const services::PlatformCall& call : services::platformCalls())
    {
        text += fmt::format("{:<50} {}\n", call.name, answerText(call));
    }
    return text;
}

std::string setTraceLevel(Desk& /*desk*/, const ChannelPattern& pattern, TraceLevel level)
{
    bool met = false;
    std::vector<std::string> names;
    for (const auto& [name, before] : trace::levels())
    {
        names.push_back(name);
        if (fnmatch(pattern.pattern.c_str(), name.c_str(), 0) == 0)
        {
            trace::setLevel(name, level.level);
            met = true;
        }
    }
    if (!met)
    {
        throw wording::InputError("setTraceLevel: argument 1 (channels)", wording::quoted(pattern.pattern),
                                  "a pattern that fits a channel that \"listTraceLevels\" lists" +
                                      wording::didYouMean(pattern.pattern, names));
    }
    return "";
}

std::string listTraceLevels(Desk& /*desk*/)
{
    std::string text;
    for (const auto& [name, level] : trace::levels())
    {
        text += fmt::format("{:<32} {}\n", name, level);
    }
    return text;
}

} // namespace

CommandGroup nodeCommands()
{
    Command add = makeCommand("addFault", addFault, "Plan a fault of a platform call",
                              {{"call", "which call, and what shall happen to it", "[KEY=VALUE...]"}});
    add.details = "Keys:\n" + scenario::faultKeyList();
    return {"The node",
            {
                makeCommand("loadScenario", loadScenario, "End the node and start the one of a scenario",
                            {{"scenario", "which one"}}),
                makeCommand("listScenarios", listScenarios, "List the ready scenarios"),
                add,
                makeCommand("listFaults", listFaults, "List the planned faults and how often they hit"),
                makeCommand("clearFaults", clearFaults, "Drop all planned faults"),
                makeCommand("listCalls", listCalls, "List the platform calls that can fail"),
                makeCommand("setTraceLevel", setTraceLevel, "Choose how much trace channels let through",
                            {{"channels", "which trace channels"}, {"level", "up to which level; 0 for none"}}),
                makeCommand("listTraceLevels", listTraceLevels, "List the trace channels with their levels"),
            }};
}

} // namespace node::cli
