#include "node/plot/Plot.h"

#include <algorithm>
#include <sstream>

#include "node/plot/Gnuplot.h"
#include "node/plot/Script.h"

namespace node::plot
{

namespace
{

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

bool isPicture(const std::string& fileName)
{
    return fileName.ends_with(".svg") || fileName.ends_with(".png");
}

std::string drawText(const Run& run, terminal::Size size)
{
    return tidied(runGnuplot(textScript(run, {std::clamp(size.columns, 40, 400), std::clamp(size.rows, 12, 200)})));
}

std::string drawPicture(const Run& run, const std::string& fileName)
{
    return runGnuplot(pictureScript(run, fileName.ends_with(".svg") ? Form::Svg : Form::Png));
}

} // namespace node::plot
