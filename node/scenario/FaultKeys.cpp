#include "node/scenario/FaultKeys.h"

#include <algorithm>

#include <fmt/format.h>

#include "node/scenario/Keys.h"

namespace node::scenario
{

using wording::InputError;
using wording::quoted;

void checkFault(const services::Fault& fault, const std::function<std::string(const std::string& key)>& placeOf)
{
    if (fault.call == nullptr)
    {
        throw InputError(placeOf("call"), "no call", "the key \"call\"");
    }
    const auto& call = *fault.call;
    if (fault.channel && !call.hasChannel)
    {
        throw InputError(placeOf("channel"), std::to_string(*fault.channel),
                         fmt::format("no channel: {} is about none", call.name));
    }
    if (fault.code && fault.throws)
    {
        throw InputError(placeOf("code"), std::to_string(*fault.code), "no code: a call that throws answers nothing");
    }
    if (fault.code && !call.answersCode())
    {
        throw InputError(placeOf("code"), std::to_string(*fault.code),
                         fmt::format("no code: {} answers none", call.name));
    }
    if (fault.text && !fault.throws && !call.answersText())
    {
        throw InputError(placeOf("text"), quoted(*fault.text), fmt::format("no text: {} answers none", call.name));
    }
    if (!fault.throws && call.kind == services::AnswerKind::Nothing)
    {
        throw InputError(placeOf("throws"), "false", fmt::format("true: {} answers nothing", call.name));
    }
}

services::Fault typedFault(const std::vector<std::string>& words, const std::string& place)
{
    const auto placeOf = [&](const std::string& key) { return fmt::format("{}: {}", place, key); };
    const std::string callKey = "call";

    services::Fault fault;
    find(faultKeys(), callKey)->read(typedValue(placeOf(callKey), words.at(0)), fault);
    std::vector<std::string> open = namesOf(faultKeys()); // keys that may still come
    std::erase(open, callKey);
    for (std::size_t i = 1; i < words.size(); ++i)
    {
        const std::size_t sign = words[i].find('=');
        const std::string name = words[i].substr(0, sign);
        if (sign == std::string::npos || std::erase(open, name) == 0)
        {
            throw InputError(fmt::format("{}: argument {}", place, i + 1), quoted(words[i]),
                             "KEY=VALUE, each key once, as \"help addFault\" lists them" +
                                 wording::didYouMean(name, open));
        }
        find(faultKeys(), name)->read(typedValue(placeOf(name), words[i].substr(sign + 1)), fault);
    }
    checkFault(fault, placeOf);
    if (!fault.call->hasChannel)
    {
        throw InputError(placeOf(callKey), quoted(words.front()),
                         "a call that is made after the start; this one belongs into a scenario");
    }
    return fault;
}

std::vector<std::string> typedFaultChoices(const std::vector<std::string>& words)
{
    std::vector<std::string> choices;
    if (words.size() <= 1)
    {
        for (const auto& call : services::platformCalls())
        {
            if (call.hasChannel) // others are made at the start alone
            {
                choices.emplace_back(call.name);
            }
        }
        return choices;
    }
    for (const std::string& name : namesOf(faultKeys()))
    {
        const auto typed = [&](const std::string& word) { return word.starts_with(name + "="); };
        if (name != "call" && std::none_of(words.begin() + 1, words.end() - 1, typed))
        {
            choices.push_back(name + "=");
        }
    }
    return choices;
}

} // namespace node::scenario
