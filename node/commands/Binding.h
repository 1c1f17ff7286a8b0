#pragma once

#include <concepts>
#include <cstddef>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

#include <fmt/format.h>

#include "node/commands/Command.h"
#include "node/commands/TypedOptions.h"
#include "node/commands/Value.h"
#include "node/scenario/FaultKeys.h"
#include "node/wording/InputError.h"

/// Makes commands of functions: a function's parameters say which words it takes, which values fit, and what is
/// printed.
namespace node::commands
{

/// Thrown by the function of a command: an argument has the right form, but does not fit what is there.
struct Misfit
{
    std::string argument; ///< its name
    std::string found;
    std::string expected{}; ///< "" where it is what the argument's form says
};

/// The words of a line, taken one by one.
class Words
{
    template <typename Parse>
    auto fitting(const Parse& parse, const std::string& word, const Argument& argument) const
    {
        const auto value = parse(word);
        if (!value)
        {
            throw unfit(argument, wording::quoted(word), argument.form);
        }
        return *value;
    }

public:
    /// @throws InputError for an option without a value or given twice
    Words(const Command& command, const std::vector<std::string>& words);

    const Command& command() const
    {
        return m_command;
    }

    bool atEnd() const
    {
        return m_next == m_words.size();
    }

    /// Parses the next word.
    /// @throws InputError when there is none, or it does not fit
    template <typename Parse>
    auto take(const Parse& parse)
    {
        const Argument& argument = *m_arguments.at(m_next);
        if (atEnd())
        {
            throw unfit(argument, "nothing", argument.form);
        }
        return fitting(parse, m_words[m_next++], argument);
    }

    /// Parses the word behind an option; none where the option is not there.
    /// @throws InputError when it does not fit
    template <typename Parse>
    auto takeOption(const std::string& option, const Parse& parse) -> decltype(parse(option))
    {
        const auto typed = m_options.find(option);
        if (typed == m_options.end())
        {
            return std::nullopt;
        }
        return fitting(parse, typed->second.value, *typed->second.argument);
    }

    /// All words that are left.
    /// @throws InputError when there are none
    std::vector<std::string> takeRest()
    {
        std::vector<std::string> rest = {take([](const std::string& word) { return std::optional(word); })};
        rest.insert(rest.end(), m_words.begin() + static_cast<std::ptrdiff_t>(m_next), m_words.end());
        m_next = m_words.size();
        return rest;
    }

    /// @throws InputError when words are left over
    void end() const
    {
        if (!atEnd())
        {
            throw wording::InputError(fmt::format("{}: argument {}", m_command.name, m_next + 1),
                                      wording::quoted(m_words[m_next]), "nothing more");
        }
    }

    /// The error at the place of an argument of the command.
    wording::InputError unfit(const Argument& argument, const std::string& found, const std::string& expected) const;

    /// The error at the place of the argument that a function found not to fit.
    wording::InputError unfit(const Misfit& misfit) const;

private:
    const Command& m_command;
    std::vector<const Argument*> m_arguments;     ///< those that are not options
    std::map<std::string, TypedOption> m_options; ///< by their words
    std::vector<std::string> m_words;             ///< those behind the options
    std::size_t m_next = 0;
};

/// A value that knows which words it accepts.
template <typename Value>
concept TypedValue = requires(const std::string& word)
{
    {
        Value::form()
        } -> std::same_as<std::string>;
    {
        Value::parse(word)
        } -> std::same_as<std::optional<Value>>;
};

/// A value that is typed behind a word such as "-n", or left out.
template <char Letter, TypedValue Value>
struct Option
{
    static std::string word()
    {
        return {'-', Letter};
    }

    std::optional<Value> value;
};

/// The argument that takes a value: all of it but its name and meaning.
template <typename Value>
Argument argumentOf()
{
    Argument argument{"", Value::form(), ""};
    if constexpr (requires { Value::Kind; })
    {
        argument.kind = Value::Kind;
    }
    if constexpr (requires(const std::string& word) { Value::choices(word); })
    {
        argument.choices = [](const std::vector<std::string>& words) { return Value::choices(words.back()); };
    }
    if constexpr (requires(const std::vector<std::string>& words) { Value::choices(words); })
    {
        argument.choices = Value::choices;
    }
    return argument;
}

/// What a parameter is to the command line: an argument to read, or a place for something to print.
template <typename Parameter>
struct Slot;

/// What a slot adds to the outcome of its command.
struct Printed
{
    std::string text;
    std::vector<report::Field> fields{};
    bool isReport = false;
};

/// An argument: read before the call.
template <typename Value>
struct ArgumentSlot
{
    static constexpr bool IsArgument = true;

    const Value& pass() const
    {
        return value;
    }

    Printed print(int /*result*/) const
    {
        return {};
    }

    Value value{};
};

/// A place that the command fills: no word is typed for it.
struct FilledSlot
{
    static constexpr bool IsArgument = false;

    void read(Words& /*words*/)
    {
    }
};

/// Every number that its type holds may be sent: the module and the services judge it, not the command line.
template <std::integral Parameter>
struct Slot<Parameter> : ArgumentSlot<Parameter>
{
    static Argument argument()
    {
        using Limits = std::numeric_limits<Parameter>;
        return {"", wording::wholeRange(Limits::min(), Limits::max()), ""};
    }

    void read(Words& words)
    {
        this->value = words.take(parseNumberOf<Parameter>);
    }
};

template <TypedValue Parameter>
struct Slot<Parameter> : ArgumentSlot<Parameter>
{
    static Argument argument()
    {
        return argumentOf<Parameter>();
    }

    void read(Words& words)
    {
        this->value = words.take(Parameter::parse);
    }
};

template <TypedValue Value>
struct Slot<std::optional<Value>> : ArgumentSlot<std::optional<Value>>
{
    static Argument argument()
    {
        Argument described = argumentOf<Value>();
        described.optional = true;
        return described;
    }

    void read(Words& words)
    {
        if (!words.atEnd())
        {
            this->value = words.take(Value::parse);
        }
    }
};

template <char Letter, TypedValue Value>
struct Slot<Option<Letter, Value>> : ArgumentSlot<Option<Letter, Value>>
{
    static Argument argument()
    {
        Argument described = argumentOf<Value>();
        described.optional = true;
        described.option = Option<Letter, Value>::word();
        return described;
    }

    void read(Words& words)
    {
        this->value.value = words.takeOption(Option<Letter, Value>::word(), Value::parse);
    }
};

template <>
struct Slot<TypedFault> : ArgumentSlot<TypedFault>
{
    static Argument argument()
    {
        Argument described = argumentOf<TypedFault>();
        described.extent = Extent::Words;
        return described;
    }

    void read(Words& words)
    {
        value.fault = scenario::typedFault(words.takeRest(), words.command().name);
    }
};

template <>
struct Slot<CommandWords> : ArgumentSlot<CommandWords>
{
    static Argument argument()
    {
        Argument described = argumentOf<CommandWords>();
        described.extent = Extent::Command;
        return described;
    }

    void read(Words& words)
    {
        value.words = words.takeRest();
    }
};

template <>
struct Slot<DpdCoeffs> : ArgumentSlot<DpdCoeffs>
{
    static Argument argument()
    {
        return {"", coefficientsForm(), ""};
    }

    void read(Words& words)
    {
        value = words.take(parseCoefficients);
    }
};

/// A report is printed as the module wrote it, whether the command succeeded or failed. What a failed one says is
/// whatever the service answered.
template <>
struct Slot<std::string&> : FilledSlot
{
    std::string& pass()
    {
        return report;
    }

    Printed print(int result) const
    {
        return {.text = report, .isReport = result == 0};
    }

    std::string report;
};

template <>
struct Slot<unsigned char*> : FilledSlot
{
    unsigned char* pass()
    {
        return &byte;
    }

    Printed print(int result) const
    {
        return result == 0 ? Printed{fmt::format("{}\n", byte), {{"", "value", std::int64_t{byte}}}} : Printed();
    }

    unsigned char byte = 0;
};

template <>
struct Slot<DpdCoeffs*> : FilledSlot
{
    DpdCoeffs* pass()
    {
        return &coefficients;
    }

    Printed print(int result) const
    {
        const std::string text = printCoefficients(coefficients);
        return result == 0 ? Printed{text + "\n", {{"", "value", text}}} : Printed();
    }

    DpdCoeffs coefficients;
};

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
