#pragma once

#include <functional>
#include <map>
#include <string>

#include "trace/VemTrace.h"

/// The node's side of the trace library: where messages go, and how much each channel lets through.
///
/// A message belongs to the thread that begins it and is handed to the sink when it is complete: at a flush of the
/// message stream, at endLogMsg(), when the same thread begins its next message, when the thread ends, or at
/// completeOpenMessage(). It is handed over once and whole. All functions may be called from any thread.
namespace node::trace
{

struct Message
{
    std::string channel;
    VemTraceLevel level = 0;
    std::string file; ///< empty, as function is, when the message names no place
    std::int32_t line = 0;
    std::string function;
    std::string text; ///< as written, with the line end if there was one
};

/// Receives complete messages, one at a time. It must not write trace messages itself.
using Sink = std::function<void(const Message&)>;

/// The message as one line of text with its line end: "[channel] level N, file:line function: text".
std::string toLine(const Message& message);

/// Replaces the sink. The first one writes toLine() to standard error.
/// @return the sink that was replaced
Sink setSink(Sink sink);

/// Sets how much a channel lets through: messages up to that level, with 0 none at all. A name that no channel has
/// yet is kept for the channel to come.
void setLevel(const std::string& channel, VemTraceLevel level);

/// The channels known by name, with their levels.
std::map<std::string, VemTraceLevel> levels();

/// Whether a channel's name fits a pattern: * stands for any letters, ? for any one.
bool fits(const std::string& channel, const std::string& pattern);

/// Completes the message that the calling thread began and neither flushed nor ended; nothing where there is none.
void completeOpenMessage();

} // namespace node::trace
