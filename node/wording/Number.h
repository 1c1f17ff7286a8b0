#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// Numbers as they are typed and printed, whatever the process's locale.
namespace node::wording
{

/// A whole number in decimal or, with 0x before it, hexadecimal digits; none for other text and beyond 32 bits and a
/// sign.
std::optional<std::int64_t> parseWhole(std::string_view text);

/// A number in decimal digits with an optional fraction and exponent; none for other text.
std::optional<double> parseReal(std::string_view text);

/// That many bytes, two hexadecimal digits each; none for other text.
std::optional<std::vector<std::uint8_t>> parseBytes(std::string_view digits, std::size_t count);

/// The bytes as parseBytes() reads them.
std::string printBytes(std::span<const std::uint8_t> bytes);

/// "20 bytes as 40 hexadecimal digits"
std::string bytesForm(std::size_t count);

} // namespace node::wording
