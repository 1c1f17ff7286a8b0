#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <string>

#include "radio/IDpdControllerSplit.h"
#include "radio/RadioChannel.h"

/// Typed words become values here, or none where they do not fit; and what would fit is worded.
namespace node::cli
{

/// A whole number in decimal or, with 0x before it, hexadecimal digits; none when it is not from `lowest` to `highest`.
std::optional<std::int64_t> parseNumber(const std::string& word, std::int64_t lowest, std::int64_t highest);

/// "a number from 0 to 255"
std::string numberRange(std::int64_t lowest, std::int64_t highest);

/// A number that the type holds.
template <typename Number>
std::optional<Number> parseNumberOf(const std::string& word)
{
    using Limits = std::numeric_limits<Number>;
    const auto number = parseNumber(word, Limits::min(), Limits::max());
    return number ? std::optional(static_cast<Number>(*number)) : std::nullopt;
}

inline constexpr RadioChannel FirstChannel = 1;
inline constexpr RadioChannel LastChannel = 2;

std::optional<RadioChannel> parseChannel(const std::string& word);

/// 20 bytes as 40 hexadecimal digits.
std::optional<DpdCoeffs> parseCoefficients(const std::string& word);

/// The coefficients as parseCoefficients() reads them.
std::string printCoefficients(const DpdCoeffs& coefficients);

/// "20 bytes as 40 hexadecimal digits"
std::string coefficientsForm();

} // namespace node::cli
