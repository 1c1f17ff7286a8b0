#include "node/services/ModemStatus.h"

#include <bit>
#include <cmath>

#include <fmt/format.h>

#include "node/services/Answer.h"
#include "node/services/PlatformCall.h"

ITiGetDspModemStatus::~ITiGetDspModemStatus() = default;

namespace node::services
{

namespace
{

constexpr std::uint32_t FullStatus = 2;

/// What each word of the record's content holds.
enum Word : std::size_t
{
    Channel,
    Locked,
    SymbolRate_kBd,
    ConstellationSize,
    Level_cdBm, ///< hundredths of a dBm, signed
    Snir_cdB,   ///< hundredths of a dB, signed
    DpdRunning,
    XpicAcquired,
};

double fromHundredths(std::uint32_t word)
{
    return std::bit_cast<std::int32_t>(word) / 100.0;
}

} // namespace

ModemStatus::ModemStatus(const ServiceContext& context) : m_context(context)
{
}

DspModemStatusResult ModemStatus::getDspModemStatus(RadioChannel channel, DspModemStatus* status)
{
    return answerByPlan(
        m_context.faults, "ITiGetDspModemStatus.getDspModemStatus", channel, [&] { return fill(channel, *status); },
        [](const PlannedAnswer& planned) {
            return DspModemStatusResult{planned.code, planned.text};
        });
}

DspModemStatusResult ModemStatus::fill(RadioChannel channel, DspModemStatus& status) const
{
    if (!m_context.link.hasChannel(channel))
    {
        return {PlatformRefusal, unknownChannel(channel, m_context.link)};
    }
    if (status.request != FullStatus)
    {
        return {PlatformRefusal, "request: found " + std::to_string(status.request) + ", expected 2"};
    }
    const auto [hop, state, readings] = m_context.link.snapshot(channel);
    auto& content = status.content;
    content = {};
    content[Channel] = channel;
    content[Locked] = state.modem.locked ? 1 : 0;
    content[SymbolRate_kBd] = static_cast<std::uint32_t>(std::lround(hop.symbolRate_Bd / 1e3));
    content[ConstellationSize] = state.modem.modulation().constellationSize;
    content[Level_cdBm] = std::bit_cast<std::uint32_t>(hundredths(readings.level_dBm));
    content[Snir_cdB] = std::bit_cast<std::uint32_t>(hundredths(readings.snir_dB));
    content[DpdRunning] = state.dpd.running ? 1 : 0;
    content[XpicAcquired] = state.xpic.state == radio::XpicState::Acquired ? 1 : 0;
    return {};
}

std::string ModemStatus::toString(DspModemStatus status)
{
    const auto planned = m_context.faults.pass("ITiGetDspModemStatus.toString", status.content[Channel]);
    if (planned)
    {
        return planned->text;
    }
    const auto& content = status.content;
    return fmt::format("Modem status of radio channel {}\n"
                       "Lock:          {}\n"
                       "Symbol rate:   {} kBd\n"
                       "Constellation: {} points\n"
                       "Level:         {:.2f} dBm\n"
                       "SNIR:          {:.2f} dB\n"
                       "DPD:           {}\n"
                       "XPIC:          {}\n",
                       content[Channel], content[Locked] != 0 ? "locked" : "unlocked", content[SymbolRate_kBd],
                       content[ConstellationSize], fromHundredths(content[Level_cdBm]),
                       fromHundredths(content[Snir_cdB]), content[DpdRunning] != 0 ? "running" : "stopped",
                       content[XpicAcquired] != 0 ? "acquired" : "not acquired");
}

} // namespace node::services
