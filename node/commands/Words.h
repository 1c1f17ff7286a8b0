#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "node/commands/Command.h"
#include "node/commands/TypedOptions.h"
#include "node/wording/InputError.h"

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

} // namespace node::commands
