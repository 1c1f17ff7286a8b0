#include "doubles/RecordingTrace.h"

#include <locale>
#include <ostream>
#include <streambuf>
#include <tuple>

#include "doubles/LookAt.h"

namespace
{

using doubles::trace;

/// Appends to the message that was begun last; a flush completes it.
class MessageBuffer : public std::streambuf
{
    int_type overflow(int_type character) override
    {
        const char byte = traits_type::to_char_type(character);
        xsputn(&byte, 1);
        return character;
    }

    std::streamsize xsputn(const char* data, std::streamsize length) override
    {
        auto& messages = trace().messages;
        const bool open = !messages.empty() && messages.back().completion == "none";
        (open ? messages.back().text : trace().outsideOfAny).append(data, static_cast<std::size_t>(length));
        return length;
    }

    int sync() override
    {
        if (!trace().messages.empty() && trace().messages.back().completion == "none")
        {
            trace().messages.back().completion = "flush";
        }
        return 0;
    }
};

class DiscardingBuffer : public std::streambuf
{
    int_type overflow(int_type character) override
    {
        trace().discarded.push_back(traits_type::to_char_type(character));
        return character;
    }
};

/// A stream into one of the buffers. It hands on what the buffer throws, and writes numbers as a fresh stream would.
template <typename Buffer>
class RecordingStream
{
public:
    RecordingStream()
    {
        m_stream.exceptions(std::ios::badbit);
    }

    std::ostream& fresh()
    {
        m_stream.clear();
        m_stream.imbue(std::locale());
        return m_stream;
    }

private:
    Buffer m_buffer;
    std::ostream m_stream{&m_buffer};
};

std::string describe(const VemTraceHeader& header)
{
    if (header.file == nullptr && header.function == nullptr && header.line == 0)
    {
        return "(empty)";
    }
    if (header.file == nullptr || header.function == nullptr || header.line <= 0)
    {
        return "(half empty)";
    }
    return std::string(header.file) + " " + header.function;
}

} // namespace

namespace doubles
{

bool TraceMessage::operator==(const TraceMessage& other) const
{
    return std::tie(channel, level, place, text, completion, data) ==
           std::tie(other.channel, other.level, other.place, other.text, other.completion, other.data);
}

std::ostream& operator<<(std::ostream& out, const TraceMessage& message)
{
    out << "{" << message.channel << ", level " << message.level << ", " << message.place << ", line " << message.line
        << ", \"" << message.text << "\", " << message.completion;
    for (const std::string& piece : message.data)
    {
        out << ", data \"" << piece << "\"";
    }
    return out << "}";
}

void RecordingTrace::reset()
{
    levels = created;
    messages.clear();
    discarded.clear();
    outsideOfAny.clear();
    afterActiveTest = nullptr;
    beforeBegin = nullptr;
}

RecordingTrace& trace()
{
    static RecordingTrace recording;
    return recording;
}

std::string placeIn(const std::string& function)
{
    return "src/Device/KelDebugCmd/private/KelDebugCmd " + function;
}

TraceMessage lineMessage(const std::string& function, const std::string& text)
{
    return {KelDebugCmdChannel, 1, placeIn(function), text, "flush", {}};
}

TraceMessage placelessMessage(const std::string& channel, const std::string& text)
{
    return {channel, 1, "(empty)", text, "flush", {}};
}

TraceMessage bufferMessage(const std::string& function, const std::string& resultText)
{
    const std::string reason = "failed: " + resultText;
    return {KelDebugCmdChannel, 1, placeIn(function), function + "(): " + reason, "end", {function, "(): ", reason}};
}

} // namespace doubles

struct VemTraceConfiguration
{
    std::string channelName;
};

VemTrace::VemTrace(const std::string& channelName, VemTraceLevel level)
    : m_configuration(new VemTraceConfiguration{channelName})
{
    trace().created[channelName] = level;
    trace().levels[channelName] = level;
}

VemTrace::~VemTrace()
{
    delete m_configuration;
}

bool VemTrace::isActive() const
{
    const bool active = trace().levels[m_configuration->channelName] > 0;
    if (trace().afterActiveTest)
    {
        trace().afterActiveTest();
    }
    return active;
}

void VemTrace::beginLogMsg(VemTraceLevel level, const VemTraceHeader& header)
{
    if (trace().beforeBegin)
    {
        trace().beforeBegin();
    }
    trace().messages.push_back({m_configuration->channelName, level, describe(header), "", "none", {}, header.line});
}

void VemTrace::logMsgData(const char* data, std::size_t length)
{
    doubles::lookAt(data, length);
    trace().messages.back().data.emplace_back(data, length);
    trace().messages.back().text.append(data, length);
}

void VemTrace::endLogMsg()
{
    trace().messages.back().completion = "end";
}

std::ostream& VemTrace::messageStream()
{
    static RecordingStream<MessageBuffer> stream;
    return stream.fresh();
}

std::ostream& VemTrace::discardingStream()
{
    static RecordingStream<DiscardingBuffer> stream;
    return stream.fresh();
}
