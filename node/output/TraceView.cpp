#include "node/output/TraceView.h"

#include <cerrno>
#include <utility>

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
    return message.level <= m_level && trace::fits(message.channel, m_channels);
}

void TraceView::open(const std::string& file)
{
    std::ofstream opened(file, std::ios::binary);
    if (!opened)
    {
        throw wording::InputError(file, wording::foundInsteadOf("folder", {errno, std::generic_category()}),
                                  "a file to write");
    }
    m_file = std::move(opened);
    m_name = file;
}

void TraceView::close()
{
    if (!m_file.is_open())
    {
        throw wording::InputError("trace file", "none", "one that \"traceFile\" has begun");
    }
    m_file.close();
    m_lost = m_file ? "" : m_name;
    expectWritten();
}

void TraceView::write(const TimedMessage& message)
{
    if (m_file.is_open() && !(m_file << toLine(toJson(message)) << std::flush))
    {
        m_file.close();
        m_lost = m_name;
    }
}

void TraceView::expectWritten()
{
    if (const std::string lost = std::exchange(m_lost, {}); !lost.empty())
    {
        throw commands::CommandError(wording::takesNoMore(lost));
    }
}

} // namespace node::output
