#include <algorithm>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "node/plot/Axis.h"
#include "node/plot/Script.h"
#include "node/plot/TextPanel.h"
#include "node/plot/Words.h"

namespace node::plot
{

namespace
{

constexpr int RowsAbove = 2;     ///< title and legend
constexpr int RowsBelow = 1;     ///< the time
constexpr int LettersOfTime = 8; ///< that a number has room for, with the space to the next one

/// Of the table: the time, and level, SNIR and modulation of each channel.
std::string row(const Run& run, std::size_t sample, double time_s)
{
    std::string text = number(time_s);
    for (const auto& channel : run.channels)
    {
        const Sample& now = channel[sample];
        text += fmt::format(" {} {} {}", number(now.level_dBm), number(now.snir_dB),
                            now.locked ? fmt::to_string(now.modulation) : "NaN");
    }
    return text + "\n";
}

/// All samples, each again and again until the next one comes.
std::string table(const Run& run, double interval_s)
{
    std::string text = "$run << END\n";
    for (std::size_t i = 0; i < run.times_s.size(); ++i)
    {
        text += row(run, i, run.times_s[i]);
        const double next_s = run.times_s[std::min(i + 1, run.times_s.size() - 1)];
        for (int k = 1; run.times_s[i] + k * interval_s < next_s; ++k)
        {
            text += row(run, i, run.times_s[i] + k * interval_s);
        }
    }
    return text + "END\n";
}

/// Draws a channel in its number; where two of them are closer than half a row, both in a mark of their own.
std::string plot(const Run& run, const TimeAxis& time, const TextPanel& panel)
{
    std::vector<std::string> curves;
    for (std::size_t i = 0; i < run.channels.size(); ++i)
    {
        curves.push_back(fmt::format("$run using ($1/{}):{} with points pointtype '{}'", time.unit_s,
                                     panel.column + QuantitiesOfChannel * static_cast<int>(i), i + 1));
    }
    if (run.channels.size() == 2)
    {
        curves.push_back(fmt::format("$run using ($1/{0}):(abs(${1}-${2})<{3}?${1}:NaN) with points pointtype '='",
                                     time.unit_s, panel.column, panel.column + QuantitiesOfChannel, rowOf(panel) / 2));
    }
    return fmt::format("plot {}\n", fmt::join(curves, ", "));
}

std::string legend(const Run& run)
{
    std::vector<std::string> marks;
    for (std::size_t i = 1; i <= run.channels.size(); ++i)
    {
        marks.push_back(fmt::format("{0} channel {0}", i));
    }
    if (run.channels.size() == 2)
    {
        marks.emplace_back("= both");
    }
    return fmt::format("{}", fmt::join(marks, "   "));
}

} // namespace

std::string textScript(const Run& run, terminal::Size size)
{
    const TimeAxis time = timeAxisOf(run);
    const std::vector<TextPanel> panels = panelsOf(run, RowsAbove, size.rows - 1 - RowsBelow);
    std::size_t letters = time.name.size();
    for (const TextPanel& panel : panels)
    {
        letters = std::max(letters, panel.letters);
    }
    // The frame's columns. All samples lie within.
    const int left = static_cast<int>(letters) + 1;
    const int right = size.columns - LettersOfTime / 2;
    const double length_s = time.last_s - time.first_s;
    const double column_s = length_s / (right - left - 2);
    const auto fromBelow = [&](int row) { return size.rows - 1 - row; };

    std::string script = fmt::format("set terminal dumb noenhanced mono size {},{}\n", size.columns, size.rows);
    script += table(run, column_s / 2); // a column apart, some would round over a column and leave it empty
    script += fmt::format("set multiplot\n"
                          "unset key\n"
                          "set lmargin {}\n"
                          "set rmargin {}\n"
                          "set xrange [{}:{}]\n"
                          "unset xtics\n"
                          "set ytics nomirror scale 0\n"
                          "set label 1 {} at character 0, {}\n"
                          "set label 2 '{}' at character {}, {}\n",
                          left, size.columns - 1 - right, (time.first_s - column_s) / time.unit_s,
                          (time.last_s + column_s) / time.unit_s, quoted(plainLetters(run.title)), fromBelow(0),
                          legend(run), left, fromBelow(1));
    for (const TextPanel& panel : panels)
    {
        if (&panel == &panels.back())
        {
            script +=
                fmt::format("set xtics nomirror scale 0 {}\n"
                            "set label 4 '{}' at character 0, 0\n",
                            roundStep(10 * length_s / time.unit_s, (right - left) / LettersOfTime) / 10, time.name);
        }
        script += fmt::format("set tmargin {}\n"
                              "set bmargin {}\n"
                              "set yrange [{}:{}]\n"
                              "set ytics {}\n"
                              "set label 3 ' {} ' at character {}, {} front\n",
                              panel.top, fromBelow(panel.bottom), panel.low - rowOf(panel), panel.high + rowOf(panel),
                              panel.tics, panel.name, left + 1, fromBelow(panel.top));
        script += plot(run, time, panel);
    }
    return script + "unset multiplot\n";
}

} // namespace node::plot
