#include "node/commands/TraceChannels.h"

#include "node/commands/Binding.h"
#include "node/trace/TraceLibrary.h"

namespace node::commands
{

std::vector<std::string> traceChannelsLike(const ChannelPattern& pattern)
{
    std::vector<std::string> all;
    std::vector<std::string> fitting;
    for (const auto& [name, level] : trace::levels())
    {
        all.push_back(name);
        if (trace::fits(name, pattern.word))
        {
            fitting.push_back(name);
        }
    }
    if (fitting.empty() && !all.empty())
    {
        throw Misfit{"channels", wording::quoted(pattern.word),
                     "a pattern that fits a channel that \"listTraceLevels\" lists" +
                         wording::didYouMean(pattern.word, all)};
    }
    return fitting;
}

} // namespace node::commands
