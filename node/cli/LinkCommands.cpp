#include <algorithm>
#include <fstream>
#include <functional>
#include <optional>
#include <stdexcept>

#include "node/cli/Binding.h"
#include "node/cli/CommandGroups.h"
#include "node/cli/LinkText.h"

namespace node::cli
{

namespace
{

radio::Ticks ticks(const std::optional<Duration>& duration)
{
    return duration ? duration->ticks : radio::Ticks(0);
}

std::string showLink(Desk& desk)
{
    return linkText(desk.link());
}

std::string setRain(Desk& desk, RainRate rate, std::optional<Duration> over)
{
    desk.link().turnRain(rate.mm_per_h, ticks(over));
    return "";
}

std::string setFade(Desk& desk, FadeDepth depth, std::optional<Duration> over)
{
    desk.link().turnFade(depth.depth_dB, ticks(over));
    return "";
}

std::string setDistance(Desk& desk, Distance distance)
{
    desk.link().setDistance(distance.distance_km);
    return "";
}

/// @throws InputError for a channel that the link does not have
void change(Desk& desk, const std::string& command, ChannelNumber channel,
            const std::function<void(radio::Channel&)>& apply)
{
    if (!desk.link().hasChannel(channel.number))
    {
        throw wording::InputError(command + ": argument 1 (channel)", std::to_string(channel.number),
                                  "1, for the node has one channel");
    }
    desk.link().change(channel.number, apply);
}

std::string setTransmitter(Desk& desk, ChannelNumber channel, Switch state)
{
    change(desk, "setTransmitter", channel, [&](radio::Channel& c) { c.transmitter.on = state.on; });
    return "";
}

std::string setXpicCable(Desk& desk, ChannelNumber channel, Switch state)
{
    change(desk, "setXpicCable", channel, [&](radio::Channel& c) { c.xpic.cableConnected = state.on; });
    return "";
}

std::string setPpsMaster(Desk& desk, ChannelNumber channel, Switch state)
{
    change(desk, "setPpsMaster", channel, [&](radio::Channel& c) { c.ppsMasterAnswers = state.on; });
    return "";
}

std::string advance(Desk& desk, Duration time)
{
    desk.link().advance(time.ticks);
    return "";
}

/// Hands the table to `write`, line by line, while time goes on.
void sampleTo(radio::RadioLink& link, radio::Ticks duration, radio::Ticks step,
              const std::function<void(const std::string&)>& write)
{
    write(csvHeader() + csvRows(link));
    for (radio::Ticks done{0}; done < duration; done += step)
    {
        link.advance(std::min(step, duration - done));
        write(csvRows(link));
    }
}

std::string sample(Desk& desk, Duration duration, Duration step, const FileName& file)
{
    radio::RadioLink& link = desk.link(); // no file is made where there is no link
    if (file.name == "-")
    {
        std::string table;
        sampleTo(link, duration.ticks, step.ticks, [&](const std::string& lines) { table += lines; });
        return table;
    }
    std::ofstream output(file.name, std::ios::binary);
    if (!output)
    {
        throw wording::InputError("sample: argument 3 (file)", wording::quoted(file.name), FileName::form());
    }
    const auto write = [&](const std::string& lines)
    {
        if (!(output << lines << std::flush))
        {
            throw std::runtime_error(wording::quoted(file.name) + " cannot be written any more");
        }
    };
    sampleTo(link, duration.ticks, step.ticks, write);
    return "";
}

} // namespace

CommandGroup linkCommands()
{
    const ArgumentText over = {"over", "how long it takes to get there; without it, at once"};
    const ArgumentText channel = {"channel", "radio channel"};
    return {"The link",
            {
                makeCommand("showLink", showLink, "Print the link: time, weather, every channel"),
                makeCommand("advance", advance, "Let time go on", {{"time", "how long"}}),
                makeCommand("setRain", setRain, "Turn the rain to a rate", {{"rate", "rain over the whole hop"}, over}),
                makeCommand("setFade", setFade, "Turn the fade to a depth",
                            {{"depth", "loss that is neither rain nor gas"}, over}),
                makeCommand("setDistance", setDistance, "Move the far end", {{"distance", "length of the hop"}}),
                makeCommand("setTransmitter", setTransmitter, "Switch a channel's transmitters, at both ends",
                            {channel, {"state", "whether they transmit"}}),
                makeCommand("setXpicCable", setXpicCable, "Plug or unplug the XPIC cable of a channel",
                            {channel, {"state", "whether it is plugged"}}),
                makeCommand("setPpsMaster", setPpsMaster, "Let the far end answer PPS calibrations, or not",
                            {channel, {"state", "whether it answers"}}),
                makeCommand("sample", sample, "Let time go on and write a table of it (CSV)",
                            {{"time", "how long"},
                             {"step", "time between two samples"},
                             {"file", "where to write; what is there is replaced"}}),
            }};
}

} // namespace node::cli
