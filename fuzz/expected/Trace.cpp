#include "fuzz/expected/Trace.h"

namespace expected
{

namespace
{

std::string placeIn(const std::string& function)
{
    return "src/Device/KelDebugCmd/private/KelDebugCmd " + function;
}

} // namespace

void traceLine(Outcome& outcome, const std::string& channel, bool active, const std::string& function,
               const std::string& text)
{
    if (active)
    {
        const std::string place = function.empty() ? "(empty)" : placeIn(function);
        outcome.messages.push_back({channel, 1, place, text + "\n", "flush", {}});
    }
    else
    {
        outcome.discarded += text + "\n";
    }
}

void traceBuffer(Outcome& outcome, bool active, const std::string& function, const std::string& resultText)
{
    if (active)
    {
        const std::string reason = "failed: " + resultText;
        outcome.messages.push_back(
            {CommandsChannel, 1, placeIn(function), function + "(): " + reason, "end", {function, "(): ", reason}});
    }
}

void traceBare(Outcome& outcome, bool active, const std::string& function, const std::string& resultText)
{
    if (active)
    {
        outcome.messages.push_back({CommandsChannel, 1, placeIn(function), resultText, "none", {}});
    }
    else
    {
        outcome.discarded += resultText;
    }
}

} // namespace expected
