#pragma once

#include <cstdint>

#include "node/radio/Dpd.h"
#include "node/radio/Modem.h"
#include "node/radio/Pps.h"
#include "node/radio/Rain.h"
#include "node/radio/Xpic.h"

namespace node::radio
{

struct Transmitter
{
    bool on = true;
    double power_dBm = 18.0; ///< set; a modulation whose back-off leaves less is sent with less
};

/// One channel: one polarisation of the hop, in both directions. The far end does as the near end does, an assumption.
struct Channel
{
    Polarisation polarisation = Polarisation::Vertical;
    Transmitter transmitter;
    Modem modem;
    Dpd dpd;
    Xpic xpic;
    Pps pps;
    bool ppsMasterAnswers = true; ///< the far end's
};

/// What a channel measures.
struct Readings
{
    double txPower_dBm = 0;
    double level_dBm = 0; ///< received; -110 dBm where there is less, an assumption
    double snir_dB = 0;
    double discrimination_dB = 0;     ///< between the polarisations, of the path
    double interference_dB = 0;       ///< the signal above what arrives of the other polarisation; at most 99.9
    double slaveCarrierOffset_Hz = 0; ///< where the slave's receiver stands, about the nominal carrier
    bool slaveSignal = false;         ///< the slave receives the other polarisation
    double slaveLevel_dBm = 0;        ///< of that signal at the antenna
    std::uint32_t slavePreamble = 0;  ///< that comes with it
    double hopLengthTime_ns = 0;
};

} // namespace node::radio
