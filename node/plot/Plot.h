#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <vector>

#include "node/terminal/Screen.h"

/// Drawings of a link's run, made by gnuplot.
namespace node::plot
{

/// A channel at a moment.
struct Sample
{
    double level_dBm = 0;
    double snir_dB = 0;
    std::size_t modulation = 0; ///< place in Run::modulations
    bool locked = false;        ///< without lock nothing is received at that modulation
};

/// A run of the link: as many samples of each channel as there are times.
struct Run
{
    std::string title;
    std::vector<std::string> modulations; ///< names, from the most robust to the fastest
    std::vector<double> times_s;
    std::vector<std::vector<Sample>> channels; ///< channel 1 first
};

/// Nothing can be drawn; what() says why.
class PlotError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Finds out before anything is drawn whether it can be.
/// @throws PlotError when gnuplot is not installed, with the way to get it
void expectGnuplot();

/// Finds out before anything is drawn whether drawText() has room for it.
/// @throws PlotError for less than 40 x 12 letters
void expectRoom(terminal::Size size);

/// Whether a file of that name can be drawn: it ends in ".svg" or ".png".
bool isPicture(const std::string& fileName);

/// Draws level, SNIR and modulation over time in plain letters, in lines that fit; of what is too much for the rows,
/// SNIR is left out first, then modulation.
/// @param size  more than 400 x 200 letters counts as those
/// @throws PlotError when there is no room for it, or gnuplot does not do it
std::string drawText(const Run& run, terminal::Size size);

/// Draws them as a picture.
/// @return the content of the file, in the form that the end of its name asks for
/// @throws PlotError when gnuplot does not do it
std::string drawPicture(const Run& run, const std::string& fileName);

} // namespace node::plot
