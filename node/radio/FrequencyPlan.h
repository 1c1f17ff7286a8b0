#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace node::radio
{

/// A plan of paired frequencies: `channels` of them in the lower half of a band, each with its partner one duplex
/// distance above.
struct FrequencyPlan
{
    std::string_view name; ///< "18 GHz"
    std::uint32_t band_GHz;
    std::uint32_t lowest_kHz;
    std::uint32_t duplex_kHz;
    std::uint32_t spacing_kHz;
    std::uint32_t channels;

    /// @param number  1 to channels
    std::uint32_t low_kHz(std::uint32_t number) const;
    std::uint32_t high_kHz(std::uint32_t number) const;
};

/// ITU-R F.497 (13 GHz), F.595 (18 GHz) and F.637 (23 GHz). How many channels the last has is assumed.
std::span<const FrequencyPlan> frequencyPlans();

/// Null for a name that no plan has.
const FrequencyPlan* findFrequencyPlan(std::string_view name);

} // namespace node::radio
