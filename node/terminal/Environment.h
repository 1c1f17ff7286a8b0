#pragma once

#include <cstdlib>
#include <string_view>

namespace node::terminal
{

/// A variable of the environment; "" where there is none.
inline std::string_view variable(const char* name)
{
    const char* const value = std::getenv(name);
    return value == nullptr ? "" : value;
}

} // namespace node::terminal
