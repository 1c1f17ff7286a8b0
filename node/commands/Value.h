#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "node/radio/Range.h"
#include "node/radio/Time.h"
#include "node/services/FaultPlan.h"
#include "radio/IDpdControllerSplit.h"
#include "radio/RadioChannel.h"

/// What a typed word can be. Each type says which words it accepts and reads one, or none where it does not fit. Where
/// words can be chosen, choices() lists those that may stand for the beginning of one.
namespace node::commands
{

/// What a word names, for those who must know more than its form.
enum class WordKind
{
    Other,
    RadioChannel,
    TraceChannels,
    Scenario,
    File,
};

/// A whole number in decimal or, with 0x before it, hexadecimal digits; none when it is not from `lowest` to `highest`.
std::optional<std::int64_t> parseNumber(const std::string& word, std::int64_t lowest, std::int64_t highest);

/// A number that the type holds.
template <typename Number>
std::optional<Number> parseNumberOf(const std::string& word)
{
    using Limits = std::numeric_limits<Number>;
    const auto number = parseNumber(word, Limits::min(), Limits::max());
    return number ? std::optional(static_cast<Number>(*number)) : std::nullopt;
}

/// 20 bytes as 40 hexadecimal digits.
std::string coefficientsForm();
std::optional<DpdCoeffs> parseCoefficients(const std::string& word);

/// The coefficients as parseCoefficients() reads them.
std::string printCoefficients(const DpdCoeffs& coefficients);

struct ChannelNumber
{
    static constexpr WordKind Kind = WordKind::RadioChannel;

    static std::string form();
    static std::optional<ChannelNumber> parse(const std::string& word);
    static std::vector<std::string> choices(const std::string& word);

    RadioChannel number;
};

/// "30", "1.5s", "10min", "2h"
struct Duration
{
    static std::string form();
    static std::optional<Duration> parse(const std::string& word);

    radio::Ticks ticks;
};

struct RainRate
{
    static std::string form();
    static std::optional<RainRate> parse(const std::string& word);

    double mm_per_h;
};

struct FadeDepth
{
    static std::string form();
    static std::optional<FadeDepth> parse(const std::string& word);

    double depth_dB;
};

struct Distance
{
    static std::string form();
    static std::optional<Distance> parse(const std::string& word);

    double distance_km;
};

/// "on" or "off"
struct Switch
{
    static std::string form();
    static std::optional<Switch> parse(const std::string& word);
    static std::vector<std::string> choices(const std::string& word);

    bool on;
};

struct TraceLevel
{
    static constexpr std::int32_t Highest = 255;

    static std::string form();
    static std::optional<TraceLevel> parse(const std::string& word);

    std::int32_t level;
};

/// A word of any letters. Its type says what it stands for.
template <typename Type>
struct AnyWord
{
    static std::optional<Type> parse(const std::string& word)
    {
        Type parsed;
        parsed.word = word;
        return parsed;
    }

    std::string word;
};

/// The files and folders whose path begins with the word; hidden ones when it names one. A folder ends in '/'.
std::vector<std::string> pathsBeginning(const std::string& word);

/// The name of a file.
template <typename Type>
struct AnyFile : AnyWord<Type>
{
    static constexpr WordKind Kind = WordKind::File;

    static std::vector<std::string> choices(const std::string& word)
    {
        return pathsBeginning(word);
    }
};

/// A file to write.
struct FileName : AnyFile<FileName>
{
    static std::string form();
};

/// A file for a table, or standard output.
struct TableName : AnyFile<TableName>
{
    static std::string form();
};

/// A recording to read.
struct RecordingName : AnyFile<RecordingName>
{
    static std::string form();
};

/// A file for a picture: one whose end tells of which kind.
struct PictureName : AnyFile<PictureName>
{
    static std::string form();
    static std::optional<PictureName> parse(const std::string& word);
};

/// A ready scenario, or the file of one.
struct ScenarioName : AnyWord<ScenarioName>
{
    static constexpr WordKind Kind = WordKind::Scenario;

    static std::string form();
    static std::vector<std::string> choices(const std::string& word);
};

struct ChannelPattern : AnyWord<ChannelPattern>
{
    static constexpr WordKind Kind = WordKind::TraceChannels;

    static std::string form();
    static std::vector<std::string> choices(const std::string& word);
};

/// What there is help on: a command, or the keys of a scenario.
struct Topic : AnyWord<Topic>
{
    static constexpr const char* Scenario = "scenario";

    static std::string form();
    static std::vector<std::string> choices(const std::string& word);
};

/// How often something is done.
struct Count
{
    static std::string form();
    static std::optional<Count> parse(const std::string& word);

    std::uint32_t number;
};

/// A fault of a platform call, typed in all words that are left of the line.
struct TypedFault
{
    static std::string form();

    /// @param words  of the fault; the last one is to be chosen
    static std::vector<std::string> choices(const std::vector<std::string>& words);

    services::Fault fault;
};

/// A command and its words, all that are left of the line.
struct CommandWords
{
    static std::string form();

    std::vector<std::string> words;
};

} // namespace node::commands
