#pragma once

#include <memory>

#include "node/commands/Console.h"
#include "node/output/Answer.h"

namespace node::output
{

/// Where answers go.
class Output
{
public:
    Output() = default;
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;
    virtual ~Output() = default;

    /// A trace message, as it comes; the answer of the command that it belongs to has it too. May be called from any
    /// thread, one call at a time.
    virtual void trace(const TimedMessage& message) = 0;

    /// The answer of a command that has ended.
    virtual void show(const Answer& answer) = 0;

    /// Begins a line where the text shown last did not end its own.
    virtual void closeLine() = 0;

    /// Ctrl-C was typed, which a terminal shows.
    virtual void interrupted()
    {
    }

    /// Whether all could be written so far.
    virtual bool good() const = 0;

    /// Where the rounds of a watch go; null where they go here, as other answers do.
    virtual std::unique_ptr<Output> beginWatch(const commands::Watch& watch) = 0;
};

} // namespace node::output
