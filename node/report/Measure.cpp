#include "node/report/Measure.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <system_error>
#include <utility>

#include "node/report/Text.h"
#include "node/wording/Number.h"

namespace node::report
{

namespace
{

using std::string_view;

constexpr auto None = string_view::npos;

bool isUnit(string_view word)
{
    constexpr string_view characters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz/%";
    return !word.empty() && word.find_first_not_of(characters) == None;
}

std::optional<Number> numberOf(string_view text)
{
    std::int64_t whole = 0;
    const char* const last = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data(), last, whole);
    if (error == std::errc{} && end == last)
    {
        return whole;
    }
    return wording::parseReal(text);
}

/// The text before its last word, and that word where it is a unit.
std::pair<string_view, string_view> splitUnit(string_view text)
{
    const auto blank = text.find_last_of(Blanks);
    if (blank == None || !isUnit(text.substr(blank + 1)))
    {
        return {text, ""};
    }
    return {trimmed(text.substr(0, blank)), text.substr(blank + 1)};
}

/// Where the number begins that the text ends in.
std::size_t beginOfNumber(string_view text)
{
    const auto beginOfDigits = [&](std::size_t end)
    {
        const auto before = text.substr(0, end).find_last_not_of("0123456789.");
        return before == None ? 0 : before + 1;
    };
    std::size_t begin = beginOfDigits(text.size());
    const string_view before = text.substr(0, begin);
    if (before.ends_with("e+") || before.ends_with("e-"))
    {
        const std::size_t exponent = begin - 2;
        const std::size_t mantissa = beginOfDigits(exponent);
        begin = mantissa < exponent ? mantissa : begin;
    }
    return begin > 0 && text[begin - 1] == '-' ? begin - 1 : begin;
}

} // namespace

std::optional<Measure> measureOf(string_view text)
{
    const auto [digits, unit] = splitUnit(text);
    const auto number = numberOf(digits);
    return number ? std::optional(Measure{*number, unit}) : std::nullopt;
}

std::optional<NamedMeasure> namedMeasureOf(string_view text)
{
    const auto [named, unit] = splitUnit(text);
    const std::size_t begin = beginOfNumber(named);
    const string_view name = trimmed(named.substr(0, begin));
    const auto number = numberOf(named.substr(begin));
    return !name.empty() && number ? std::optional(NamedMeasure{name, {*number, unit}}) : std::nullopt;
}

MeasuredLabel measuredLabel(string_view label)
{
    // One unit has one spelling, whoever reads it: labels write some otherwise than values do.
    constexpr std::array<std::pair<string_view, string_view>, 3> spellings = {
        {{".1dB", "0.1 dB"}, {"KHz", "kHz"}, {"nsec", "ns"}}};

    const auto bracket = std::min(label.find_last_of('['), label.size());
    const string_view bare = trimmed(label.substr(0, bracket));
    if (bare.empty() || bare.size() == label.size() || !label.ends_with(']'))
    {
        return {label, ""};
    }
    const string_view unit = label.substr(bracket + 1, label.size() - bracket - 2);
    for (const auto& [found, spelling] : spellings)
    {
        if (unit == found)
        {
            return {bare, spelling};
        }
    }
    return isUnit(unit) ? MeasuredLabel{bare, unit} : MeasuredLabel{label, ""};
}

} // namespace node::report
