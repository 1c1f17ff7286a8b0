#pragma once

namespace kel_top_api
{

/// A member that a command record may leave out.
///
/// The flag stands before the value, where the API reads it; `std::optional` would put it behind.
template <typename Value>
struct Optional
{
    bool present = false;
    Value value{};

    Optional& operator=(const Value& newValue)
    {
        value = newValue;
        present = true;
        return *this;
    }
};

} // namespace kel_top_api
