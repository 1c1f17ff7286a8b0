#pragma once

namespace kel_top_api
{

/// A member that a command record may leave out.
///
/// The flag stands before the value, where the API reads it; `std::optional` would put it behind.
template <typename Value>
struct Optional
{
    bool present = false; ///< whether the value counts
    Value value{};        ///< what it is, where it counts

    /// Sets the value and lets it count.
    Optional& operator=(const Value& newValue)
    {
        value = newValue;
        present = true;
        return *this;
    }
};

} // namespace kel_top_api
