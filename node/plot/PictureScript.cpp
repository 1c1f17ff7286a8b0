#include <array>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "node/plot/Axis.h"
#include "node/plot/Script.h"
#include "node/plot/Words.h"

namespace node::plot
{

namespace
{

/// How the channels' lines look: told apart without colours, and both seen where one lies on the other.
constexpr std::array Styles = {
    "linecolor rgb '#0072b2' linewidth 3 pointtype 5 pointsize 0.7 pointnumber 12",
    "linecolor rgb '#e69f00' linewidth 3 dashtype (12, 8) pointtype 6 pointsize 1.2 pointnumber 10",
};

/// Its heights are shares of the picture's, from below.
struct Panel
{
    const char* name;
    double bottom;
    double top;
};

constexpr Panel LevelPanel{"Level (dBm)", 0.68, 0.9};
constexpr Panel SnirPanel{"SNIR (dB)", 0.43, 0.65};
constexpr Panel ModulationPanel{"Modulation if locked", 0.08, 0.4};

constexpr int Numbers = 10;       ///< that a panel has room for
constexpr std::size_t Names = 17; ///< that the one of modulations has room for

std::string setTerminal(Form form)
{
    return form == Form::Svg
               ? "set terminal svg size 960,720 noenhanced rounded background 'white' font 'sans-serif,12' name 'run'\n"
               : "set terminal pngcairo size 960,720 noenhanced rounded font 'sans,10'\n";
}

/// Level and SNIR of all channels, a line for each time.
std::string table(const Run& run)
{
    std::string text = "$run << END\n";
    for (std::size_t i = 0; i < run.times_s.size(); ++i)
    {
        text += number(run.times_s[i]);
        for (const auto& channel : run.channels)
        {
            text += fmt::format(" {} {}", number(channel[i].level_dBm), number(channel[i].snir_dB));
        }
        text += '\n';
    }
    return text + "END\n";
}

/// The corners of the line that a channel's modulation makes; an empty line where it breaks.
std::string corners(const Run& run, std::size_t channel)
{
    std::string text = fmt::format("$modulation{} << END\n", channel + 1);
    const auto corner = [&](std::size_t i, const Sample& sample)
    { text += fmt::format("{} {}\n", number(run.times_s[i]), sample.modulation); };

    const std::vector<Sample>& samples = run.channels[channel];
    Sample before;
    for (std::size_t i = 0; i < samples.size(); ++i)
    {
        const Sample& now = samples[i];
        if (before.locked != now.locked || before.modulation != now.modulation)
        {
            if (before.locked)
            {
                corner(i, before);
            }
            text += before.locked && !now.locked ? "\n" : "";
            if (now.locked)
            {
                corner(i, now);
            }
        }
        before = now;
    }
    if (before.locked)
    {
        corner(samples.size() - 1, before);
    }
    return text + "END\n";
}

std::string frame(const Panel& panel, double low, double high, const std::string& tics)
{
    return fmt::format("set bmargin at screen {}\n"
                       "set tmargin at screen {}\n"
                       "set yrange [{}:{}]\n"
                       "set ytics {}\n"
                       "set label 2 '{}' at screen 0.02, graph 0.5 center rotate\n",
                       panel.bottom, panel.top, low, high, tics, panel.name);
}

/// Plots a line for each channel.
template <typename Line>
std::string plot(const Run& run, Line line)
{
    std::vector<std::string> lines;
    for (std::size_t channel = 0; channel < run.channels.size(); ++channel)
    {
        lines.push_back(fmt::format("{0} linestyle {1} title 'Channel {1}'", line(channel), channel + 1));
    }
    return fmt::format("plot {}\n", fmt::join(lines, ", "));
}

/// @param column  of the first channel in the table
std::string quantity(const Run& run, const TimeAxis& time, const Panel& panel, double Sample::*member,
                     std::size_t column)
{
    const Axis axis = axisOf(run, member, Numbers);
    const auto line = [&](std::size_t channel)
    { return fmt::format("$run using ($1/{}):{} with linespoints", time.unit_s, column + 2 * channel); };
    return frame(panel, axis.low, axis.high, number(axis.step)) + plot(run, line);
}

std::string modulation(const Run& run, const TimeAxis& time)
{
    const ModulationAxis axis = modulationAxisOf(run, Names);
    const auto line = [&](std::size_t channel)
    { return fmt::format("$modulation{} using ($1/{}):2 with linespoints", channel + 1, time.unit_s); };
    return frame(ModulationPanel, static_cast<double>(axis.lowest) - 0.5, static_cast<double>(axis.end) - 0.5,
                 modulationTics(run.modulations, axis)) +
           plot(run, line);
}

} // namespace

std::string pictureScript(const Run& run, Form form)
{
    const TimeAxis time = timeAxisOf(run);
    std::string script = setTerminal(form) + "set encoding utf8\n" + table(run);
    for (std::size_t channel = 0; channel < run.channels.size(); ++channel)
    {
        script += corners(run, channel);
        script += fmt::format("set style line {} {}\n", channel + 1, Styles[channel % Styles.size()]);
    }
    script += fmt::format("set multiplot\n"
                          "set lmargin at screen 0.19\n"
                          "set rmargin at screen 0.97\n"
                          "set border 3\n"
                          "set grid linetype 1 linecolor rgb '#cccccc' linewidth 1\n"
                          "set tics nomirror out\n"
                          "set xrange [{}:{}]\n"
                          "set format x ''\n"
                          "set label 1 {} at screen 0.5, screen 0.97 center font ',14'\n"
                          "set key at screen 0.97, screen 0.955 right top horizontal samplen 6\n",
                          time.first_s / time.unit_s, time.last_s / time.unit_s, quoted(run.title));
    script += quantity(run, time, LevelPanel, &Sample::level_dBm, 2);
    script += "unset label 1\nunset key\n";
    script += quantity(run, time, SnirPanel, &Sample::snir_dB, 3);
    script += fmt::format("set format x '%g'\nset xlabel '{}'\n", time.name);
    script += modulation(run, time);
    return script + "unset multiplot\n";
}

} // namespace node::plot
