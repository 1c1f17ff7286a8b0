#include "node/wording/Number.h"

#include <charconv>
#include <cmath>
#include <system_error>

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace node::wording
{

namespace
{

/// The digits as a number; none when they are no digits, or too many.
template <typename Number, typename... How>
std::optional<Number> parseAll(std::string_view digits, How... how)
{
    Number number{};
    const char* const last = digits.data() + digits.size();
    const auto [end, error] = std::from_chars(digits.data(), last, number, how...);
    return error == std::errc{} && end == last ? std::optional(number) : std::nullopt;
}

} // namespace

std::optional<std::int64_t> parseWhole(std::string_view text)
{
    const bool negative = text.starts_with('-');
    text.remove_prefix(negative ? 1 : 0);
    const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
    text.remove_prefix(hexadecimal ? 2 : 0);

    // 32 bits without a sign hold every number that a command takes, and leave no room for a second sign.
    const auto size = parseAll<std::uint32_t>(text, hexadecimal ? 16 : 10);
    if (!size)
    {
        return std::nullopt;
    }
    return negative ? -std::int64_t{*size} : std::int64_t{*size};
}

std::optional<double> parseReal(std::string_view text)
{
    const auto number = parseAll<double>(text);
    return number && std::isfinite(*number) ? std::optional(*number + 0.0) : std::nullopt; // -0 is 0
}

std::optional<std::vector<std::uint8_t>> parseBytes(std::string_view digits, std::size_t count)
{
    if (digits.size() != 2 * count)
    {
        return std::nullopt;
    }
    std::vector<std::uint8_t> bytes;
    for (std::size_t i = 0; i < count; ++i)
    {
        const auto byte = parseAll<std::uint8_t>(digits.substr(2 * i, 2), 16);
        if (!byte)
        {
            return std::nullopt;
        }
        bytes.push_back(*byte);
    }
    return bytes;
}

std::string printBytes(std::span<const std::uint8_t> bytes)
{
    return fmt::format("{:02x}", fmt::join(bytes, ""));
}

std::string bytesForm(std::size_t count)
{
    return fmt::format("{} bytes as {} hexadecimal digits", count, 2 * count);
}

} // namespace node::wording
