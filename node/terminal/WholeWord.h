#pragma once

#include <string_view>

namespace node::terminal
{

/// Whether a word to choose can stand as it is. The name of a folder goes on behind its '/', a key behind its '='.
inline bool isWhole(std::string_view word)
{
    return !word.ends_with('/') && !word.ends_with('=');
}

} // namespace node::terminal
