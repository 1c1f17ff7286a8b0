#include <algorithm>
#include <functional>
#include <memory>
#include <optional>

#include "node/commands/Binding.h"
#include "node/commands/CommandGroups.h"
#include "node/commands/LinkText.h"
#include "node/plot/Plot.h"
#include "node/services/ModulationNames.h"

namespace node::commands
{

namespace
{

radio::Ticks ticks(const std::optional<Duration>& duration)
{
    return duration ? duration->ticks : radio::Ticks(0);
}

Outcome showLink(Desk& desk)
{
    return {0, linkText(desk.link()), linkFields(desk.link())};
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

/// Lets time go on step by step.
/// @param atStep  called after each
void goOn(radio::RadioLink& link, Console& console, radio::Ticks time, radio::Ticks step,
          const std::function<void()>& atStep)
{
    const auto run = console.beginLongRun();
    for (radio::Ticks done{0}; done < time;)
    {
        const radio::Ticks part = std::min(step, time - done);
        link.advance(part);
        done += part;
        atStep();
        run->reached(radio::seconds(done) / radio::seconds(time));
    }
}

std::string advance(Desk& desk, Console& console, Duration time)
{
    constexpr radio::Ticks AtATime = std::chrono::minutes(1);
    if (time.ticks <= AtATime)
    {
        desk.link().advance(time.ticks);
        return "";
    }
    goOn(desk.link(), console, time.ticks, AtATime, [] {});
    return "";
}

/// Hands the table to `write`, line by line, while time goes on.
void sampleTo(radio::RadioLink& link, Console& console, Duration time, Duration step,
              const std::function<void(const std::string&)>& write)
{
    write(csvHeader() + csvRows(link));
    goOn(link, console, time.ticks, step.ticks, [&] { write(csvRows(link)); });
}

/// The file that a command writes.
class WrittenFile
{
public:
    /// @param place  of the file's name
    /// @throws InputError when the file cannot be written
    WrittenFile(Console& console, const std::string& name, const std::string& place, const std::string& form)
        : m_name(name), m_output(console.create(name))
    {
        if (m_output == nullptr)
        {
            throw wording::InputError(place, wording::quoted(name), form);
        }
    }

    /// @throws CommandError when it is full, or gone
    void write(const std::string& text)
    {
        if (!(*m_output << text << std::flush))
        {
            throw CommandError(wording::quoted(m_name) + " cannot be written any more");
        }
    }

private:
    std::string m_name;
    std::unique_ptr<std::ostream> m_output;
};

std::string sample(Desk& desk, Console& console, Duration time, Duration step, const TableName& file)
{
    radio::RadioLink& link = desk.link(); // no file is made where there is no link
    if (file.name == "-")
    {
        std::string table;
        sampleTo(link, console, time, step, [&](const std::string& lines) { table += lines; });
        return table;
    }
    WrittenFile output(console, file.name, "sample: argument 3 (file)", TableName::form());
    sampleTo(link, console, time, step, [&](const std::string& lines) { output.write(lines); });
    return "";
}

void addSample(plot::Run& run, const radio::RadioLink& link)
{
    run.times_s.push_back(radio::seconds(link.conditions().time));
    for (std::uint32_t channel = 1; channel <= link.numberOfChannels(); ++channel)
    {
        const radio::Snapshot now = link.snapshot(channel);
        const radio::Modem& modem = now.state.modem;
        run.channels.at(channel - 1)
            .push_back({now.readings.level_dBm, now.readings.snir_dB, modem.current, modem.locked});
    }
}

/// A point for every few letters or pixels: finer steps would not be seen.
constexpr int PlottedPoints = 600;

std::string drawRun(Desk& desk, Console& console, Duration time, const std::optional<PictureName>& file)
{
    radio::RadioLink& link = desk.link();
    try
    {
        plot::expectGnuplot(); // before any time has gone
        const std::string& description = desk.scenario().description;
        const std::string title =
            description.empty() ? "A simulated link" : description.substr(0, description.find('\n'));
        plot::Run run{title, services::modulationNames(), {}, {}};
        run.channels.resize(link.numberOfChannels());
        addSample(run, link);
        const radio::Ticks step = std::max(time.ticks / PlottedPoints, radio::Ticks(1));
        if (!file)
        {
            goOn(link, console, time.ticks, step, [&] { addSample(run, link); });
            terminal::Size size = console.size();
            --size.rows; // for the prompt
            return plot::drawText(run, size);
        }
        WrittenFile output(console, file->name, "plot: argument 2 (file)", PictureName::form());
        goOn(link, console, time.ticks, step, [&] { addSample(run, link); });
        output.write(plot::drawPicture(run, file->name));
    }
    catch (const plot::PlotError& error)
    {
        throw CommandError(error.what());
    }
    return "";
}

} // namespace

CommandGroup linkCommands()
{
    const ArgumentText over = {"over", "how long it takes to get there; without it, at once"};
    const ArgumentText channel = {"channel", "radio channel"};
    Command plot = makeCommand(
        "plot", drawRun, "Let time go on and draw level, SNIR and modulation",
        {{"time", "how long"}, {"file", "picture to write; without it, the drawing is printed in letters"}});
    plot.repeatable = false; // what is drawn is as large as the terminal
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
                plot,
            }};
}

} // namespace node::commands
