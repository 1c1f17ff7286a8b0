#pragma once

#include <cstdint>
#include <functional>
#include <iosfwd>
#include <map>
#include <string>
#include <vector>

#include "trace/VemTrace.h"

namespace doubles
{

/// One message, from its beginLogMsg() to the next.
struct TraceMessage
{
    std::string channel;
    VemTraceLevel level = 0;
    std::string place;             ///< "file function" of the header, or "(empty)" for an empty one
    std::string text;              ///< all that was written
    std::string completion;        ///< "flush" or "end" for what completed it, "none" while nothing did
    std::vector<std::string> data; ///< the pieces that came through logMsgData()
    std::int32_t line = 0;         ///< line of the header; left out of comparisons, for sources move

    bool operator==(const TraceMessage& other) const;
};

std::ostream& operator<<(std::ostream& out, const TraceMessage& message);

/// The trace library as a recorder.
struct RecordingTrace
{
    std::map<std::string, VemTraceLevel> created; ///< channel -> level that it was created with
    std::map<std::string, VemTraceLevel> levels;  ///< channel -> level that it has; set it to 0 to silence the channel
    std::vector<TraceMessage> messages;
    std::string discarded;    ///< what was written to the discarding streams
    std::string outsideOfAny; ///< what was written with no message begun; stays empty

    std::function<void()> afterActiveTest; ///< runs last in every isActive()
    std::function<void()> beforeBegin;     ///< runs first in every beginLogMsg()

    /// Forgets messages and functions, and gives every channel back the level that it was created with.
    void reset();
};

RecordingTrace& trace();

inline constexpr const char* KelDebugCmdChannel = "KEL.KDC.KelDebugCmd";
inline constexpr const char* GetCtStatusChannel = "KEL.KDC.GetCtStatusDebugCmd";

/// The place of a message written by `function` of the command source.
std::string placeIn(const std::string& function);

/// The message of end-of-line style that `function` writes to the module's channel.
TraceMessage lineMessage(const std::string& function, const std::string& text);

/// The message of end-of-line style that names no place, on either channel.
TraceMessage placelessMessage(const std::string& channel, const std::string& text);

/// The message of message-buffer style that `function` writes when a service failed with `resultText`.
TraceMessage bufferMessage(const std::string& function, const std::string& resultText);

} // namespace doubles
