#include <algorithm>
#include <functional>
#include <memory>
#include <optional>

#include "node/commands/Binding.h"
#include "node/commands/CommandGroups.h"
#include "node/commands/LinkText.h"
#include "node/commands/LongTime.h"
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

/// @throws Misfit for a channel that the link does not have
void change(Desk& desk, ChannelNumber channel, const std::function<void(radio::Channel&)>& apply)
{
    if (!desk.link().hasChannel(channel.number))
    {
        throw Misfit{"channel", std::to_string(channel.number), "1, for the node has one channel"};
    }
    desk.link().change(channel.number, apply);
}

std::string setTransmitter(Desk& desk, ChannelNumber channel, Switch state)
{
    change(desk, channel, [&](radio::Channel& c) { c.transmitter.on = state.on; });
    return "";
}

std::string setXpicCable(Desk& desk, ChannelNumber channel, Switch state)
{
    change(desk, channel, [&](radio::Channel& c) { c.xpic.cableConnected = state.on; });
    return "";
}

std::string setPpsMaster(Desk& desk, ChannelNumber channel, Switch state)
{
    change(desk, channel, [&](radio::Channel& c) { c.ppsMasterAnswers = state.on; });
    return "";
}

std::string advance(Desk& desk, Console& console, Duration time)
{
    letTimeGoOn(desk.link(), console, time.ticks);
    return "";
}

/// Hands the table to `write`, line by line, while time goes on.
void sampleTo(radio::RadioLink& link, Console& console, Duration time, Duration step,
              const std::function<void(const std::string&)>& write)
{
    write(csvHeader() + csvRows(link));
    letTimeGoOn(link, console, time.ticks, step.ticks, [&] { write(csvRows(link)); });
}

/// The file that a command writes.
class WrittenFile
{
public:
    /// @throws Misfit when the file cannot be written
    WrittenFile(Console& console, const std::string& name) : m_name(name), m_output(console.create(name))
    {
        if (m_output == nullptr)
        {
            throw Misfit{"file", wording::quoted(name)};
        }
    }

    /// @throws CutShort when it is full, or gone
    void write(const std::string& text)
    {
        if (!(*m_output << text << std::flush))
        {
            throw CutShort(wording::takesNoMore(m_name));
        }
    }

private:
    std::string m_name;
    std::unique_ptr<std::ostream> m_output;
};

std::string sample(Desk& desk, Console& console, Duration time, Duration step, const TableName& file)
{
    radio::RadioLink& link = desk.link(); // no file is made where there is no link
    if (file.word == "-")
    {
        std::string table;
        sampleTo(link, console, time, step, [&](const std::string& lines) { table += lines; });
        return table;
    }
    WrittenFile output(console, file.word);
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

/// Lets time go on and keeps what is to be drawn of it.
plot::Run runOf(Desk& desk, Console& console, Duration time)
{
    radio::RadioLink& link = desk.link();
    const std::string& description = desk.scenario().description;
    const std::string title = description.empty() ? "A simulated link" : description.substr(0, description.find('\n'));
    plot::Run run{title, services::modulationNames(), {}, {}};
    run.channels.resize(link.numberOfChannels());
    addSample(run, link);
    const radio::Ticks step = std::max(time.ticks / PlottedPoints, radio::Ticks(1));
    letTimeGoOn(link, console, time.ticks, step, [&] { addSample(run, link); });
    return run;
}

terminal::Size roomFor(const Console& console)
{
    terminal::Size size = console.size();
    --size.rows; // for the prompt
    return size;
}

/// @throws PlotError
std::string drawOnScreen(Desk& desk, Console& console, Duration time)
{
    plot::expectRoom(roomFor(console));
    return plot::drawText(runOf(desk, console, time), roomFor(console));
}

/// A picture that is there stays there until the new one is drawn.
/// @throws PlotError
void drawInto(const std::string& file, Desk& desk, Console& console, Duration time)
{
    if (!console.canCreate(file))
    {
        throw Misfit{"file", wording::quoted(file)};
    }
    const std::string picture = plot::drawPicture(runOf(desk, console, time), file);
    WrittenFile(console, file).write(picture);
}

std::string drawRun(Desk& desk, Console& console, Duration time, const std::optional<PictureName>& file)
{
    desk.link(); // no file is made where there is no link
    try
    {
        plot::expectGnuplot(); // before any time has gone
        if (!file)
        {
            return drawOnScreen(desk, console, time);
        }
        drawInto(file->word, desk, console, time);
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
    Command table = makeCommand("sample", sample, "Let time go on and write a table of it (CSV)",
                                {{"time", "how long"},
                                 {"step", "time between two samples"},
                                 {"file", "where to write; what is there is replaced"}});
    table.needsFile = true;
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
                table,
                plot,
            }};
}

} // namespace node::commands
