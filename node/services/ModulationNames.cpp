#include "node/services/ModulationNames.h"

#include <algorithm>

namespace node::services
{

namespace
{

/// The API's number for a modulation in half of the channel.
constexpr std::uint32_t HalfBand = 2;

bool isRowOf(const kel_top_api::ModulationAndCode& row, const radio::Modulation& modulation)
{
    return row.modulation == modulation.constellationSize && row.strength == modulation.strength &&
           row.variant == (modulation.halfBand ? HalfBand : 0);
}

} // namespace

std::optional<radio::ModulationIndex> modulationOf(const kel_top_api::ModulationAndCode& row)
{
    const auto all = radio::modulations();
    const auto place =
        std::find_if(all.begin(), all.end(), [&](const radio::Modulation& entry) { return isRowOf(row, entry); });
    return place == all.end() ? std::nullopt : std::optional(static_cast<radio::ModulationIndex>(place - all.begin()));
}

std::string nameOf(const radio::Modulation& modulation)
{
    for (const auto& row : getModulationAndCodeVector())
    {
        if (isRowOf(row, modulation))
        {
            return row.name;
        }
    }
    return "UNDEFINED";
}

std::vector<std::string> modulationNames()
{
    std::vector<std::string> names;
    for (const radio::Modulation& modulation : radio::modulations())
    {
        names.push_back(nameOf(modulation));
    }
    return names;
}

} // namespace node::services
