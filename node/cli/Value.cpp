#include "node/cli/Value.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string_view>

#include "node/wording/InputError.h"
#include "node/wording/Number.h"

namespace node::cli
{

namespace
{

constexpr RadioChannel FirstChannel = 1;
constexpr RadioChannel LastChannel = 2;

constexpr radio::Ticks LongestTime = std::chrono::hours(100);

struct Unit
{
    std::string_view name;
    double inTicks;
};

constexpr Unit Units[] = {{"min", 600.0}, {"h", 36000.0}, {"s", 10.0}, {"", 10.0}};

std::optional<double> parseWithin(const std::string& word, radio::Range<double> range)
{
    const auto number = wording::parseReal(word);
    return number && range.contains(*number) ? number : std::nullopt;
}

std::string formOf(radio::Range<double> range, const std::string& unit)
{
    return wording::numberRange(range.lowest, range.highest) + " (" + unit + ")";
}

} // namespace

std::optional<std::int64_t> parseNumber(const std::string& word, std::int64_t lowest, std::int64_t highest)
{
    const auto number = wording::parseWhole(word);
    return number && *number >= lowest && *number <= highest ? number : std::nullopt;
}

std::string coefficientsForm()
{
    return wording::bytesForm(sizeof(DpdCoeffs));
}

std::optional<DpdCoeffs> parseCoefficients(const std::string& word)
{
    DpdCoeffs coefficients;
    const auto bytes = wording::parseBytes(word, coefficients.bytes.size());
    if (!bytes)
    {
        return std::nullopt;
    }
    std::copy(bytes->begin(), bytes->end(), coefficients.bytes.begin());
    return coefficients;
}

std::string printCoefficients(const DpdCoeffs& coefficients)
{
    return wording::printBytes(coefficients.bytes);
}

std::string ChannelNumber::form()
{
    return wording::wholeRange(FirstChannel, LastChannel);
}

std::optional<ChannelNumber> ChannelNumber::parse(const std::string& word)
{
    const auto number = parseNumber(word, FirstChannel, LastChannel);
    return number ? std::optional(ChannelNumber{static_cast<RadioChannel>(*number)}) : std::nullopt;
}

std::string Duration::form()
{
    return "a time from 0.1s to 100h in steps of 0.1s, such as 30, 1.5s, 10min or 2h";
}

std::optional<Duration> Duration::parse(const std::string& word)
{
    const auto* const unit =
        std::find_if(std::begin(Units), std::end(Units), [&](const Unit& row) { return word.ends_with(row.name); });
    const auto number = wording::parseReal(std::string_view(word).substr(0, word.size() - unit->name.size()));
    if (!number || *number <= 0.0 || *number * unit->inTicks > static_cast<double>(LongestTime.count()))
    {
        return std::nullopt;
    }
    constexpr double Rounding = 1e-6; // 0.1 has no exact form in binary
    const double ticks = *number * unit->inTicks;
    const double whole = std::round(ticks);
    const bool inSteps = whole >= 1.0 && std::abs(ticks - whole) < Rounding;
    return inSteps ? std::optional(Duration{radio::Ticks(static_cast<std::int64_t>(whole))}) : std::nullopt;
}

std::string RainRate::form()
{
    return formOf(radio::RainRate_mm_per_h, "mm/h");
}

std::optional<RainRate> RainRate::parse(const std::string& word)
{
    const auto number = parseWithin(word, radio::RainRate_mm_per_h);
    return number ? std::optional(RainRate{*number}) : std::nullopt;
}

std::string FadeDepth::form()
{
    return formOf(radio::FadeDepth_dB, "dB");
}

std::optional<FadeDepth> FadeDepth::parse(const std::string& word)
{
    const auto number = parseWithin(word, radio::FadeDepth_dB);
    return number ? std::optional(FadeDepth{*number}) : std::nullopt;
}

std::string Distance::form()
{
    return formOf(radio::Distance_km, "km");
}

std::optional<Distance> Distance::parse(const std::string& word)
{
    const auto number = parseWithin(word, radio::Distance_km);
    return number ? std::optional(Distance{*number}) : std::nullopt;
}

std::string Switch::form()
{
    return "on or off";
}

std::optional<Switch> Switch::parse(const std::string& word)
{
    return word == "on" || word == "off" ? std::optional(Switch{word == "on"}) : std::nullopt;
}

std::string TraceLevel::form()
{
    return wording::wholeRange(0, 255);
}

std::optional<TraceLevel> TraceLevel::parse(const std::string& word)
{
    const auto number = parseNumber(word, 0, 255);
    return number ? std::optional(TraceLevel{static_cast<std::int32_t>(*number)}) : std::nullopt;
}

std::string ScenarioName::form()
{
    return "a name that \"listScenarios\" lists, or a TOML file";
}

std::optional<ScenarioName> ScenarioName::parse(const std::string& word)
{
    return ScenarioName{word};
}

std::string ChannelPattern::form()
{
    return "a name, with * for any letters and ? for any one";
}

std::optional<ChannelPattern> ChannelPattern::parse(const std::string& word)
{
    return ChannelPattern{word};
}

std::string FileName::form()
{
    return "a file that can be written, - for standard output";
}

std::optional<FileName> FileName::parse(const std::string& word)
{
    return FileName{word};
}

std::string FaultWords::form()
{
    return "a call that \"listCalls\" lists, then any of the keys";
}

} // namespace node::cli
