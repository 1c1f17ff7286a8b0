#pragma once

#include <concepts>
#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

#include <fmt/format.h>

#include "node/cli/Command.h"
#include "node/cli/Value.h"
#include "node/wording/InputError.h"

/// Makes commands of functions: a function's parameters say which words it takes, which values fit, and what is
/// printed.
namespace node::cli
{

/// The words of a line, taken one by one.
class Words
{
public:
    Words(const Command& command, const std::vector<std::string>& words) : m_command(command), m_words(words)
    {
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
        const Argument& argument = m_command.arguments.at(m_next);
        const std::string place = fmt::format("{}: argument {} ({})", m_command.name, m_next + 1, argument.name);
        if (atEnd())
        {
            throw wording::InputError(place, "nothing", argument.form);
        }
        const std::string& word = m_words[m_next++];
        const auto value = parse(word);
        if (!value)
        {
            throw wording::InputError(place, wording::quoted(word), argument.form);
        }
        return *value;
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

private:
    const Command& m_command;
    const std::vector<std::string>& m_words;
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

/// What a parameter is to the command line: an argument to read, or a place for something to print.
template <typename Parameter>
struct Slot;

/// An argument: read before the call.
template <typename Value>
struct ArgumentSlot
{
    static constexpr bool IsArgument = true;
    static constexpr bool IsOptional = false;

    const Value& pass() const
    {
        return value;
    }

    std::string print(int /*result*/) const
    {
        return "";
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
    static std::string form()
    {
        using Limits = std::numeric_limits<Parameter>;
        return wording::wholeRange(Limits::min(), Limits::max());
    }

    void read(Words& words)
    {
        this->value = words.take(parseNumberOf<Parameter>);
    }
};

template <TypedValue Parameter>
struct Slot<Parameter> : ArgumentSlot<Parameter>
{
    static std::string form()
    {
        return Parameter::form();
    }

    void read(Words& words)
    {
        this->value = words.take(Parameter::parse);
    }
};

template <TypedValue Value>
struct Slot<std::optional<Value>> : ArgumentSlot<std::optional<Value>>
{
    static constexpr bool IsOptional = true;

    static std::string form()
    {
        return Value::form();
    }

    void read(Words& words)
    {
        if (!words.atEnd())
        {
            this->value = words.take(Value::parse);
        }
    }
};

template <>
struct Slot<FaultWords> : ArgumentSlot<FaultWords>
{
    static std::string form()
    {
        return FaultWords::form();
    }

    void read(Words& words)
    {
        value.words = words.takeRest();
    }
};

template <>
struct Slot<DpdCoeffs> : ArgumentSlot<DpdCoeffs>
{
    static std::string form()
    {
        return coefficientsForm();
    }

    void read(Words& words)
    {
        value = words.take(parseCoefficients);
    }
};

/// A report is printed as the module wrote it, whether the command succeeded or failed.
template <>
struct Slot<std::string&> : FilledSlot
{
    std::string& pass()
    {
        return report;
    }

    std::string print(int /*result*/) const
    {
        return report;
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

    std::string print(int result) const
    {
        return result == 0 ? fmt::format("{}\n", byte) : "";
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

    std::string print(int result) const
    {
        return result == 0 ? printCoefficients(coefficients) + "\n" : "";
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
        arguments.push_back({text.name, Slot<Parameter>::form(), text.meaning, Slot<Parameter>::IsOptional, text.more});
    }
}

/// The command whose words are read into a slot for each parameter.
/// @param texts   as many as there are arguments to read
/// @param invoke  called with the desk and the slots; answers the outcome
template <typename... Parameters, typename Invoke>
Command makeCommand(const std::string& name, const std::string& summary, const std::vector<ArgumentText>& texts,
                    const Invoke& invoke)
{
    Command described{name, summary, {}, "", nullptr};
    (addArgument<Parameters>(described.arguments, texts), ...);
    Command command = described;
    command.call = [invoke, described](Desk& desk, const std::vector<std::string>& typed)
    {
        Words words(described, typed);
        std::tuple<Slot<Parameters>...> slots;
        std::apply([&](auto&... slot) { (slot.read(words), ...); }, slots);
        words.end();
        return std::apply([&](auto&... slot) { return invoke(desk, slot...); }, slots);
    };
    return command;
}

/// The command that calls `member` of the module.
template <typename... Parameters>
Command makeCommand(const std::string& name,
                    int (IRlbspKelApi::KelDebugCmdCallback::*member)(RadioChannel, Parameters...),
                    const std::string& summary, const std::vector<ArgumentText>& texts = {})
{
    std::vector<ArgumentText> all = {{"channel", "radio channel"}};
    all.insert(all.end(), texts.begin(), texts.end());
    const auto invoke = [member](Desk& desk, Slot<ChannelNumber>& channel, Slot<Parameters>&... slot)
    {
        const int result = (desk.commands().*member)(channel.value.number, slot.pass()...);
        return Outcome{result, (std::string() + ... + slot.print(result))};
    };
    return makeCommand<ChannelNumber, Parameters...>(name, summary, all, invoke);
}

/// The command that calls `function`, which answers what to print.
template <typename... Parameters>
Command makeCommand(const std::string& name, std::string (*function)(Desk&, Parameters...), const std::string& summary,
                    const std::vector<ArgumentText>& texts = {})
{
    const auto invoke = [function](Desk& desk, Slot<std::remove_cvref_t<Parameters>>&... slot) {
        return Outcome{0, function(desk, slot.pass()...)};
    };
    return makeCommand<std::remove_cvref_t<Parameters>...>(name, summary, texts, invoke);
}

} // namespace node::cli
