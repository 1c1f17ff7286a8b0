#pragma once

#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

#include "node/commands/Slot.h"

/// Makes commands of functions: a function's parameters say which words it takes, which values fit, and what is
/// printed.
namespace node::commands
{

/// Name and meaning of an argument; its type says the rest.
struct ArgumentText
{
    std::string name;
    std::string meaning;
    std::string more{}; ///< as in Argument
};

template <typename Parameter>
void addArgument(std::vector<Argument>& arguments, const std::vector<ArgumentText>& texts)
{
    if constexpr (Slot<Parameter>::IsArgument)
    {
        const ArgumentText& text = texts.at(arguments.size());
        Argument argument = Slot<Parameter>::argument();
        argument.name = text.name;
        argument.meaning = text.meaning;
        argument.more = text.more;
        arguments.push_back(argument);
    }
}

/// The command whose words are read into a slot for each parameter.
/// @param texts   as many as there are arguments to read
/// @param invoke  called with desk, console and slots; answers the outcome
template <typename... Parameters, typename Invoke>
Command makeCommandOf(const std::string& name, const std::string& summary, const std::vector<ArgumentText>& texts,
                      const Invoke& invoke)
{
    Command described{name, summary, {}, "", nullptr};
    (addArgument<Parameters>(described.arguments, texts), ...);
    Command command = described;
    command.call = [invoke, described](Desk& desk, Console& console, const std::vector<std::string>& typed)
    {
        Words words(described, typed);
        std::tuple<Slot<Parameters>...> slots;
        std::apply([&](auto&... slot) { (slot.read(words), ...); }, slots);
        words.end();
        try
        {
            return std::apply([&](auto&... slot) { return invoke(desk, console, slot...); }, slots);
        }
        catch (const Misfit& misfit)
        {
            throw words.unfit(misfit);
        }
    };
    return command;
}

inline void add(Outcome& outcome, const Printed& printed)
{
    outcome.output += printed.text;
    outcome.fields.insert(outcome.fields.end(), printed.fields.begin(), printed.fields.end());
    outcome.isReport = outcome.isReport || printed.isReport;
}

/// The command that calls `member` of the module.
template <typename... Parameters>
Command makeCommand(const std::string& name,
                    int (IRlbspKelApi::KelDebugCmdCallback::*member)(RadioChannel, Parameters...),
                    const std::string& summary, const std::vector<ArgumentText>& texts = {})
{
    std::vector<ArgumentText> all = {{"channel", "radio channel"}};
    all.insert(all.end(), texts.begin(), texts.end());
    const auto invoke =
        [member](Desk& desk, Console& /*console*/, Slot<ChannelNumber>& channel, Slot<Parameters>&... slot)
    {
        Outcome outcome{(desk.commands().*member)(channel.value.number, slot.pass()...), "", {}};
        (add(outcome, slot.print(outcome.result)), ...);
        return outcome;
    };
    return makeCommandOf<ChannelNumber, Parameters...>(name, summary, all, invoke);
}

/// What a function of the simulated node answered.
inline Outcome outcomeOf(const std::string& text)
{
    return {0, text, {}};
}

inline Outcome outcomeOf(const Outcome& outcome)
{
    return outcome;
}

/// The command that calls `function`, which answers what to print, or the whole outcome.
template <typename Answered, typename... Parameters>
Command makeCommand(const std::string& name, Answered (*function)(Desk&, Parameters...), const std::string& summary,
                    const std::vector<ArgumentText>& texts = {})
{
    const auto invoke = [function](Desk& desk, Console& /*console*/, Slot<std::remove_cvref_t<Parameters>>&... slot)
    { return outcomeOf(function(desk, slot.pass()...)); };
    return makeCommandOf<std::remove_cvref_t<Parameters>...>(name, summary, texts, invoke);
}

template <typename Answered, typename... Parameters>
Command makeCommand(const std::string& name, Answered (*function)(Desk&, Console&, Parameters...),
                    const std::string& summary, const std::vector<ArgumentText>& texts = {})
{
    const auto invoke = [function](Desk& desk, Console& console, Slot<std::remove_cvref_t<Parameters>>&... slot)
    { return outcomeOf(function(desk, console, slot.pass()...)); };
    return makeCommandOf<std::remove_cvref_t<Parameters>...>(name, summary, texts, invoke);
}

} // namespace node::commands
