#pragma once

#include <cstddef>
#include <string>

#include "node/plot/Plot.h"

namespace node::plot
{

/// A range that is shown, with a number written at every multiple of the step.
struct Axis
{
    double low;
    double high;
    double step;
};

/// The first of 1, 2, 5, 10, 20, 50 ... that reaches over a range in so many steps.
/// @param steps  1 or more
double roundStep(double range, int steps);

/// What all samples of a quantity lie within, from one whole number to another.
/// @param steps  at most; 1 or more
Axis axisOf(const Run& run, double Sample::*quantity, int steps);

/// The time of a run.
struct TimeAxis
{
    double first_s;
    double last_s; ///< after the first, even where both samples are the same one
    double unit_s; ///< a second up to ten minutes, a minute up to ten hours, an hour beyond
    std::string name;
};

TimeAxis timeAxisOf(const Run& run);

/// The modulations that are shown: those at which something was received, all between, and one more on either side.
struct ModulationAxis
{
    std::size_t lowest;
    std::size_t end;        ///< behind the highest one
    std::size_t namesApart; ///< from one that is named to the next
};

/// All modulations where no channel ever had lock.
/// @param rows  that the modulations share, a name in each at most; 2 or more
ModulationAxis modulationAxisOf(const Run& run, std::size_t rows);

/// The places in Run::modulations that are named.
std::vector<std::size_t> namedOn(const ModulationAxis& axis);

} // namespace node::plot
