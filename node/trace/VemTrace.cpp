#include "trace/VemTrace.h"

#include <locale>
#include <optional>
#include <streambuf>
#include <utility>

#include "node/trace/Registry.h"

namespace
{

using node::trace::Message;

/// The calling thread's message: at most one is open at a time.
class ThreadMessage : private std::streambuf
{
public:
    ThreadMessage() : m_stream(this)
    {
        // Without this the stream would swallow a bad_alloc and the message with it.
        m_stream.exceptions(std::ios::badbit);
        m_stream.imbue(std::locale::classic());
    }

    ThreadMessage(const ThreadMessage&) = delete;
    ThreadMessage& operator=(const ThreadMessage&) = delete;

    ~ThreadMessage() override
    {
        complete();
    }

    /// Makes room for the next message: completes the one that is open, and makes the stream as new.
    void prepare()
    {
        complete();
        m_stream.clear();
        m_stream.flags(std::ios::skipws | std::ios::dec);
        m_stream.precision(6);
        m_stream.width(0);
        m_stream.fill(' ');
    }

    void begin(Message message)
    {
        m_open = std::move(message);
    }

    void append(const char* data, std::size_t length)
    {
        if (m_open)
        {
            m_open->text.append(data, length);
        }
    }

    void complete()
    {
        if (m_open)
        {
            const Message message = *std::exchange(m_open, std::nullopt);
            node::trace::registry().deliver(message);
        }
    }

    std::ostream& stream()
    {
        return m_stream;
    }

private:
    int_type overflow(int_type character) override
    {
        const char byte = traits_type::to_char_type(character);
        append(&byte, 1);
        return character;
    }

    std::streamsize xsputn(const char* data, std::streamsize length) override
    {
        append(data, static_cast<std::size_t>(length));
        return length;
    }

    int sync() override
    {
        complete();
        return 0;
    }

    std::ostream m_stream;
    std::optional<Message> m_open;
};

ThreadMessage& threadMessage()
{
    thread_local ThreadMessage message;
    return message;
}

/// Takes everything and keeps nothing.
class DiscardingBuffer : public std::streambuf
{
    int_type overflow(int_type character) override
    {
        return traits_type::not_eof(character);
    }

    std::streamsize xsputn(const char* /*data*/, std::streamsize length) override
    {
        return length;
    }
};

} // namespace

VemTrace::VemTrace(const std::string& channelName, VemTraceLevel level)
    : m_configuration(&node::trace::registry().configure(channelName, level))
{
}

VemTrace::~VemTrace() = default;

bool VemTrace::isActive() const
{
    return m_configuration != nullptr && m_configuration->level > 0;
}

void VemTrace::beginLogMsg(VemTraceLevel level, const VemTraceHeader& header)
{
    threadMessage().prepare();
    if (isActive() && level <= m_configuration->level)
    {
        threadMessage().begin({m_configuration->name, level, header.file == nullptr ? "" : header.file, header.line,
                               header.function == nullptr ? "" : header.function, ""});
    }
}

void VemTrace::logMsgData(const char* data, std::size_t length)
{
    threadMessage().append(data, length);
}

void VemTrace::endLogMsg()
{
    threadMessage().complete();
}

std::ostream& VemTrace::messageStream()
{
    return threadMessage().stream();
}

std::ostream& VemTrace::discardingStream()
{
    thread_local DiscardingBuffer buffer;
    thread_local std::ostream stream(&buffer);
    return stream;
}

namespace node::trace
{

void completeOpenMessage()
{
    threadMessage().complete();
}

} // namespace node::trace
