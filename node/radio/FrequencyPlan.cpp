#include "node/radio/FrequencyPlan.h"

#include <algorithm>
#include <iterator>

namespace node::radio
{

namespace
{

constexpr FrequencyPlan Plans[] = {
    {"13 GHz", 13, 12'765'000, 266'000, 28'000, 8},
    {"18 GHz", 18, 17'727'500, 1'010'000, 27'500, 35},
    {"23 GHz", 23, 21'238'000, 1'232'000, 28'000, 40},
};

} // namespace

std::uint32_t FrequencyPlan::low_kHz(std::uint32_t number) const
{
    return lowest_kHz + (number - 1) * spacing_kHz;
}

std::uint32_t FrequencyPlan::high_kHz(std::uint32_t number) const
{
    return low_kHz(number) + duplex_kHz;
}

std::span<const FrequencyPlan> frequencyPlans()
{
    return Plans;
}

const FrequencyPlan* findFrequencyPlan(std::string_view name)
{
    const auto* const plan =
        std::find_if(std::begin(Plans), std::end(Plans), [&](const FrequencyPlan& row) { return row.name == name; });
    return plan == std::end(Plans) ? nullptr : plan;
}

} // namespace node::radio
