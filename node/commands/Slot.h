#pragma once

#include <concepts>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "node/commands/Value.h"
#include "node/commands/Words.h"
#include "node/scenario/FaultKeys.h"

namespace node::commands
{

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

} // namespace node::commands
