#include "fuzz/NodeStates.h"

#include <cmath>

#include <fmt/format.h>

#include "fuzz/Target.h"

namespace fuzz
{

using node::radio::PpsCalibration;
using node::radio::Snapshot;
using node::radio::XpicState;

Told::Told(const node::radio::Channel& channel)
    : coefficients(channel.dpd.coefficients), slaveMuted(channel.xpic.slaveMuted), preamble(channel.xpic.preamble),
      ppsSource(channel.pps.source), ppsSourceParameter(channel.pps.sourceParameter),
      ppsOutputMode(channel.pps.outputMode)
{
}

void expectKnown(const Told& told, const node::radio::Channel& channel)
{
    expect(told.coefficients == channel.dpd.coefficients, "coefficients are those that were written");
    expect(told.slaveMuted == channel.xpic.slaveMuted, "the slave is muted as it was told to be");
    expectSame("preamble", told.preamble, channel.xpic.preamble);
    expectSame("PPS source", told.ppsSource, channel.pps.source);
    expectSame("PPS source's parameter", told.ppsSourceParameter, channel.pps.sourceParameter);
    expectSame("PPS output mode", told.ppsOutputMode, channel.pps.outputMode);
}

void expectConsistent(const Snapshot& now)
{
    const auto& [hop, state, readings] = now;
    const auto& modem = state.modem;
    expect(std::isfinite(readings.level_dBm) && std::isfinite(readings.snir_dB), "level and SNIR are numbers");
    expect(readings.level_dBm >= -110 && readings.level_dBm <= hop.peakPower_dBm + 2 * hop.antennaGain_dBi,
           "the level is between nothing and all that is sent");
    expect(state.transmitter.on || readings.level_dBm == -110, "no level comes of a silent transmitter");
    expect(readings.discrimination_dB <= 40 && readings.interference_dB <= 99.9, "discrimination has its bounds");
    const double improvement_dB = state.xpic.cancels() ? 20 : 0;
    expect(readings.snir_dB <= state.dpd.floor_dB() && readings.snir_dB <= readings.interference_dB + improvement_dB,
           "the SNIR is above none of its parts");
    expect(modem.lowest <= modem.current && modem.current <= modem.highest, "the modulation is one that may be used");
    expect(!modem.locked || readings.snir_dB >= modem.modulation().requiredSnir_dB,
           "what is locked has the SNIR that its modulation needs");
    expect(modem.backgroundBlocks <= modem.erroredBlocks, "background blocks are errored blocks");
    expect(state.xpic.state != XpicState::Acquired ||
               (modem.locked && readings.slaveSignal && readings.slavePreamble == state.xpic.preamble),
           "what is acquired has all that it needs");
    expect(!state.pps.running() || modem.locked, "a calibration runs on a locked modem");
    expect(state.pps.calibration != PpsCalibration::Auto || modem.locked,
           "an automatic calibration is kept on a locked modem");
}

std::string textOf(const Snapshot& now)
{
    const auto& [hop, state, readings] = now;
    return fmt::format(
        "{} dBm, {} dB, {} dB, {} ns, {} Hz, modulation {} {}, blocks {} {}, DPD {}, XPIC {}, PPS {} {}\n",
        readings.level_dBm, readings.snir_dB, readings.interference_dB, readings.hopLengthTime_ns,
        readings.slaveCarrierOffset_Hz, state.modem.current, state.modem.locked, state.modem.erroredBlocks,
        state.modem.backgroundBlocks, state.dpd.adapted.count(), static_cast<int>(state.xpic.state),
        static_cast<int>(state.pps.calibration), static_cast<int>(state.pps.failure));
}

} // namespace fuzz
