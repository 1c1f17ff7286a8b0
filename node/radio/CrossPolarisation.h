#pragma once

/// How well the two polarisations of a hop stay apart: cross-polar discrimination (XPD). Functions without state.
namespace node::radio
{

/// XPD in clear sky, ITU-R P.530, 4.1.
/// @param antennaDiscrimination_dB  the lower one of the two antennas'
double clearSkyDiscrimination_dB(double antennaDiscrimination_dB);

/// XPD that rain leaves, ITU-R P.530, 4. The formula holds from 8 to 35 GHz; other frequencies are taken as the nearest
/// one of these, an assumption.
/// @param attenuation_dB  by that rain, above 0
double rainDiscrimination_dB(double frequency_GHz, double attenuation_dB);

/// What both leave, added as powers, an assumption. Without attenuation, that of clear sky.
double discrimination_dB(double antennaDiscrimination_dB, double frequency_GHz, double attenuation_dB);

} // namespace node::radio
