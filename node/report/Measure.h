#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <variant>

/// Numbers with their units, as reports write them.
namespace node::report
{

/// A whole number that 64 bits do not hold is a real one.
using Number = std::variant<std::int64_t, double>;

/// "24.2 dBm"
struct Measure
{
    Number number;
    std::string_view unit; ///< a word of letters, '/' and '%'; "" where there is none
};

/// A number, alone or with a unit behind it; none for other text.
std::optional<Measure> measureOf(std::string_view text);

/// "4QAM  24 dBm", or "HALF_BPSK_STRONG24.2 dBm" where the name fills its column.
struct NamedMeasure
{
    std::string_view name;
    Measure measure;
};

/// A name and the number that the text ends in, alone or with a unit behind it; none for other text.
std::optional<NamedMeasure> namedMeasureOf(std::string_view text);

/// "Slave carrier Offset [KHz]"
struct MeasuredLabel
{
    std::string_view label;
    std::string_view unit; ///< as values spell it: "kHz"; "" where the label names none
};

/// Takes the unit off a label that names it at its end.
MeasuredLabel measuredLabel(std::string_view label);

} // namespace node::report
