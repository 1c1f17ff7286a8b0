#include "node/output/TraceView.h"

#include <utility>

#include <fnmatch.h>
#include <nlohmann/json.hpp>

#include "node/output/Json.h"
#include "node/wording/InputError.h"

namespace node::output
{

void TraceView::filter(const std::string& channels, std::int32_t level)
{
    m_channels = channels;
    m_level = level;
}

bool TraceView::lets(const trace::Message& message) const
{
    return message.level <= m_level && fnmatch(m_channels.c_str(), message.channel.c_str(), 0) == 0;
}

void TraceView::open(const std::string& file)
{
    std::ofstream opened(file, std::ios::binary);
    if (!opened)
    {
        throw wording::InputError("trace file", wording::quoted(file), "a file that can be written");
    }
    m_file = std::move(opened);
}

void TraceView::close()
{
    if (!m_file.is_open())
    {
        throw wording::InputError("trace file", "none", "one that \"traceFile\" has begun");
    }
    m_file.close();
}

void TraceView::write(const TimedMessage& message)
{
    if (m_file.is_open())
    {
        m_file << toLine(toJson(message)) << std::flush;
    }
}

} // namespace node::output
