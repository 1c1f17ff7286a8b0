#include "node/radio/CrossPolarisation.h"

#include <algorithm>
#include <cmath>

#include "node/radio/Decibel.h"

namespace node::radio
{

double clearSkyDiscrimination_dB(double antennaDiscrimination_dB)
{
    return antennaDiscrimination_dB <= 35.0 ? antennaDiscrimination_dB + 5.0 : 40.0;
}

double rainDiscrimination_dB(double frequency_GHz, double attenuation_dB)
{
    const double f = std::clamp(frequency_GHz, 8.0, 35.0);
    const double v = f <= 20.0 ? 12.8 * std::pow(f, 0.19) : 22.6;
    return 15.0 + 30.0 * std::log10(f) - v * std::log10(attenuation_dB);
}

double discrimination_dB(double antennaDiscrimination_dB, double frequency_GHz, double attenuation_dB)
{
    const double clearSky_dB = clearSkyDiscrimination_dB(antennaDiscrimination_dB);
    if (attenuation_dB <= 0.0)
    {
        return clearSky_dB;
    }
    return -decibels(linear(-clearSky_dB) + linear(-rainDiscrimination_dB(frequency_GHz, attenuation_dB)));
}

} // namespace node::radio
