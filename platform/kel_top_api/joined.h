#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

namespace kel_top_api
{

/// The parts one after the other, in a string of just their size. A chain of "+" grows its string again and again, and
/// is inlined link by link.
inline std::string joined(std::initializer_list<std::string_view> parts)
{
    std::size_t size = 0;
    for (const std::string_view part : parts)
    {
        size += part.size();
    }
    std::string text;
    text.reserve(size);
    for (const std::string_view part : parts)
    {
        text += part;
    }
    return text;
}

} // namespace kel_top_api
