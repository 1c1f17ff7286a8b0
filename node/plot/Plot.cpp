#include "node/plot/Plot.h"

#include <algorithm>
#include <sstream>

#include <fmt/format.h>

#include "node/plot/Gnuplot.h"
#include "node/plot/Script.h"

namespace node::plot
{

namespace
{

constexpr terminal::Size SmallestText = {40, 12};

/// The lines without what gnuplot puts around them: a form feed, blanks up to the width of the drawing.
std::string tidied(std::string drawing)
{
    std::erase(drawing, '\f');
    std::istringstream lines(drawing);
    std::string text;
    for (std::string line; std::getline(lines, line);)
    {
        line.erase(line.find_last_not_of(' ') + 1);
        const bool leading = text.empty() && line.empty();
        text += leading ? "" : line + "\n";
    }
    return text;
}

} // namespace

void expectGnuplot()
{
    runGnuplot("", {"--version"});
}

void expectRoom(terminal::Size size)
{
    if (size.columns < SmallestText.columns || size.rows < SmallestText.rows)
    {
        throw PlotError(fmt::format("found room for {} x {} letters, expected {} x {} or more", size.columns, size.rows,
                                    SmallestText.columns, SmallestText.rows));
    }
}

bool isPicture(const std::string& fileName)
{
    return fileName.ends_with(".svg") || fileName.ends_with(".png");
}

std::string drawText(const Run& run, terminal::Size size)
{
    expectRoom(size);
    return tidied(runGnuplot(textScript(run, {std::min(size.columns, 400), std::min(size.rows, 200)})));
}

std::string drawPicture(const Run& run, const std::string& fileName)
{
    return runGnuplot(pictureScript(run, fileName.ends_with(".svg") ? Form::Svg : Form::Png));
}

} // namespace node::plot
