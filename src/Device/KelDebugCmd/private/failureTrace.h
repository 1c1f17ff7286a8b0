#pragma once

#include <cerrno>
#include <ostream>
#include <string>
#include <string_view>

#include "trace/VemTrace.h"

/// The three styles in which failures are traced. Readers of the trace tell the commands apart by them.
///
/// A text is that of the service which failed, as it stands.
namespace kel::device::kelDebugCmd
{

/// Failures matter most. No message of this module has another level.
inline constexpr VemTraceLevel FailureLevel = 1;

/// The stream into a message begun for `header`, or the discarding one where the channel is not active.
inline std::ostream& failureStream(VemTrace& trace, const VemTraceHeader& header)
{
    if (!trace.isActive())
    {
        return trace.discardingStream();
    }
    trace.beginLogMsg(FailureLevel, header);
    return trace.messageStream();
}

/// End-of-line style: function, reason and value; the flush of the line end completes the message.
inline void traceLine(VemTrace& trace, const VemTraceHeader& header, std::string_view function, std::string_view reason,
                      std::string_view value)
{
    failureStream(trace, header) << function << reason << value << std::endl;
}

/// Bare style: the service's text alone. Nothing is added to it, not even a line end.
inline void traceText(VemTrace& trace, const VemTraceHeader& header, std::string_view text)
{
    failureStream(trace, header) << text;
}

/// Message-buffer style: "function(): failed: text". Nothing is formatted while the channel is not active.
/// @param header  names its function
inline void traceBuffer(VemTrace& trace, const VemTraceHeader& header, std::string_view text)
{
    if (!trace.isActive())
    {
        return;
    }
    const int errorNumber = errno; // tracing a failure must not disturb what the caller may still look at
    const std::string message = std::string("failed: ").append(text);
    errno = errorNumber;

    const std::string_view function = header.function;
    const std::string_view separator = "(): ";
    trace.beginLogMsg(FailureLevel, header);
    trace.logMsgData(function.data(), function.size());
    trace.logMsgData(separator.data(), separator.size());
    trace.logMsgData(message.data(), message.size());
    trace.endLogMsg();
}

} // namespace kel::device::kelDebugCmd
