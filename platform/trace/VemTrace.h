#pragma once

/// @file
/// The trace library.

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string>

/// How much a message matters (1 is the most important), or how much a channel lets through (0: nothing).
using VemTraceLevel = std::int32_t;

/// Where a message was written. An empty header (no file, line 0, no function) names no place.
struct VemTraceHeader
{
    const char* file = nullptr;     ///< path of the source file
    std::int32_t line = 0;          ///< in that file, counted from 1
    const char* function = nullptr; ///< its name alone
};

/// A channel's configuration, the trace library's own.
struct VemTraceConfiguration;

/// A trace channel, known to the trace library by its name.
///
/// A message is written in one of two styles, both started by beginLogMsg():
///  - stream style: insert into messageStream(); a flush of the stream completes the message;
///  - message-buffer style: logMsgData() any number of times, then endLogMsg().
///
/// Ask isActive() before beginning a message. Text for a channel that is not active goes to discardingStream().
///
/// All members may be called from any thread; messages of different threads do not mix. Running out of memory
/// reaches the writer as `std::bad_alloc`, from the streams too.
class VemTrace
{
public:
    /// Binds the channel to its configuration, which is made with `level` when the name is new.
    VemTrace(const std::string& channelName, VemTraceLevel level);
    VemTrace(const VemTrace&) = delete;
    VemTrace& operator=(const VemTrace&) = delete;
    ~VemTrace();

    /// True when the channel is bound to its configuration and the level configured there is above 0.
    bool isActive() const;

    /// Begins a message of the calling thread. One that the thread began earlier and never completed is completed.
    void beginLogMsg(VemTraceLevel level, const VemTraceHeader& header);

    /// Adds `length` bytes to the message that the calling thread began.
    void logMsgData(const char* data, std::size_t length);

    /// Completes the message that the calling thread began.
    void endLogMsg();

    /// The calling thread's stream into the message that it began.
    std::ostream& messageStream();

    /// A stream that formats what is inserted and keeps nothing.
    std::ostream& discardingStream();

private:
    VemTraceConfiguration* m_configuration;
};
