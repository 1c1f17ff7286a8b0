#include "kel_top_api/TiManageXpic.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>

#include "node/services/Answer.h"
#include "node/services/TopApi.h"

namespace kel_top_api
{

namespace
{

using node::radio::Channel;
using node::radio::RadioLink;
using node::services::refuse;

/// Gains of the slave's receiver, which bring its signal to the reference level: the external one first. Assumed.
constexpr double ReferenceLevel_dBm = -20.0;
constexpr double HighestExternalGain_dB = 30.0;
constexpr double HighestInternalGain_dB = 60.0;

/// Why the request cannot be carried out; none when it can.
std::optional<std::string> objection(const TiManageXpic::Command& command, const Channel& channel,
                                     std::uint32_t numberOfChannels)
{
    if (command.Preamble.present && command.Preamble.value >= TiManageXpic::PreambleType::OutOfRange)
    {
        return "preamble: found a number out of range, expected 0 to 3";
    }
    if (command.AcquireStart.present && command.AcquireStart.value)
    {
        if (command.AcquireMode.value >= TiManageXpic::AcquireModeType::OutOfRange)
        {
            return "acquire mode: found a number out of range, expected 0 to 2";
        }
        if (command.AcquireOption.value >= TiManageXpic::AcquireOptionType::OutOfRange)
        {
            return "acquire option: found a number out of range, expected 0 to 3";
        }
        if (numberOfChannels == 1)
        {
            return "acquisition: found one channel, expected the other polarisation on a second one";
        }
        if (command.SlaveMute.present ? command.SlaveMute.value : channel.xpic.slaveMuted)
        {
            return "acquisition: found the slave muted, expected it unmuted";
        }
    }
    return std::nullopt;
}

void carryOut(const TiManageXpic::Command& command, Channel& channel)
{
    if (command.SlaveMute.present)
    {
        channel.xpic.slaveMuted = command.SlaveMute.value;
    }
    if (command.Preamble.present)
    {
        channel.xpic.preamble = static_cast<std::uint32_t>(command.Preamble.value);
    }
    if (command.AcquireStart.present && command.AcquireStart.value)
    {
        channel.xpic.mode = static_cast<node::radio::XpicAcquireMode>(command.AcquireMode.value);
        node::services::setOption(channel.xpic, static_cast<std::uint32_t>(command.AcquireOption.value));
        channel.xpic.startAcquisition();
    }
}

/// The API's number of a canceller's state. Assumed: the platform names it by number only.
std::uint8_t calibrationOf(const node::radio::Xpic& xpic)
{
    using enum node::radio::XpicState;
    switch (xpic.state)
    {
    case Idle:
        return 0;
    case Acquired:
        return xpic.slaveMuted ? 5 : 1;
    case Acquiring:
        return 2;
    case Failed:
        return 3;
    case Lost:
        break;
    }
    return 4;
}

std::string preambleText(std::uint32_t preamble)
{
    return "Preamble " + std::to_string(preamble);
}

std::string messageFromSlave(const node::radio::Snapshot& channel)
{
    if (!channel.state.xpic.cableConnected)
    {
        return "No cable";
    }
    return channel.readings.slaveSignal ? preambleText(channel.readings.slavePreamble) : "No signal";
}

void fill(TiManageXpic::Response& response, const node::radio::Snapshot& channel, std::uint32_t numberOfChannels)
{
    const auto& [hop, state, readings] = channel;
    const auto& xpic = state.xpic;
    const bool acquired = xpic.state == node::radio::XpicState::Acquired;
    const bool enabled = numberOfChannels > 1;
    const double gain_dB = std::max(ReferenceLevel_dBm - readings.slaveLevel_dBm, 0.0);
    response.XpicControlBarOn = xpic.cancels();
    response.XpicEnable = enabled;
    // The other polarisation's amplitude in thousandths of the signal's. Once its carrier is found it stands on the
    // I axis; before, it turns, and averages to nothing.
    response.AverageI =
        acquired ? static_cast<std::int32_t>(std::lround(1000.0 * std::pow(10.0, -readings.interference_dB / 20.0)))
                 : 0;
    response.AverageQ = 0;
    response.TxMessage = state.transmitter.on ? preambleText(xpic.preamble) : "No signal";
    response.RxMessage = messageFromSlave(channel);
    response.XpicLockStateMachine = xpic.cancels();
    response.XpicState = node::services::stateOf(xpic);
    response.SlaveInternalAgc =
        node::services::tenths(std::clamp(gain_dB - HighestExternalGain_dB, 0.0, HighestInternalGain_dB));
    response.SlaveExternalAgc = node::services::tenths(std::min(gain_dB, HighestExternalGain_dB));
    response.XpicCableConnected = xpic.cableConnected;
    response.XpicTxEnable = state.transmitter.on;
    response.XpicEnableExt =
        enabled ? TiManageXpic::XpicEnableExtType::Enable_A : TiManageXpic::XpicEnableExtType::Disable;
    response.SlaveDiffGain = node::services::tenths(readings.level_dBm - readings.slaveLevel_dBm);
    response.XpicPreamble = static_cast<TiManageXpic::PreambleType>(xpic.preamble);
    response.Xpd = node::services::tenths(readings.discrimination_dB);
    response.SlaveCarrierOffset = static_cast<std::int32_t>(std::lround(readings.slaveCarrierOffset_Hz));
    response.SlaveSweepOngoing = xpic.sweeps();
    response.CalibrationStatus = calibrationOf(xpic);
}

} // namespace

TiManageXpic::Response tiManageXpic(const TiManageXpic::Command& command)
{
    const RadioChannel channel = command.RadioChannelID.value;
    const auto work = [&](RadioLink& link, TiManageXpic::Response& response)
    {
        const auto obey = [&](Channel& state)
        {
            if (const auto reason = objection(command, state, link.numberOfChannels()))
            {
                refuse(response, *reason);
            }
            else
            {
                carryOut(command, state);
            }
        };
        fill(response, link.change(channel, obey), link.numberOfChannels());
    };
    auto response = node::services::answer<TiManageXpic::Response>("tiManageXpic", channel, work);
    response.RadioChannelID = channel;
    return response;
}

} // namespace kel_top_api
