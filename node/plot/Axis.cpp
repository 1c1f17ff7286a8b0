#include "node/plot/Axis.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace node::plot
{

namespace
{

constexpr double Minute_s = 60;
constexpr double Hour_s = 3600;

} // namespace

double roundStep(double range, int steps)
{
    double decade = 1;
    while (range > steps * 5 * decade)
    {
        decade *= 10;
    }
    for (const double step : {decade, 2 * decade})
    {
        if (range <= steps * step)
        {
            return step;
        }
    }
    return 5 * decade;
}

Axis axisOf(const Run& run, double Sample::*quantity, int steps)
{
    double lowest = std::numeric_limits<double>::max();
    double highest = std::numeric_limits<double>::lowest();
    for (const auto& channel : run.channels)
    {
        for (const Sample& sample : channel)
        {
            if (std::isfinite(sample.*quantity))
            {
                lowest = std::min(lowest, sample.*quantity);
                highest = std::max(highest, sample.*quantity);
            }
        }
    }
    if (lowest > highest)
    {
        return {-1, 1, 1};
    }
    // No line lies on the frame or next to it.
    Axis axis{std::floor(lowest) - 1, std::ceil(highest) + 1, 0};
    axis.step = roundStep(axis.high - axis.low, steps);
    return axis;
}

TimeAxis timeAxisOf(const Run& run)
{
    const double first_s = run.times_s.empty() ? 0 : run.times_s.front();
    const double last_s = run.times_s.empty() ? 0 : run.times_s.back();
    const double length_s = last_s - first_s;
    if (length_s <= 0)
    {
        return {first_s, first_s + 1, 1, "Time (s)"};
    }
    if (length_s <= 10 * Minute_s)
    {
        return {first_s, last_s, 1, "Time (s)"};
    }
    if (length_s <= 10 * Hour_s)
    {
        return {first_s, last_s, Minute_s, "Time (min)"};
    }
    return {first_s, last_s, Hour_s, "Time (h)"};
}

ModulationAxis modulationAxisOf(const Run& run, std::size_t rows)
{
    std::size_t lowest = run.modulations.size();
    std::size_t end = 0;
    for (const auto& channel : run.channels)
    {
        for (const Sample& sample : channel)
        {
            if (sample.locked)
            {
                lowest = std::min(lowest, sample.modulation);
                end = std::max(end, sample.modulation + 1);
            }
        }
    }
    ModulationAxis axis{0, run.modulations.size(), 1};
    if (lowest < end)
    {
        axis.lowest = lowest == 0 ? 0 : lowest - 1;
        axis.end = std::min(end + 1, axis.end);
    }
    // A constellation comes with three codes: with fewer names than modulations it is named once.
    for (std::size_t apart = 3; axis.namesApart * rows < axis.end - axis.lowest; apart += 3)
    {
        axis.namesApart = apart;
    }
    return axis;
}

std::vector<std::size_t> namedOn(const ModulationAxis& axis)
{
    // Of the three codes of a constellation the middle one bears the plain name.
    const std::size_t place = axis.namesApart == 1 ? 0 : 1;
    std::vector<std::size_t> named;
    for (std::size_t modulation = axis.lowest; modulation < axis.end; ++modulation)
    {
        if (modulation % axis.namesApart == place)
        {
            named.push_back(modulation);
        }
    }
    return named;
}

} // namespace node::plot
