#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "node/radio/Range.h"
#include "node/radio/Time.h"
#include "radio/IDpdControllerSplit.h"
#include "radio/RadioChannel.h"

/// What a typed word can be. Each type says which words it accepts and reads one, or none where it does not fit. Where
/// words can be chosen, choices() lists those that may stand for the beginning of one.
namespace node::commands
{

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
    static std::string form();
    static std::optional<TraceLevel> parse(const std::string& word);

    std::int32_t level;
};

struct ScenarioName
{
    static std::string form();
    static std::optional<ScenarioName> parse(const std::string& word);
    static std::vector<std::string> choices(const std::string& word);

    std::string nameOrFile;
};

struct ChannelPattern
{
    static std::string form();
    static std::optional<ChannelPattern> parse(const std::string& word);
    static std::vector<std::string> choices(const std::string& word);

    std::string pattern;
};

/// A file to write.
struct FileName
{
    static std::string form();
    static std::optional<FileName> parse(const std::string& word);
    static std::vector<std::string> choices(const std::string& word);

    std::string name;
};

/// A file for a table, or standard output.
struct TableName
{
    static std::string form();
    static std::optional<TableName> parse(const std::string& word);
    static std::vector<std::string> choices(const std::string& word);

    std::string name;
};

/// A recording to read.
struct RecordingName
{
    static std::string form();
    static std::optional<RecordingName> parse(const std::string& word);
    static std::vector<std::string> choices(const std::string& word);

    std::string name;
};

/// A file for a picture.
struct PictureName
{
    static std::string form();
    static std::optional<PictureName> parse(const std::string& word);
    static std::vector<std::string> choices(const std::string& word);

    std::string name;
};

/// What there is help on.
struct Topic
{
    static std::string form();
    static std::optional<Topic> parse(const std::string& word);
    static std::vector<std::string> choices(const std::string& word);

    std::string topic;
};

/// How often something is done.
struct Count
{
    static std::string form();
    static std::optional<Count> parse(const std::string& word);

    std::uint32_t number;
};

/// The words of a fault, all that are left of the line.
struct FaultWords
{
    static std::string form();

    /// @param words  of the fault; the last one is to be chosen
    static std::vector<std::string> choices(const std::vector<std::string>& words);

    std::vector<std::string> words;
};

/// A command and its words, all that are left of the line.
struct CommandWords
{
    static std::string form();

    std::vector<std::string> words;
};

} // namespace node::commands
