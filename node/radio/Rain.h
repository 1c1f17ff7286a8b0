#pragma once

/// What rain takes from a signal. Functions without state.
namespace node::radio
{

enum class Polarisation
{
    Horizontal,
    Vertical,
};

/// Specific attenuation of rain: k R^alpha dB/km at R mm/h.
struct RainCoefficients
{
    double k;
    double alpha;
};

/// ITU-R P.838-3, equations 2 and 3. @param frequency_GHz  1 to 1000
RainCoefficients rainCoefficients(double frequency_GHz, Polarisation polarisation);

/// Attenuation by rain over a hop, ITU-R P.530-17, 2.4.1, with its factor for the length of path that is in the rain.
///
/// The factor is fitted for the rate exceeded in 0.01 % of the time; for the rain of the moment it is an approximation.
/// On long hops the fit would let the attenuation fall where rain grows out of drizzle; there it stays at the highest
/// value reached, an assumption.
/// @param rate_mm_per_h  0 gives 0
double rainAttenuation_dB(double frequency_GHz, Polarisation polarisation, double rate_mm_per_h, double distance_km);

} // namespace node::radio
