#pragma once

#include <string>
#include <vector>

#include "node/plot/Axis.h"

/// What scripts for gnuplot are made of.
namespace node::plot
{

/// A text in quotation marks. It stays one text on one line, whatever it holds.
std::string quoted(const std::string& text);

/// The text with a question mark for what is not ASCII.
std::string plainLetters(const std::string& text);

/// A number; "NaN", which draws nothing, for one that is infinite or none.
std::string number(double value);

/// The modulations that are named on an axis, as set ytics wants them: "('4QAM' 7, '16QAM' 10)".
/// @param names  of all modulations
std::string modulationTics(const std::vector<std::string>& names, const ModulationAxis& axis);

} // namespace node::plot
