#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <string>

namespace fuzz
{

/// Reads values from the bytes of an input: the same ones on every machine and with every compiler, so that a kept
/// input stays what it was. What lies behind the last byte reads as zeros and empty texts.
class Input
{
public:
    Input(const std::uint8_t* data, std::size_t size) : m_bytes(data, size)
    {
    }

    bool atEnd() const
    {
        return m_bytes.empty();
    }

    std::uint8_t byte()
    {
        if (atEnd())
        {
            return 0;
        }
        const std::uint8_t first = m_bytes.front();
        m_bytes = m_bytes.subspan(1);
        return first;
    }

    bool flag()
    {
        return byte() % 2 != 0;
    }

    /// @return from 0 to bound - 1. @param bound  up to 256
    std::uint32_t below(std::uint32_t bound)
    {
        return byte() % bound;
    }

    /// Two bytes, the low one first.
    std::uint16_t half()
    {
        const std::uint32_t low = byte();
        return static_cast<std::uint16_t>(low | std::uint32_t{byte()} << 8U);
    }

    /// Four bytes, the lowest one first.
    std::uint32_t word()
    {
        const std::uint32_t low = half();
        return low | std::uint32_t{half()} << 16U;
    }

    /// A number of those that thresholds are at, or a small one, or any: the first byte says which.
    std::int32_t number()
    {
        using Limits = std::numeric_limits<std::int32_t>;
        static constexpr std::array<std::int32_t, 12> Edges = {
            0, 1, -1, 5, 0x7FFF, 0x8000, 0x8001, -0x8000, 99999949, 99999950, Limits::min(), Limits::max()};
        const std::uint8_t kind = byte();
        if (kind < Edges.size())
        {
            return Edges.at(kind);
        }
        constexpr std::int32_t Lowest = -16;
        if (kind < 128)
        {
            return Lowest + kind - static_cast<std::int32_t>(Edges.size());
        }
        return static_cast<std::int32_t>(word());
    }

    std::uint32_t unsignedNumber()
    {
        return static_cast<std::uint32_t>(number());
    }

    /// A length, and so many bytes: any, line ends and zeros among them.
    std::string text()
    {
        static constexpr std::uint32_t LongestText = 40;
        std::string read;
        for (std::uint32_t left = below(LongestText + 1); left > 0 && !atEnd(); --left)
        {
            read.push_back(static_cast<char>(byte()));
        }
        return read;
    }

private:
    std::span<const std::uint8_t> m_bytes;
};

} // namespace fuzz
