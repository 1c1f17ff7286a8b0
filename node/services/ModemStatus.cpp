#include "node/services/ModemStatus.h"

#include <bit>

#include <fmt/format.h>

#include "node/services/Answer.h"

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
    SymbolRate_kBd,
    ConstellationSize,
    Level_cdBm, ///< hundredths of a dBm, signed
    Snir_cdB,   ///< hundredths of a dB, signed
    DpdRunning,
    XpicAcquired,
};

double decibels(std::uint32_t word)
{
    return std::bit_cast<std::int32_t>(word) / 100.0;
}

} // namespace

ModemStatus::ModemStatus(const radio::RadioLink& link) : m_link(link)
{
}

DspModemStatusResult ModemStatus::getDspModemStatus(RadioChannel channel, DspModemStatus* status)
{
    if (!radio::RadioLink::hasChannel(channel))
    {
        return {PlatformRefusal, unknownChannel(channel)};
    }
    if (status->request != FullStatus)
    {
        return {PlatformRefusal, "request: found " + std::to_string(status->request) + ", expected 2"};
    }
    const auto [state, readings] = m_link.snapshot(channel);
    status->content = {};
    status->content[Channel] = channel;
    status->content[SymbolRate_kBd] = static_cast<std::uint32_t>(m_link.hop().symbolRate_Bd / 1e3);
    status->content[ConstellationSize] = m_link.hop().modulation.constellationSize;
    status->content[Level_cdBm] = std::bit_cast<std::uint32_t>(hundredths(readings.level_dBm));
    status->content[Snir_cdB] = std::bit_cast<std::uint32_t>(hundredths(readings.snir_dB));
    status->content[DpdRunning] = state.dpd.running ? 1 : 0;
    status->content[XpicAcquired] = state.xpic.acquired ? 1 : 0;
    return {};
}

std::string ModemStatus::toString(DspModemStatus status)
{
    const auto& content = status.content;
    return fmt::format("Modem status of radio channel {}\n"
                       "Symbol rate:   {} kBd\n"
                       "Constellation: {} points\n"
                       "Level:         {:.2f} dBm\n"
                       "SNIR:          {:.2f} dB\n"
                       "DPD:           {}\n"
                       "XPIC:          {}\n",
                       content[Channel], content[SymbolRate_kBd], content[ConstellationSize],
                       decibels(content[Level_cdBm]), decibels(content[Snir_cdB]),
                       content[DpdRunning] != 0 ? "running" : "stopped",
                       content[XpicAcquired] != 0 ? "acquired" : "not acquired");
}

} // namespace node::services
