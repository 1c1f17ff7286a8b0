#include "node/terminal/Letters.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cwchar>

namespace node::terminal
{

namespace
{

constexpr auto NoLetter = static_cast<std::size_t>(-1);
constexpr auto Unfinished = static_cast<std::size_t>(-2);

/// No locale has letters from here on for 256: they are halves of letters in UTF-16.
constexpr wchar_t FirstByte = 0xDC00;

Letter asByte(char byte)
{
    return {static_cast<wchar_t>(FirstByte + static_cast<unsigned char>(byte)), 1};
}

} // namespace

Letter firstLetter(std::string_view bytes)
{
    if (bytes.empty())
    {
        return {};
    }
    Letter letter;
    std::mbstate_t state{};
    const std::size_t size = std::mbrtowc(&letter.value, bytes.data(), bytes.size(), &state);
    if (size == NoLetter)
    {
        return asByte(bytes.front());
    }
    letter.size = size == Unfinished ? 0 : std::max<std::size_t>(size, 1); // the letter NUL is told as 0
    return letter;
}

std::wstring toLetters(std::string_view bytes)
{
    std::wstring letters;
    while (!bytes.empty())
    {
        const Letter whole = firstLetter(bytes);
        const Letter letter = whole.size == 0 ? asByte(bytes.front()) : whole;
        letters += letter.value;
        bytes.remove_prefix(letter.size);
    }
    return letters;
}

std::string toBytes(std::wstring_view letters)
{
    std::string bytes;
    for (const wchar_t letter : letters)
    {
        if (letter >= FirstByte && letter <= FirstByte + UCHAR_MAX)
        {
            bytes += static_cast<char>(static_cast<unsigned char>(letter - FirstByte));
            continue;
        }
        std::array<char, MB_LEN_MAX> encoded{};
        std::mbstate_t state{};
        const std::size_t size = std::wcrtomb(encoded.data(), letter, &state);
        bytes.append(encoded.data(), size == NoLetter ? 0 : size);
    }
    return bytes;
}

} // namespace node::terminal
