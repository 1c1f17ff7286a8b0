#include "node/commands/LinkText.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <utility>
#include <vector>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "node/services/Answer.h"
#include "node/services/ModulationNames.h"

namespace node::commands
{

namespace
{

using radio::Snapshot;

/// A number with so many decimals; what rounds to nothing has no sign.
std::string fixed(double value, int decimals)
{
    const std::string text = fmt::format("{:.{}f}", value, decimals);
    const bool nothing = text.find_first_of("123456789") == std::string::npos;
    return nothing && text.starts_with('-') ? text.substr(1) : text;
}

std::string onOff(bool on)
{
    return on ? "on" : "off";
}

std::string lockText(const Snapshot& channel)
{
    return channel.state.modem.locked ? "locked" : "unlocked";
}

std::string modulationText(const Snapshot& channel)
{
    return services::nameOf(channel.state.modem.modulation());
}

std::string dpdText(const Snapshot& channel)
{
    const radio::Dpd& dpd = channel.state.dpd;
    if (!dpd.running)
    {
        return "stopped";
    }
    return dpd.adapted < radio::Dpd::AdaptationTime ? "adapting" : "adapted";
}

std::string xpicModeText(const Snapshot& channel)
{
    using enum radio::XpicAcquireMode;
    switch (channel.state.xpic.mode)
    {
    case FullSweep:
        return "full sweep";
    case NarrowSweep:
        return "narrow sweep";
    case Direct:
        break;
    }
    return "direct";
}

std::string ppsText(const Snapshot& channel)
{
    using enum radio::PpsCalibration;
    switch (channel.state.pps.calibration)
    {
    case Never:
        return "never";
    case CoarseNotCompleted:
        return "coarse running";
    case FineNotCompleted:
        return channel.state.pps.running() ? "fine running" : "coarse done";
    case Auto:
        return "auto";
    case Manual:
        return "manual";
    case Failed:
        break;
    }
    return "failed";
}

std::string ppsFailureText(const Snapshot& channel)
{
    using enum radio::PpsFailure;
    switch (channel.state.pps.failure)
    {
    case None:
        return "none";
    case SlaveLinkLoss:
        return "link loss";
    case NoResponseFromMaster:
        return "no response";
    case ModulationChange:
        return "modulation";
    case CoarseFirst:
        break;
    }
    return "coarse first";
}

/// A line of the link's text.
struct Row
{
    std::string label;
    std::function<std::string(const Snapshot&)> value;
};

const std::vector<Row>& rows()
{
    static const std::vector<Row> table = {
        {"Polarisation", [](const Snapshot& c)
         { return c.state.polarisation == radio::Polarisation::Vertical ? "vertical" : "horizontal"; }},
        {"Tx frequency", [](const Snapshot& c) { return fmt::format("{} kHz", c.hop.txFrequency_kHz()); }},
        {"Rx frequency", [](const Snapshot& c) { return fmt::format("{} kHz", c.hop.rxFrequency_kHz()); }},
        {"Transmitter", [](const Snapshot& c) { return onOff(c.state.transmitter.on); }},
        {"Tx power", [](const Snapshot& c) { return fixed(c.readings.txPower_dBm, 2) + " dBm"; }},
        {"Rx level", [](const Snapshot& c) { return fixed(c.readings.level_dBm, 2) + " dBm"; }},
        {"XPD", [](const Snapshot& c) { return fixed(c.readings.discrimination_dB, 2) + " dB"; }},
        {"XPI", [](const Snapshot& c) { return fixed(c.readings.interference_dB, 2) + " dB"; }},
        {"SNIR", [](const Snapshot& c) { return fixed(c.readings.snir_dB, 2) + " dB"; }},
        {"Modem", lockText},
        {"Modulation", modulationText},
        {"Errored blocks", [](const Snapshot& c) { return fmt::format("{}", c.state.modem.erroredBlocks); }},
        {"DPD", dpdText},
        {"DPD floor", [](const Snapshot& c) { return fixed(c.state.dpd.floor_dB(), 2) + " dB"; }},
        {"XPIC", [](const Snapshot& c) { return services::stateOf(c.state.xpic); }},
        {"XPIC mode", xpicModeText},
        {"XPIC option", [](const Snapshot& c) { return fmt::format("{}", services::optionOf(c.state.xpic)); }},
        {"XPIC slave", [](const Snapshot& c) { return c.state.xpic.slaveMuted ? "muted" : "open"; }},
        {"XPIC cable", [](const Snapshot& c) { return onOff(c.state.xpic.cableConnected); }},
        {"XPIC preamble", [](const Snapshot& c) { return fmt::format("{}", c.state.xpic.preamble); }},
        {"Slave offset", [](const Snapshot& c) { return fixed(c.readings.slaveCarrierOffset_Hz, 0) + " Hz"; }},
        {"PPS calibration", ppsText},
        {"PPS failure", ppsFailureText},
        {"PPS master", [](const Snapshot& c) { return c.state.ppsMasterAnswers ? "answers" : "silent"; }},
        {"PPS source",
         [](const Snapshot& c) { return fmt::format("{} ({})", c.state.pps.source, c.state.pps.sourceParameter); }},
        {"PPS output mode", [](const Snapshot& c) { return fmt::format("{}", c.state.pps.outputMode); }},
        {"Hop length time", [](const Snapshot& c) { return fixed(c.readings.hopLengthTime_ns, 0) + " ns"; }},
    };
    return table;
}

/// A column of the table of comma-separated values.
struct Column
{
    std::string name;
    std::function<std::string(const radio::Conditions&, std::uint32_t channel, const Snapshot&)> value;
};

const std::vector<Column>& columns()
{
    using radio::Conditions;
    static const std::vector<Column> table = {
        {"time_s", [](const Conditions& now, auto, const Snapshot&) { return fixed(radio::seconds(now.time), 1); }},
        {"distance_km", [](const Conditions& now, auto, const Snapshot&) { return fixed(now.distance_km, 3); }},
        {"rain_mm_per_h", [](const Conditions& now, auto, const Snapshot&) { return fixed(now.rain_mm_per_h, 2); }},
        {"fade_dB", [](const Conditions& now, auto, const Snapshot&) { return fixed(now.fade_dB, 2); }},
        {"channel",
         [](const Conditions&, std::uint32_t channel, const Snapshot&) { return fmt::format("{}", channel); }},
        {"tx_power_dBm", [](const Conditions&, auto, const Snapshot& c) { return fixed(c.readings.txPower_dBm, 2); }},
        {"level_dBm", [](const Conditions&, auto, const Snapshot& c) { return fixed(c.readings.level_dBm, 2); }},
        {"xpd_dB", [](const Conditions&, auto, const Snapshot& c) { return fixed(c.readings.discrimination_dB, 2); }},
        {"snir_dB", [](const Conditions&, auto, const Snapshot& c) { return fixed(c.readings.snir_dB, 2); }},
        {"modem", [](const Conditions&, auto, const Snapshot& c) { return lockText(c); }},
        {"modulation", [](const Conditions&, auto, const Snapshot& c) { return modulationText(c); }},
        {"errored_blocks",
         [](const Conditions&, auto, const Snapshot& c) { return fmt::format("{}", c.state.modem.erroredBlocks); }},
        {"dpd", [](const Conditions&, auto, const Snapshot& c) { return dpdText(c); }},
        {"xpic", [](const Conditions&, auto, const Snapshot& c) { return services::stateOf(c.state.xpic); }},
        {"pps_calibration", [](const Conditions&, auto, const Snapshot& c) { return ppsText(c); }},
        {"hop_length_time_ns",
         [](const Conditions&, auto, const Snapshot& c) { return fixed(c.readings.hopLengthTime_ns, 0); }},
    };
    return table;
}

/// A label and its values, in columns.
std::string line(const std::string& label, const std::vector<std::string>& values)
{
    std::string text = fmt::format("{:<17}", label);
    for (const std::string& value : values)
    {
        text += fmt::format("{:<18}", value);
    }
    return text.substr(0, text.find_last_not_of(' ') + 1) + "\n";
}

std::string channelHead(std::uint32_t channel)
{
    return fmt::format("Channel {}", channel);
}

/// Labels and values of what is around the channels.
std::vector<std::pair<std::string, std::string>> surroundings(const radio::RadioLink& link)
{
    const radio::Conditions now = link.conditions();
    return {{"Time", clockText(now.time)},
            {"Distance", fmt::format("{} km", now.distance_km)},
            {"Rain", fixed(now.rain_mm_per_h, 2) + " mm/h"},
            {"Fade", fixed(now.fade_dB, 2) + " dB"}};
}

} // namespace

std::string clockText(radio::Ticks time)
{
    const std::int64_t tenths = time.count();
    return fmt::format("{}:{:02}:{:02}.{}", tenths / 36000, tenths / 600 % 60, tenths / 10 % 60, tenths % 10);
}

std::string linkText(const radio::RadioLink& link)
{
    std::string text;
    for (const auto& [label, value] : surroundings(link))
    {
        text += line(label + ":", {value});
    }
    std::vector<Snapshot> channels;
    std::vector<std::string> heads;
    for (std::uint32_t channel = 1; channel <= link.numberOfChannels(); ++channel)
    {
        channels.push_back(link.snapshot(channel));
        heads.push_back(channelHead(channel));
    }
    text += "\n" + line("", heads);
    for (const Row& row : rows())
    {
        std::vector<std::string> values;
        std::transform(channels.begin(), channels.end(), std::back_inserter(values), row.value);
        text += line(row.label + ":", values);
    }
    return text;
}

std::vector<report::Field> linkFields(const radio::RadioLink& link)
{
    std::vector<report::Field> fields;
    const auto add = [&](const std::string& under, const std::string& label, const std::string& value)
    {
        for (report::Field& field : report::fieldsOf(fmt::format("{}: {}", label, value)))
        {
            field.under = under;
            fields.push_back(field);
        }
    };
    for (const auto& [label, value] : surroundings(link))
    {
        add("", label, value);
    }
    for (std::uint32_t channel = 1; channel <= link.numberOfChannels(); ++channel)
    {
        const Snapshot snapshot = link.snapshot(channel);
        for (const Row& row : rows())
        {
            add(channelHead(channel), row.label, row.value(snapshot));
        }
    }
    return fields;
}

std::string csvHeader()
{
    std::vector<std::string> names;
    std::transform(columns().begin(), columns().end(), std::back_inserter(names),
                   [](const Column& column) { return column.name; });
    return fmt::format("{}\n", fmt::join(names, ","));
}

std::string csvRows(const radio::RadioLink& link)
{
    const radio::Conditions now = link.conditions();
    std::string text;
    for (std::uint32_t channel = 1; channel <= link.numberOfChannels(); ++channel)
    {
        const Snapshot snapshot = link.snapshot(channel);
        std::vector<std::string> values;
        for (const Column& column : columns())
        {
            values.push_back(column.value(now, channel, snapshot));
        }
        text += fmt::format("{}\n", fmt::join(values, ","));
    }
    return text;
}

} // namespace node::commands
