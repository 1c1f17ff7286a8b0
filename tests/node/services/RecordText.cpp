#include "node/services/RecordText.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace
{

std::string stateOf(const node::radio::Channel& channel)
{
    const auto& [polarisation, transmitter, modem, dpd, xpic, pps, masterAnswers] = channel;
    return fmt::format("transmitter {} {}, modem {} to {} at {}, locked {}, errored {}, background {}\n",
                       transmitter.on, transmitter.power_dBm, modem.lowest, modem.highest, modem.current, modem.locked,
                       modem.erroredBlocks, modem.backgroundBlocks) +
           fmt::format("DPD {} {} {}\n", dpd.running, dpd.adapted.count(), fmt::join(dpd.coefficients, " ")) +
           fmt::format("XPIC {}, muted {}, cable {}, preamble {}, mode {}, retries {}, reacquires {}, at {}, last {}\n",
                       static_cast<int>(xpic.state), xpic.slaveMuted, xpic.cableConnected, xpic.preamble,
                       static_cast<int>(xpic.mode), xpic.retries, xpic.reacquires, xpic.position_Hz,
                       xpic.lastCarrier_Hz) +
           fmt::format("PPS {} {}, given {}, source {} {}, output {}, master answers {}\n",
                       static_cast<int>(pps.calibration), static_cast<int>(pps.failure), pps.givenTime_ns.value_or(0),
                       pps.source, pps.sourceParameter, pps.outputMode, masterAnswers);
}

std::string readingsOf(const node::radio::Readings& readings)
{
    return fmt::format("{} dBm, {} dBm, {} dB, {} dB, {} dB, {} Hz, {}, {} dBm, {}, {} ns\n", readings.txPower_dBm,
                       readings.level_dBm, readings.snir_dB, readings.discrimination_dB, readings.interference_dB,
                       readings.slaveCarrierOffset_Hz, readings.slaveSignal, readings.slaveLevel_dBm,
                       readings.slavePreamble, readings.hopLengthTime_ns);
}

} // namespace

std::string contentOf(const kel_top_api::StandardResponse& response)
{
    return "additionalText: " + response.additionalText;
}

std::string contentOf(const kel_top_api::CriGetCalibrationStatusDspPps::Response& response)
{
    return fmt::format("calibrationStatus: {}, calibrationFailureReason: {}", response.calibrationStatus,
                       response.calibrationFailureReason);
}

std::string contentOf(const kel_top_api::CriGetHopLengthTimeDspPps::Response& response)
{
    return fmt::format("hopLengthTime: {}", response.hopLengthTime);
}

std::string contentOf(kel_top_api::CriGetRadioChannelCapability::Response response)
{
    return response.printResponse();
}

std::string contentOf(kel_top_api::CriGetRadioChannelStatus::Response response)
{
    return response.printResponse() + fmt::format("XpicIsStarted: {}, ActualXpi: {}, XpicState: {}",
                                                  response.XpicIsStarted, response.ActualXpi, response.XpicState);
}

std::string contentOf(kel_top_api::TiManageXpic::Response response)
{
    return response.printResponse() +
           fmt::format(", XpicPreamble: {}, Xpd: {}, SlaveCarrierOffset: {}, SlaveSweepOngoing: {}, "
                       "CalibrationStatus: {}",
                       static_cast<unsigned>(response.XpicPreamble), response.Xpd, response.SlaveCarrierOffset,
                       response.SlaveSweepOngoing, response.CalibrationStatus);
}

std::string contentOf(const DpdCoeffs& coefficients)
{
    return fmt::format("{}", fmt::join(coefficients.bytes, " "));
}

std::string contentOf(const DspModemStatus& status)
{
    return fmt::format("{}: {}", status.request, fmt::join(status.content, " "));
}

std::string contentOf(const RadioChannelInfo& info)
{
    return fmt::format("{} {} {} {} {} {} {} {} {} {}", info.radioChannelId, info.flag2, info.radioFrameId,
                       info.minModulationAndCode, info.maxModulationAndCode, info.text6, info.number7, info.number8,
                       info.number9, info.number10);
}

std::string contentOf(const node::radio::RadioLink& link)
{
    std::string text;
    for (RadioChannel channel = 1; channel <= link.numberOfChannels(); ++channel)
    {
        const auto snapshot = link.snapshot(channel);
        text += stateOf(snapshot.state) + readingsOf(snapshot.readings);
    }
    return text;
}
