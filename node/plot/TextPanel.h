#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "node/plot/Plot.h"

/// The panels of a drawing in letters. Rows count from 0 at the top of the drawing.
namespace node::plot
{

/// Of the table that is drawn, each channel having level, SNIR and modulation in it.
constexpr int QuantitiesOfChannel = 3;

/// Stands between two lines, its name in the upper one.
struct TextPanel
{
    std::string name;
    int column; ///< of the first channel's quantity in the table
    int top;
    int bottom;
    double low;  ///< in the row above the lower line
    double high; ///< in the row below the upper line
    std::string tics;
    std::size_t letters; ///< of the longest tic
};

/// What a row stands for.
double rowOf(const TextPanel& panel);

/// As many as are readable, from the first to the last of these rows.
std::vector<TextPanel> panelsOf(const Run& run, int top, int bottom);

} // namespace node::plot
