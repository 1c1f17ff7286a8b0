#include <csignal>
#include <initializer_list>

namespace
{

/// Whoever starts the tests may ignore signals, as a shell does for what runs in the background. Programs inherit that,
/// and rightly keep to it. The tests are of a program that a person starts.
const bool asAPersonStartsIt = []
{
    for (const int signal : {SIGHUP, SIGINT, SIGQUIT, SIGTERM, SIGTSTP})
    {
        std::signal(signal, SIG_DFL);
    }
    return true;
}();

} // namespace
