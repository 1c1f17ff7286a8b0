#include "node/plot/TextPanel.h"

#include <algorithm>
#include <cmath>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "node/plot/Axis.h"
#include "node/plot/Words.h"

namespace node::plot
{

namespace
{

constexpr int LevelColumn = 2;
constexpr int SnirColumn = 3;
constexpr int ModulationColumn = 4;

constexpr int RowsOfPanel = 5; ///< at least, with one of its lines

std::size_t longest(const std::vector<std::string>& texts)
{
    std::size_t letters = 0;
    for (const std::string& text : texts)
    {
        letters = std::max(letters, text.size());
    }
    return letters;
}

TextPanel quantityPanel(const Run& run, const char* name, double Sample::*quantity, int column, int top, int bottom)
{
    const Axis axis = axisOf(run, quantity, bottom - top - 2);
    const double first = std::ceil(axis.low / axis.step) * axis.step;
    const int more = static_cast<int>((axis.high - first) / axis.step);
    std::vector<std::string> numbers;
    for (int i = 0; i <= more; ++i)
    {
        numbers.push_back(number(first + i * axis.step));
    }
    return {name,
            column,
            top,
            bottom,
            axis.low,
            axis.high,
            fmt::format("({})", fmt::join(numbers, ", ")),
            longest(numbers)};
}

TextPanel modulationPanel(const Run& run, int top, int bottom)
{
    const ModulationAxis axis = modulationAxisOf(run, static_cast<std::size_t>(bottom - top - 2));
    std::vector<std::string> names;
    for (const std::string& name : run.modulations)
    {
        names.push_back(plainLetters(name));
    }
    std::vector<std::string> shown;
    for (const std::size_t modulation : namedOn(axis))
    {
        shown.push_back(names[modulation]);
    }
    return {"Modulation if locked",
            ModulationColumn,
            top,
            bottom,
            static_cast<double>(axis.lowest) - 0.5,
            static_cast<double>(axis.end) - 0.5,
            modulationTics(names, axis),
            longest(shown)};
}

} // namespace

double rowOf(const TextPanel& panel)
{
    return (panel.high - panel.low) / (panel.bottom - panel.top - 2);
}

std::vector<TextPanel> panelsOf(const Run& run, int top, int bottom)
{
    const int count = std::clamp((bottom - top) / RowsOfPanel, 1, 3);
    const auto line = [&](int i) { return top + (bottom - top) * i / count; };
    std::vector<TextPanel> panels = {
        quantityPanel(run, "Level (dBm)", &Sample::level_dBm, LevelColumn, line(0), line(1))};
    // What rain does and what comes of it say more than what lies between.
    if (count == 3)
    {
        panels.push_back(quantityPanel(run, "SNIR (dB)", &Sample::snir_dB, SnirColumn, line(1), line(2)));
    }
    if (count > 1)
    {
        panels.push_back(modulationPanel(run, line(count - 1), line(count)));
    }
    return panels;
}

} // namespace node::plot
