#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <iterator>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "node/radio/Range.h"
#include "node/scenario/Value.h"

/// A key of a scenario file is a row: name, what it takes, its default, what it means, and how it is read into its
/// target. Reader, prompt and reference go by the same rows.
namespace node::scenario
{

template <typename Target>
struct Key
{
    std::string name;
    std::string form;        ///< "a number from 0.1 to 100"
    std::string defaultText; ///< as it would stand in a file; "" for none
    std::string meaning;

    /// @throws InputError when the value does not fit; nothing is changed then
    std::function<void(const Value&, Target&)> read;
};

template <typename Target>
using Keys = std::vector<Key<Target>>;

template <typename Target>
std::vector<std::string> namesOf(const Keys<Target>& keys)
{
    std::vector<std::string> names;
    std::transform(keys.begin(), keys.end(), std::back_inserter(names), [](const auto& key) { return key.name; });
    return names;
}

/// Null when there is no key of that name.
template <typename Target>
const Key<Target>* find(const Keys<Target>& keys, const std::string& name)
{
    const auto row = std::find_if(keys.begin(), keys.end(), [&](const auto& key) { return key.name == name; });
    return row == keys.end() ? nullptr : &*row;
}

/// The type of number in a member that may be without one.
template <typename Member>
struct Plain
{
    using Type = Member;
};

template <typename Number>
struct Plain<std::optional<Number>>
{
    using Type = Number;
};

/// A number as it would stand in a file; "" for a member without one.
template <typename Number>
std::string shown(const Number& number)
{
    return fmt::format("{}", number);
}

template <typename Number>
std::string shown(const std::optional<Number>& number)
{
    return number ? shown(*number) : "";
}

// The makers of rows take `access`, from a target to the member that the key sets. A key's default is what that member
// holds in a new target.

template <typename Target, typename Access>
Key<Target> numberKey(const std::string& name, Access access, radio::Range<double> range, const std::string& meaning)
{
    Target fresh{};
    const std::string form = wording::numberRange(range.lowest, range.highest);
    return {name, form, shown(access(fresh)), meaning,
            [=](const Value& value, Target& target)
            {
                if (!value.number || !range.contains(*value.number))
                {
                    value.refuse(form);
                }
                access(target) = *value.number;
            }};
}

template <typename Target, typename Access>
Key<Target> wholeKey(const std::string& name, Access access, radio::Range<std::int64_t> range,
                     const std::string& meaning)
{
    using Number = typename Plain<std::remove_cvref_t<std::invoke_result_t<Access, Target&>>>::Type;
    Target fresh{};
    const std::string form = wording::wholeRange(range.lowest, range.highest);
    return {name, form, shown(access(fresh)), meaning,
            [=](const Value& value, Target& target)
            {
                if (!value.whole || !range.contains(*value.whole))
                {
                    value.refuse(form);
                }
                access(target) = static_cast<Number>(*value.whole);
            }};
}

template <typename Target, typename Access>
Key<Target> flagKey(const std::string& name, Access access, const std::string& meaning)
{
    Target fresh{};
    const std::string form = "true or false";
    return {name, form, shown(access(fresh)), meaning,
            [=](const Value& value, Target& target)
            {
                if (!value.flag)
                {
                    value.refuse(form);
                }
                access(target) = *value.flag;
            }};
}

template <typename Target, typename Access>
Key<Target> textKey(const std::string& name, Access access, const std::string& meaning)
{
    const std::string form = "a text";
    return {name, form, "", meaning,
            [=](const Value& value, Target& target)
            {
                if (!value.text)
                {
                    value.refuse(form);
                }
                access(target) = *value.text;
            }};
}

/// One of several words, each of which stands for a choice.
template <typename Choice>
using Choices = std::vector<std::pair<std::string, Choice>>;

/// @param form  what is expected; "" lists the words
template <typename Target, typename Choice, typename Access>
Key<Target> wordKey(const std::string& name, Access access, const Choices<Choice>& choices, const std::string& meaning,
                    std::string form = "")
{
    std::vector<std::string> all;
    std::vector<std::string> allQuoted;
    std::string defaultText;
    Target fresh{};
    for (const auto& [word, choice] : choices)
    {
        all.push_back(word);
        allQuoted.push_back(wording::quoted(word));
        if (choice == access(fresh))
        {
            defaultText = allQuoted.back();
        }
    }
    if (form.empty())
    {
        form = fmt::format("one of {}", fmt::join(allQuoted, ", "));
    }
    return {name, form, defaultText, meaning,
            [=](const Value& value, Target& target)
            {
                const auto chosen = std::find_if(choices.begin(), choices.end(),
                                                 [&](const auto& entry) { return value.text == entry.first; });
                if (chosen == choices.end())
                {
                    value.refuse(form + (value.text ? wording::didYouMean(*value.text, all) : ""));
                }
                access(target) = chosen->second;
            }};
}

} // namespace node::scenario
