#include "kel_top_api/TiManageXpic.h"

#include <cmath>
#include <optional>

#include "node/services/Answer.h"
#include "node/services/TopApi.h"

namespace kel_top_api
{

namespace
{

using node::radio::Channel;
using node::radio::RadioLink;
using node::services::refuse;

/// Why the request cannot be carried out; none when it can.
std::optional<std::string> objection(const TiManageXpic::Command& command, const Channel& channel)
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
        if (channel.xpic.slaveMuted)
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
        channel.xpic.acquireMode = static_cast<std::uint32_t>(command.AcquireMode.value);
        channel.xpic.acquireOption = static_cast<std::uint32_t>(command.AcquireOption.value);
        channel.xpic.acquired = true;
    }
}

void fill(TiManageXpic::Response& response, const node::radio::Snapshot& channel)
{
    const auto& xpic = channel.state.xpic;
    const auto& readings = channel.readings;
    response.XpicControlBarOn = xpic.cancels();
    response.XpicEnable = true;
    response.XpicLockStateMachine = xpic.cancels();
    response.XpicState = node::services::stateOf(xpic);
    response.XpicCableConnected = true;
    response.XpicTxEnable = true;
    response.XpicEnableExt = TiManageXpic::XpicEnableExtType::Enable_A;
    response.XpicPreamble = static_cast<TiManageXpic::PreambleType>(xpic.preamble);
    response.Xpd = node::services::tenths(readings.discrimination_dB);
    response.SlaveCarrierOffset = static_cast<std::int32_t>(std::lround(readings.slaveCarrierOffset_Hz));
    response.CalibrationStatus = xpic.acquired ? 1 : 0;
}

} // namespace

TiManageXpic::Response tiManageXpic(const TiManageXpic::Command& command)
{
    TiManageXpic::Response response;
    const RadioChannel channel = command.RadioChannelID.value;
    response.RadioChannelID = channel;
    RadioLink* const link = node::services::linkOf(channel, response);
    if (link == nullptr)
    {
        return response;
    }
    const auto obey = [&](Channel& state)
    {
        if (const auto reason = objection(command, state))
        {
            refuse(response, *reason);
        }
        else
        {
            carryOut(command, state);
        }
    };
    fill(response, link->change(channel, obey));
    return response;
}

} // namespace kel_top_api
