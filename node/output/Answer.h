#pragma once

#include <optional>
#include <string>
#include <vector>

#include "node/commands/Command.h"
#include "node/radio/Time.h"
#include "node/trace/TraceLibrary.h"
#include "radio/RadioChannel.h"

namespace node::output
{

/// How a command ended. The numbers are the program's exit status.
enum class Status : int
{
    Done = 0,
    CommandFailed = 1,
    NotUnderstood = 2,
    NotStarted = 3,
};

/// A trace message and the node's time when the command began whose answer has it.
struct TimedMessage
{
    radio::Ticks time{0};
    trace::Message message;
};

/// A line of input that was carried out, and all that came of it.
struct Answer
{
    std::string place;                  ///< where the line stands: "faults.txt:3"; "" at a prompt and among arguments
    std::string command;                ///< whole name; as it was typed where there is none of that name
    std::vector<std::string> arguments; ///< as they were typed
    std::optional<RadioChannel> channel;
    radio::Ticks time{0}; ///< of the node, when the command began
    Status status = Status::Done;
    std::optional<commands::Outcome> outcome; ///< none where nothing was called, or the call threw
    std::vector<TimedMessage> trace;
    std::string error;     ///< what went wrong, without place; "" where nothing did
    bool cutShort = false; ///< it ended before it was done, for a reason that lies outside of the node
};

} // namespace node::output
