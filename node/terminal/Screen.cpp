#include "node/terminal/Screen.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include "node/terminal/Environment.h"

namespace node::terminal
{

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
