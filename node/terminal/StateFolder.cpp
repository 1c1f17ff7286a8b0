#include "node/terminal/StateFolder.h"

#include <filesystem>

#include "node/terminal/Environment.h"

namespace node::terminal
{

std::string stateFolder(const std::string& program)
{
    const std::filesystem::path state = variable("XDG_STATE_HOME");
    if (state.is_absolute())
    {
        return (state / program).string();
    }
    const std::filesystem::path home = variable("HOME");
    return home.empty() ? "" : home / ".local/state" / program;
}

} // namespace node::terminal
