#include "node/commands/Value.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <iterator>
#include <string_view>
#include <system_error>

#include <fmt/format.h>

#include "node/commands/Command.h"
#include "node/plot/Plot.h"
#include "node/scenario/FaultKeys.h"
#include "node/scenario/Scenario.h"
#include "node/terminal/WholeWord.h"
#include "node/trace/TraceLibrary.h"
#include "node/wording/InputError.h"
#include "node/wording/Number.h"

namespace node::commands
{

namespace
{

constexpr RadioChannel FirstChannel = 1;
constexpr RadioChannel LastChannel = 2;

constexpr std::chrono::hours LongestTime(100);

constexpr std::int64_t HighestCount = 1'000'000;

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

std::vector<std::string> ChannelNumber::choices(const std::string& /*word*/)
{
    std::vector<std::string> channels;
    for (RadioChannel channel = FirstChannel; channel <= LastChannel; ++channel)
    {
        channels.push_back(std::to_string(channel));
    }
    return channels;
}

std::string Duration::form()
{
    return fmt::format("a time from 0.1s to {}h in steps of 0.1s, such as 30, 1.5s, 10min or 2h", LongestTime.count());
}

std::optional<Duration> Duration::parse(const std::string& word)
{
    const auto* const unit =
        std::find_if(std::begin(Units), std::end(Units), [&](const Unit& row) { return word.ends_with(row.name); });
    const auto number = wording::parseReal(std::string_view(word).substr(0, word.size() - unit->name.size()));
    if (!number || *number <= 0.0 || *number * unit->inTicks > static_cast<double>(radio::Ticks(LongestTime).count()))
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

std::vector<std::string> Switch::choices(const std::string& /*word*/)
{
    return {"on", "off"};
}

std::string TraceLevel::form()
{
    return wording::wholeRange(0, Highest);
}

std::optional<TraceLevel> TraceLevel::parse(const std::string& word)
{
    const auto number = parseNumber(word, 0, Highest);
    return number ? std::optional(TraceLevel{static_cast<std::int32_t>(*number)}) : std::nullopt;
}

std::vector<std::string> pathsBeginning(const std::string& word)
{
    namespace fs = std::filesystem;
    const auto slash = word.rfind('/');
    const std::string folder = slash == std::string::npos ? "" : word.substr(0, slash + 1);
    const std::string begin = word.substr(folder.size());
    std::vector<std::string> paths;
    std::error_code error;
    for (fs::directory_iterator entry(folder.empty() ? "." : folder, error);
         !error && entry != fs::directory_iterator(); entry.increment(error))
    {
        const std::string name = entry->path().filename().string();
        if (name.starts_with(begin) && (!name.starts_with('.') || begin.starts_with('.')))
        {
            std::error_code unknown;
            paths.push_back(folder + name + (entry->is_directory(unknown) ? "/" : ""));
        }
    }
    return paths;
}

std::string ScenarioName::form()
{
    return "a name that \"listScenarios\" lists, or a TOML file";
}

std::vector<std::string> ScenarioName::choices(const std::string& word)
{
    std::vector<std::string> names = pathsBeginning(word);
    std::erase_if(names, [](const std::string& path)
                  { return terminal::isWhole(path) && !path.ends_with(scenario::FileExtension); });
    try
    {
        const std::vector<std::string> ready = scenario::readyScenarios();
        names.insert(names.end(), ready.begin(), ready.end());
    }
    catch (const wording::InputError&)
    {
        // Without their folder there are no ready ones to choose from.
    }
    return names;
}

std::string ChannelPattern::form()
{
    return "a name, with * for any letters and ? for any one";
}

std::vector<std::string> ChannelPattern::choices(const std::string& /*word*/)
{
    std::vector<std::string> names;
    for (const auto& [name, level] : trace::levels())
    {
        names.push_back(name);
    }
    return names;
}

std::string FileName::form()
{
    return "a file that can be written";
}

std::string TableName::form()
{
    return "a file that can be written, - for standard output";
}

std::string RecordingName::form()
{
    return "a file that \"record\" wrote";
}

std::string PictureName::form()
{
    return "a file that can be written, ending in .svg or .png";
}

std::optional<PictureName> PictureName::parse(const std::string& word)
{
    return plot::isPicture(word) ? AnyWord::parse(word) : std::nullopt;
}

std::string Topic::form()
{
    return fmt::format("a command, or {}", Scenario);
}

std::vector<std::string> Topic::choices(const std::string& /*word*/)
{
    std::vector<std::string> topics = commandNames();
    topics.emplace_back(Scenario);
    return topics;
}

std::string Count::form()
{
    return wording::wholeRange(1, HighestCount);
}

std::optional<Count> Count::parse(const std::string& word)
{
    const auto number = parseNumber(word, 1, HighestCount);
    return number ? std::optional(Count{static_cast<std::uint32_t>(*number)}) : std::nullopt;
}

std::string TypedFault::form()
{
    return "a call that \"listCalls\" lists, then any of the keys";
}

std::vector<std::string> TypedFault::choices(const std::vector<std::string>& words)
{
    return scenario::typedFaultChoices(words);
}

std::string CommandWords::form()
{
    return "a command that \"help\" lists, with its arguments";
}

} // namespace node::commands
