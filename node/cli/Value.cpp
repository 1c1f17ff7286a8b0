#include "node/cli/Value.h"

#include <charconv>
#include <string_view>
#include <system_error>

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace node::cli
{

namespace
{

/// The digits as a number; none when they are no digits, or too many.
template <typename Number>
std::optional<Number> parseDigits(std::string_view digits, int base)
{
    Number number{};
    const char* const last = digits.data() + digits.size();
    const auto [end, error] = std::from_chars(digits.data(), last, number, base);
    return error == std::errc{} && end == last ? std::optional(number) : std::nullopt;
}

} // namespace

std::optional<std::int64_t> parseNumber(const std::string& word, std::int64_t lowest, std::int64_t highest)
{
    std::string_view digits = word;
    const bool negative = digits.starts_with('-');
    digits.remove_prefix(negative ? 1 : 0);
    const bool hexadecimal = digits.starts_with("0x") || digits.starts_with("0X");
    digits.remove_prefix(hexadecimal ? 2 : 0);

    // 32 bits without a sign hold every number that a command takes, and leave no room for a second sign.
    const auto size = parseDigits<std::uint32_t>(digits, hexadecimal ? 16 : 10);
    if (!size)
    {
        return std::nullopt;
    }
    const std::int64_t number = negative ? -std::int64_t{*size} : std::int64_t{*size};
    return number >= lowest && number <= highest ? std::optional(number) : std::nullopt;
}

std::string numberRange(std::int64_t lowest, std::int64_t highest)
{
    return fmt::format("a number from {} to {}", lowest, highest);
}

std::optional<RadioChannel> parseChannel(const std::string& word)
{
    const auto number = parseNumber(word, FirstChannel, LastChannel);
    return number ? std::optional(static_cast<RadioChannel>(*number)) : std::nullopt;
}

std::optional<DpdCoeffs> parseCoefficients(const std::string& word)
{
    DpdCoeffs coefficients;
    if (word.size() != 2 * coefficients.bytes.size())
    {
        return std::nullopt;
    }
    for (std::size_t i = 0; i < coefficients.bytes.size(); ++i)
    {
        const auto byte = parseDigits<std::uint8_t>(std::string_view(word).substr(2 * i, 2), 16);
        if (!byte)
        {
            return std::nullopt;
        }
        coefficients.bytes[i] = *byte;
    }
    return coefficients;
}

std::string printCoefficients(const DpdCoeffs& coefficients)
{
    return fmt::format("{:02x}", fmt::join(coefficients.bytes, ""));
}

std::string coefficientsForm()
{
    constexpr std::size_t Bytes = sizeof(DpdCoeffs);
    return fmt::format("{} bytes as {} hexadecimal digits", Bytes, 2 * Bytes);
}

} // namespace node::cli
