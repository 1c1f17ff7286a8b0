#include "support/Portrait.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "node/services/ModulationNames.h"

namespace portrait
{

namespace
{

using node::radio::Channel;
using node::radio::Profile;
using node::services::Fault;
using node::startup::BrokerEntry;

using Lines = std::vector<std::string>;

std::string inQuotes(std::string_view word)
{
    return fmt::format("\"{}\"", word);
}

template <typename Number>
std::string orNone(const std::optional<Number>& number)
{
    return number ? fmt::format("{}", *number) : "none";
}

/// The word of an enumeration whose members count from 0.
template <typename Enumeration>
std::string word(Enumeration value, const std::vector<std::string>& words)
{
    return inQuotes(words.at(static_cast<std::size_t>(value)));
}

std::string word(node::radio::Polarisation polarisation)
{
    return word(polarisation, {"horizontal", "vertical"});
}

std::string modulation(node::radio::ModulationIndex index)
{
    return inQuotes(node::services::modulationNames().at(index));
}

void addNode(Lines& lines, const node::startup::Configuration& node)
{
    lines.push_back(fmt::format("node.radio_channels = {}", node.link.numberOfChannels));
    lines.push_back(fmt::format("node.radio_channels_told = {}", orNone(node.channelsTold)));
    lines.push_back(fmt::format("node.runs_with_failed_modules = {}", node.runsWithFailedModules));
    lines.push_back(fmt::format("node.seed = {}", node.link.weather.seed));
    for (const std::string key : {"IRlbspKelApi", "IDpdControllerSplit_1", "IDpdControllerSplit_2"})
    {
        const auto entry = node.broker.find(key);
        lines.push_back(fmt::format("broker.{} = {}", key,
                                    word(entry == node.broker.end() ? BrokerEntry::Service : entry->second,
                                         {"service", "absent", "empty", "other type"})));
    }
}

void addHop(Lines& lines, const node::radio::LinkSetup& link)
{
    const node::radio::Hop& hop = link.hop;
    lines.push_back(fmt::format("hop.distance_km = {}", hop.distance_km));
    lines.push_back(fmt::format("hop.frequency_plan = {}", inQuotes(hop.plan->name)));
    lines.push_back(fmt::format("hop.frequency_number = {}", hop.frequencyNumber));
    lines.push_back(fmt::format("symbol rate in Bd = {}", hop.symbolRate_Bd));
    lines.push_back(fmt::format("hop.channel_1_polarisation = {}", word(link.channels[0].polarisation)));
    lines.push_back(fmt::format("polarisation of channel 2 = {}", word(link.channels[1].polarisation)));
    lines.push_back(fmt::format("hop.peak_power_dBm = {}", hop.peakPower_dBm));
    lines.push_back(fmt::format("hop.antenna_gain_dBi = {}", hop.antennaGain_dBi));
    lines.push_back(fmt::format("hop.antenna_discrimination_dB = {}", hop.antennaDiscrimination_dB));
    lines.push_back(fmt::format("hop.noise_figure_dB = {}", hop.noiseFigure_dB));
    lines.push_back(fmt::format("hop.gas_loss_dB_per_km = {}", hop.gasLoss_dB_per_km));
    lines.push_back(fmt::format("hop.reference_difference_ppm = {}", hop.referenceDifference_ppm));
}

void addProfile(Lines& lines, const std::string& table, const std::string& key, const Profile& profile)
{
    lines.push_back(fmt::format("points of {} = {}", table, profile.points().size()));
    for (std::size_t i = 0; i < profile.points().size(); ++i)
    {
        lines.push_back(fmt::format("{}[{}].at_s = {}", table, i + 1, profile.points()[i].at_s));
        lines.push_back(fmt::format("{}[{}].{} = {}", table, i + 1, key, profile.points()[i].value));
    }
}

void addWeather(Lines& lines, const node::radio::Weather& weather)
{
    lines.push_back(fmt::format("weather.scintillation_deviation_dB = {}", weather.scintillation.deviation_dB));
    lines.push_back(fmt::format("weather.scintillation_correlation_s = {}", weather.scintillation.correlation_s));
    addProfile(lines, "weather.rain", "rate_mm_per_h", weather.rain_mm_per_h);
    addProfile(lines, "weather.fade", "depth_dB", weather.fade_dB);
}

void addModem(Lines& lines, const std::string& path, const node::radio::Modem& modem)
{
    lines.push_back(fmt::format("{}.lowest_modulation = {}", path, modulation(modem.lowest)));
    lines.push_back(fmt::format("{}.highest_modulation = {}", path, modulation(modem.highest)));
    lines.push_back(fmt::format("current modulation of {} = {}", path, modulation(modem.current)));
    lines.push_back(fmt::format("lock of {} = {}", path, modem.locked));
    lines.push_back(
        fmt::format("errored and background blocks of {} = {}, {}", path, modem.erroredBlocks, modem.backgroundBlocks));
}

void addXpic(Lines& lines, const std::string& path, const node::radio::Xpic& xpic)
{
    lines.push_back(
        fmt::format("{}.xpic_state = {}", path, word(xpic.state, {"idle", "acquiring", "acquired", "failed", "lost"})));
    lines.push_back(fmt::format("{}.xpic_cable_connected = {}", path, xpic.cableConnected));
    lines.push_back(fmt::format("{}.xpic_slave_muted = {}", path, xpic.slaveMuted));
    lines.push_back(fmt::format("{}.xpic_preamble = {}", path, xpic.preamble));
    lines.push_back(
        fmt::format("{}.xpic_acquire_mode = {}", path, word(xpic.mode, {"full sweep", "narrow sweep", "direct"})));
    lines.push_back(fmt::format("{}.xpic_retries = {}", path, xpic.retries));
    lines.push_back(fmt::format("{}.xpic_reacquires = {}", path, xpic.reacquires));
    lines.push_back(fmt::format("place and last carrier of {} = {}, {}", path, xpic.position_Hz, xpic.lastCarrier_Hz));
}

void addChannel(Lines& lines, const std::string& path, const Channel& channel)
{
    lines.push_back(fmt::format("{}.transmitter_on = {}", path, channel.transmitter.on));
    lines.push_back(fmt::format("{}.transmitter_power_dBm = {}", path, channel.transmitter.power_dBm));
    addModem(lines, path, channel.modem);
    lines.push_back(fmt::format("{}.dpd_running = {}", path, channel.dpd.running));
    lines.push_back(fmt::format("adaptation of {} = {} ticks", path, channel.dpd.adapted.count()));
    lines.push_back(fmt::format("{}.dpd_coefficients = \"{:02x}\"", path, fmt::join(channel.dpd.coefficients, "")));
    addXpic(lines, path, channel.xpic);
    const std::vector<std::string> calibrations = {
        "never", "coarse not completed", "fine not completed", "auto", "manual", "failed"};
    lines.push_back(fmt::format("{}.pps_calibration = {}", path, word(channel.pps.calibration, calibrations)));
    lines.push_back(fmt::format("failure of {} = {}", path, static_cast<int>(channel.pps.failure)));
    lines.push_back(fmt::format("given time of {} = {}", path, orNone(channel.pps.givenTime_ns)));
    lines.push_back(fmt::format("{}.pps_master_answers = {}", path, channel.ppsMasterAnswers));
    lines.push_back(fmt::format("{}.pps_source = {}", path, channel.pps.source));
    lines.push_back(fmt::format("{}.pps_source_parameter = {}", path, channel.pps.sourceParameter));
    lines.push_back(fmt::format("{}.pps_output_mode = {}", path, channel.pps.outputMode));
}

void addFault(Lines& lines, const std::string& path, const Fault& fault)
{
    lines.push_back(fmt::format("{}.call = {}", path, inQuotes(fault.call == nullptr ? "" : fault.call->name)));
    lines.push_back(fmt::format("{}.channel = {}", path, orNone(fault.channel)));
    lines.push_back(fmt::format("{}.code = {}", path, orNone(fault.code)));
    lines.push_back(fmt::format("{}.text = {}", path, fault.text ? inQuotes(*fault.text) : "none"));
    lines.push_back(fmt::format("{}.throws = {}", path, fault.throws));
    lines.push_back(fmt::format("{}.from_call = {}", path, fault.fromCall));
    lines.push_back(fmt::format("{}.calls = {}", path, orNone(fault.calls)));
}

} // namespace

std::vector<std::string> of(const node::scenario::Scenario& scenario)
{
    const node::startup::Configuration& node = scenario.configuration;
    Lines lines = {fmt::format("description = {}", inQuotes(scenario.description))};
    addNode(lines, node);
    addHop(lines, node.link);
    addWeather(lines, node.link.weather);
    addChannel(lines, "channel.1", node.link.channels[0]);
    addChannel(lines, "channel.2", node.link.channels[1]);
    for (std::size_t i = 0; i < node.faults.size(); ++i)
    {
        addFault(lines, fmt::format("fault[{}]", i + 1), node.faults[i]);
    }
    return lines;
}

std::vector<std::string> changes(const node::scenario::Scenario& before, const node::scenario::Scenario& after)
{
    const Lines known = of(before);
    const Lines all = of(after);
    Lines changed;
    std::copy_if(all.begin(), all.end(), std::back_inserter(changed),
                 [&](const std::string& line) { return std::find(known.begin(), known.end(), line) == known.end(); });
    return changed;
}

} // namespace portrait
