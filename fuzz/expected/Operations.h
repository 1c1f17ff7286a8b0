#pragma once

#include <cstdint>

#include "fuzz/expected/Platform.h"
#include "radio/RadioChannel.h"

/// The operations of the debug commands a second time: what each asks of the platform, answers and traces.
/// Each is given what its caller had before in `outcome`, and leaves there what its caller has afterwards.
namespace expected
{

void getBcmModemStatus(const Platform& platform, RadioChannel channel, Outcome& outcome);
void getPpsCalibrationStatus(const Platform& platform, RadioChannel channel, Outcome& outcome);
void getPpsHopLengthTime(const Platform& platform, RadioChannel channel, Outcome& outcome);
void calibratePps(const Platform& platform, RadioChannel channel, int mode, std::uint16_t value, Outcome& outcome);
void setPpsSource(const Platform& platform, RadioChannel channel, int source, int parameter, Outcome& outcome);
void setPpsOutputMode(const Platform& platform, RadioChannel channel, int mode, Outcome& outcome);
void startDpd(const Platform& platform, RadioChannel channel, Outcome& outcome);
void stopDpd(const Platform& platform, RadioChannel channel, Outcome& outcome);
void setDpdCoefficients(const Platform& platform, RadioChannel channel, const DpdCoeffs& coefficients,
                        Outcome& outcome);
void getDpdCoefficients(const Platform& platform, RadioChannel channel, Outcome& outcome);
void setXpicSlaveMute(const Platform& platform, RadioChannel channel, std::uint8_t mute, Outcome& outcome);
void xpicAcquireStart(const Platform& platform, RadioChannel channel, std::uint8_t mode, std::uint8_t option,
                      Outcome& outcome);
void getXpicPreamble(const Platform& platform, RadioChannel channel, Outcome& outcome);
void setXpicPreamble(const Platform& platform, RadioChannel channel, std::uint8_t preamble, Outcome& outcome);
void getXpicStatus(const Platform& platform, RadioChannel channel, Outcome& outcome);

} // namespace expected
