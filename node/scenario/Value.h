#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "node/wording/InputError.h"

namespace node::scenario
{

/// A value as it was found in a file or in a typed word, with everything that it can be taken for.
struct Value
{
    /// @throws InputError that names the value's place, what was found, and this
    [[noreturn]] void refuse(const std::string& expected) const
    {
        throw wording::InputError(place, found, expected);
    }

    std::string place; ///< "rain.toml:3:7: hop.distance_km"
    std::string found; ///< as it is shown
    std::optional<std::int64_t> whole;
    std::optional<double> number;
    std::optional<bool> flag;
    std::optional<std::string> text;
};

/// A value from a word that somebody typed.
Value typedValue(const std::string& place, const std::string& word);

} // namespace node::scenario
