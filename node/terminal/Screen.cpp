#include "node/terminal/Screen.h"

#include <cstdlib>
#include <string_view>

#include <sys/ioctl.h>
#include <unistd.h>

namespace node::terminal
{

namespace
{

std::string_view variable(const char* name)
{
    const char* const value = std::getenv(name);
    return value == nullptr ? "" : value;
}

} // namespace

bool hasColours(int descriptor)
{
    return canRedraw(descriptor) && variable("NO_COLOR").empty();
}

bool canRedraw(int descriptor)
{
    return isatty(descriptor) != 0 && !variable("TERM").empty() && variable("TERM") != "dumb";
}

Size sizeOf(int descriptor)
{
    winsize told{};
    if (ioctl(descriptor, TIOCGWINSZ, &told) != 0 || told.ws_col == 0 || told.ws_row == 0)
    {
        return {};
    }
    return {told.ws_col, told.ws_row};
}

} // namespace node::terminal
