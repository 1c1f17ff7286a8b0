#pragma once

#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

#include <fmt/format.h>

#include "node/cli/Operation.h"
#include "node/cli/UsageError.h"
#include "node/cli/Value.h"

/// makeOperation() makes an Operation of a member of the callback interface: the member's parameters say which words it
/// takes, which values fit, and what it prints.
namespace node::cli
{

/// The words of a line, taken one by one.
class Words
{
public:
    Words(const Operation& operation, const std::vector<std::string>& words) : m_operation(operation), m_words(words)
    {
    }

    /// Parses the next word.
    /// @throws UsageError when there is none, or it does not fit
    template <typename Parse>
    auto take(const Parse& parse)
    {
        const Argument& argument = m_operation.arguments.at(m_next);
        const std::string place = fmt::format("{}: argument {} ({})", m_operation.name, m_next + 1, argument.name);
        if (m_next == m_words.size())
        {
            throw UsageError(place, "nothing", argument.form);
        }
        const std::string& word = m_words[m_next++];
        const auto value = parse(word);
        if (!value)
        {
            throw UsageError(place, quoted(word), argument.form);
        }
        return *value;
    }

    /// @throws UsageError when words are left over
    void end() const
    {
        if (m_next < m_words.size())
        {
            throw UsageError(fmt::format("{}: argument {}", m_operation.name, m_next + 1), quoted(m_words[m_next]),
                             "nothing more");
        }
    }

private:
    const Operation& m_operation;
    const std::vector<std::string>& m_words;
    std::size_t m_next = 0;
};

/// What a parameter of the interface is to the command line: an argument to read, or a place for something to print.
template <typename Parameter>
struct Slot;

/// An argument: a word, read before the call.
template <typename Value>
struct ArgumentSlot
{
    Value pass() const
    {
        return value;
    }

    std::string print(int /*result*/) const
    {
        return "";
    }

    Value value{};
};

/// A place that the command fills.
struct FilledSlot
{
    /// No word is typed for it.
    static std::optional<std::string> form()
    {
        return std::nullopt;
    }

    void read(Words& /*words*/)
    {
    }
};

/// Every number that its type holds may be sent: the module and the services judge it, not the command line.
template <typename Parameter>
requires std::is_integral_v<Parameter>
struct Slot<Parameter> : ArgumentSlot<Parameter>
{
    static std::optional<std::string> form()
    {
        return numberRange(std::numeric_limits<Parameter>::min(), std::numeric_limits<Parameter>::max());
    }

    void read(Words& words)
    {
        this->value = words.take(parseNumberOf<Parameter>);
    }
};

template <>
struct Slot<DpdCoeffs> : ArgumentSlot<DpdCoeffs>
{
    static std::optional<std::string> form()
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
};

/// The arguments that the parameters take, after the channel.
/// @param texts  as many as there are arguments to read
template <typename... Parameters>
std::vector<Argument> argumentsOf(const std::vector<ArgumentText>& texts)
{
    std::vector<Argument> arguments = {{"channel", numberRange(FirstChannel, LastChannel), "radio channel"}};
    const std::vector<std::optional<std::string>> forms = {Slot<Parameters>::form()...};
    for (const auto& form : forms)
    {
        if (form)
        {
            const ArgumentText& text = texts.at(arguments.size() - 1);
            arguments.push_back({text.name, *form, text.meaning});
        }
    }
    return arguments;
}

/// The operation that calls `member`.
template <typename... Parameters>
Operation makeOperation(const std::string& name,
                        int (IRlbspKelApi::KelDebugCmdCallback::*member)(RadioChannel, Parameters...),
                        const std::string& summary, const std::vector<ArgumentText>& texts = {})
{
    const Operation described{name, summary, argumentsOf<Parameters...>(texts), nullptr};
    Operation operation = described;
    operation.call =
        [member, described](IRlbspKelApi::KelDebugCmdCallback& commands, const std::vector<std::string>& typed)
    {
        Words words(described, typed);
        const RadioChannel channel = words.take(parseChannel);
        std::tuple<Slot<Parameters>...> slots;
        std::apply([&](auto&... slot) { (slot.read(words), ...); }, slots);
        words.end();
        return std::apply(
            [&](auto&... slot)
            {
                const int result = (commands.*member)(channel, slot.pass()...);
                return Outcome{result, (std::string() + ... + slot.print(result))};
            },
            slots);
    };
    return operation;
}

} // namespace node::cli
