#pragma once

/// How a signal fares between the two ends of a hop in clear sky. Functions without state.
namespace node::radio
{

/// Basic free-space transmission loss, ITU-R P.525. @param frequency_GHz above 0 @param distance_km above 0
double freeSpaceLoss_dB(double frequency_GHz, double distance_km);

/// Power of the thermal noise of a receiver: -173.975 dBm/Hz over the symbol rate, raised by the noise figure.
double noisePower_dBm(double symbolRate_Bd, double noiseFigure_dB);

/// Signal to noise-and-interference ratio (SNIR): noise, what is left of the other polarisation, and the
/// transmitter's own floor, added as powers.
/// @param signalToNoise_dB         received level above the noise power
/// @param signalToInterference_dB  above what is left of the other polarisation
/// @param floor_dB                 SNIR of an undisturbed receiver
double snir_dB(double signalToNoise_dB, double signalToInterference_dB, double floor_dB);

/// Time that the signal takes over the hop in the air of ITU-R P.453 (refractive index 1.000315).
double travelTime_ns(double distance_km);

} // namespace node::radio
