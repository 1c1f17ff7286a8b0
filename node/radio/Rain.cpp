#include "node/radio/Rain.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace node::radio
{

namespace
{

/// One bell curve of a regression over the logarithm of the frequency.
struct Bell
{
    double height;
    double centre;
    double width;
};

/// A regression: bells on a straight line.
double regression(double logFrequency, std::span<const Bell> bells, double slope, double offset)
{
    double sum = slope * logFrequency + offset;
    for (const Bell& bell : bells)
    {
        const double distance = (logFrequency - bell.centre) / bell.width;
        sum += bell.height * std::exp(-distance * distance);
    }
    return sum;
}

// ITU-R P.838-3, Tables 1 to 4.
constexpr Bell LgKHorizontal[] = {
    {-5.33980, -0.10008, 1.13098},
    {-0.35351, 1.26970, 0.45400},
    {-0.23789, 0.86036, 0.15354},
    {-0.94158, 0.64552, 0.16817},
};
constexpr Bell LgKVertical[] = {
    {-3.80595, 0.56934, 0.81061},
    {-3.44965, -0.22911, 0.51059},
    {-0.39902, 0.73042, 0.11899},
    {0.50167, 1.07319, 0.27195},
};
constexpr Bell AlphaHorizontal[] = {
    {-0.14318, 1.82442, -0.55187}, {0.29591, 0.77564, 0.19822},  {0.32177, 0.63773, 0.13164},
    {-5.37610, -0.96230, 1.47828}, {16.1721, -3.29980, 3.43990},
};
constexpr Bell AlphaVertical[] = {
    {-0.07771, 2.33840, -0.76284},  {0.56727, 0.95545, 0.54039},   {-0.20238, 1.14520, 0.26809},
    {-48.2991, 0.791669, 0.116226}, {48.5833, 0.791459, 0.116479},
};

/// The largest factor that the Recommendation lets a hop's length be multiplied with.
constexpr double LargestFactor = 2.5;

} // namespace

RainCoefficients rainCoefficients(double frequency_GHz, Polarisation polarisation)
{
    const double lgF = std::log10(frequency_GHz);
    if (polarisation == Polarisation::Horizontal)
    {
        return {std::pow(10.0, regression(lgF, LgKHorizontal, -0.18961, 0.71147)),
                regression(lgF, AlphaHorizontal, 0.67849, -1.95537)};
    }
    return {std::pow(10.0, regression(lgF, LgKVertical, -0.16398, 0.63297)),
            regression(lgF, AlphaVertical, -0.053739, 0.83433)};
}

double rainAttenuation_dB(double frequency_GHz, Polarisation polarisation, double rate_mm_per_h, double distance_km)
{
    if (rate_mm_per_h <= 0.0)
    {
        return 0.0;
    }
    const RainCoefficients rain = rainCoefficients(frequency_GHz, polarisation);
    const auto overWholeHop_dB = [&](double rate) { return rain.k * std::pow(rate, rain.alpha) * distance_km; };

    // The factor is 1 / (rising * R^exponent - falling), and at most the largest one.
    const double rising = 0.477 * std::pow(distance_km, 0.633) * std::pow(frequency_GHz, 0.123);
    const double exponent = 0.073 * rain.alpha;
    const double falling = 10.579 * (1.0 - std::exp(-0.024 * distance_km));
    const double denominator = rising * std::pow(rate_mm_per_h, exponent) - falling;
    if (denominator <= 1.0 / LargestFactor)
    {
        return overWholeHop_dB(rate_mm_per_h) * LargestFactor;
    }
    const double rateOfLargestFactor = std::pow((1.0 / LargestFactor + falling) / rising, 1.0 / exponent);
    return std::max(overWholeHop_dB(rate_mm_per_h) / denominator, overWholeHop_dB(rateOfLargestFactor) * LargestFactor);
}

} // namespace node::radio
