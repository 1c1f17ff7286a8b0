#pragma once

#include <stdexcept>
#include <string>

#include <fmt/format.h>

namespace node::cli
{

/// The word in quotation marks, on one line and visible whatever it holds.
inline std::string quoted(const std::string& word)
{
    return fmt::format("{:?}", word);
}

/// A line that cannot be carried out. Nothing was called.
class UsageError : public std::runtime_error
{
public:
    /// @param place     where in the line
    /// @param found     what stands there
    /// @param expected  what should
    UsageError(const std::string& place, const std::string& found, const std::string& expected)
        : std::runtime_error(fmt::format("{}: found {}, expected {}", place, found, expected))
    {
    }
};

} // namespace node::cli
