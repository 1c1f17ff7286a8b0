#include "node/services/ModulationNames.h"

namespace node::services
{

radio::Modulation modulationOf(const kel_top_api::ModulationAndCode& row)
{
    return {row.modulation, row.strength};
}

std::string nameOf(const radio::Modulation& modulation)
{
    for (const auto& row : getModulationAndCodeVector())
    {
        const bool fullBand = row.variant == 0;
        if (fullBand && row.modulation == modulation.constellationSize && row.strength == modulation.strength)
        {
            return row.name;
        }
    }
    return "UNDEFINED";
}

} // namespace node::services
