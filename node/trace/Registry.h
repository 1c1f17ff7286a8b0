#pragma once

#include <atomic>
#include <map>
#include <mutex>
#include <string>

#include "node/trace/TraceLibrary.h"

/// A channel's name, and the level that is configured for it.
struct VemTraceConfiguration
{
    VemTraceConfiguration(const std::string& channelName, VemTraceLevel initialLevel)
        : name(channelName), level(initialLevel)
    {
    }

    const std::string name;
    std::atomic<VemTraceLevel> level;
};

namespace node::trace
{

/// All channels by name, and the sink. Configurations stay where they are until the process ends.
class Registry
{
public:
    Registry();

    /// The configuration of that name; made with `level` where there is none.
    VemTraceConfiguration& configure(const std::string& channel, VemTraceLevel level);
    std::map<std::string, VemTraceLevel> levels();
    Sink setSink(Sink sink);
    void deliver(const Message& message);

private:
    std::mutex m_mutex;
    std::map<std::string, VemTraceConfiguration> m_channels;
    Sink m_sink;
};

/// Made with the first channel, and so outlives every channel.
Registry& registry();

} // namespace node::trace
