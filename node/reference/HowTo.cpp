#include "node/reference/HowTo.h"

namespace node::reference
{

const std::vector<ExitStatus>& exitStatuses()
{
    static const std::vector<ExitStatus> statuses = {
        {0, "All is done"},
        {1, "A command failed, or Ctrl-C ended it; a watch that Ctrl-C ends has the status of its last round"},
        {2, "An option, a line or a scenario was not understood; nothing of it was done"},
        {3, "The node did not start"},
    };
    return statuses;
}

} // namespace node::reference
