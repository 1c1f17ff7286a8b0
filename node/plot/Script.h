#pragma once

#include <string>

#include "node/plot/Plot.h"

/// Runs of the link as scripts for gnuplot. The drawing is what gnuplot then writes to its standard output.
namespace node::plot
{

enum class Form
{
    Png,
    Svg,
};

/// Three panels above each other: level, SNIR and modulation.
std::string pictureScript(const Run& run, Form form);

/// As many of the panels as fit, in plain letters.
/// @param size  40 x 12 letters or more
std::string textScript(const Run& run, terminal::Size size);

} // namespace node::plot
