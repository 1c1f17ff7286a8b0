#include "node/trace/TraceLibrary.h"

#include <cstdio>
#include <utility>

#include <fnmatch.h>

#include "node/trace/Registry.h"

namespace node::trace
{

std::string toLine(const Message& message)
{
    std::string line = "[" + message.channel + "] level " + std::to_string(message.level);
    if (!message.file.empty())
    {
        line += ", " + message.file + ":" + std::to_string(message.line) + " " + message.function;
    }
    line += ": " + message.text;
    if (!line.ends_with('\n'))
    {
        line += '\n';
    }
    return line;
}

bool fits(const std::string& channel, const std::string& pattern)
{
    return fnmatch(pattern.c_str(), channel.c_str(), 0) == 0;
}

Sink setSink(Sink sink)
{
    return registry().setSink(std::move(sink));
}

void setLevel(const std::string& channel, VemTraceLevel level)
{
    registry().configure(channel, level).level = level;
}

std::map<std::string, VemTraceLevel> levels()
{
    return registry().levels();
}

Registry::Registry()
    : m_sink(
          [](const Message& message)
          {
              const std::string line = toLine(message);
              std::fwrite(line.data(), 1, line.size(), stderr);
          })
{
}

VemTraceConfiguration& Registry::configure(const std::string& channel, VemTraceLevel level)
{
    const std::lock_guard lock(m_mutex);
    return m_channels.try_emplace(channel, channel, level).first->second;
}

std::map<std::string, VemTraceLevel> Registry::levels()
{
    const std::lock_guard lock(m_mutex);
    std::map<std::string, VemTraceLevel> levels;
    for (const auto& [name, configuration] : m_channels)
    {
        levels[name] = configuration.level;
    }
    return levels;
}

Sink Registry::setSink(Sink sink)
{
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_sink, std::move(sink));
}

void Registry::deliver(const Message& message)
{
    const std::lock_guard lock(m_mutex);
    m_sink(message);
}

Registry& registry()
{
    static Registry theRegistry;
    return theRegistry;
}

} // namespace node::trace
