#include "node/radio/Propagation.h"

#include <cmath>

#include "node/radio/Decibel.h"

namespace node::radio
{

double freeSpaceLoss_dB(double frequency_GHz, double distance_km)
{
    return 92.4478 + 20.0 * std::log10(frequency_GHz) + 20.0 * std::log10(distance_km);
}

double noisePower_dBm(double symbolRate_Bd, double noiseFigure_dB)
{
    return -173.975 + decibels(symbolRate_Bd) + noiseFigure_dB;
}

double snir_dB(double signalToNoise_dB, double signalToInterference_dB, double floor_dB)
{
    return -decibels(linear(-signalToNoise_dB) + linear(-signalToInterference_dB) + linear(-floor_dB));
}

double travelTime_ns(double distance_km)
{
    constexpr double RefractiveIndex = 1.000315;
    constexpr double SpeedOfLight_km_per_s = 299792.458;
    return distance_km * RefractiveIndex / SpeedOfLight_km_per_s * 1e9;
}

} // namespace node::radio
