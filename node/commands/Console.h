#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "node/commands/Outcome.h"
#include "node/commands/Value.h"
#include "node/terminal/Screen.h"

namespace node::commands
{

/// A command of the simulated node failed; what() says why.
class CommandError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// A command that takes long tells how far it has come, and stops when it is interrupted.
class LongRun
{
public:
    LongRun() = default;
    LongRun(const LongRun&) = delete;
    LongRun& operator=(const LongRun&) = delete;
    virtual ~LongRun() = default;

    /// @param share  how much is done, from 0 to 1
    /// @throws Interrupted when the user wants the command to end
    virtual void reached(double share) = 0;
};

/// A command ended before it was done, for a reason that lies outside of the node: nobody can tell from the node alone
/// how far it came.
class CutShort : public CommandError
{
public:
    using CommandError::CommandError;
};

/// The user ended a command before it was done.
class Interrupted : public CutShort
{
public:
    Interrupted() : CutShort("interrupted")
    {
    }
};

/// What is to be watched.
struct Watch
{
    std::vector<std::string> command;
    radio::Ticks interval;
    std::optional<std::uint32_t> rounds; ///< none: until it is interrupted
};

/// What a command may ask of the command line that carries it out.
class Console
{
public:
    Console() = default;
    Console(const Console&) = delete;
    Console& operator=(const Console&) = delete;
    virtual ~Console() = default;

    /// The help on a topic; "" for the overview.
    /// @throws InputError for what is no topic
    virtual std::string help(const std::string& topic) = 0;

    /// Reads no further line.
    virtual void leave() = 0;

    /// Carries the command out again and again and shows what changes.
    /// @return 0 when the last round was done, 1 when it failed
    virtual int watch(const Watch& watch) = 0;

    /// Records what is carried out from the node's start on. @throws InputError when the file cannot be written
    virtual void startRecording(const std::string& file) = 0;
    /// @throws InputError when nothing is recorded, CommandError when it could not be written to its end
    virtual void stopRecording() = 0;

    /// Ends the node and carries out a recording, on the node that it began with.
    /// @return done when each answer is the recorded one; failed with the first difference where one is not
    /// @throws InputError for a file that is no recording
    virtual Outcome replay(const std::string& file) = 0;

    /// Shows the trace messages of these channels up to that level, and no others.
    virtual void filterTrace(const std::string& channels, std::int32_t level) = 0;

    /// Writes trace messages to a file too. @throws InputError when it cannot be written
    virtual void startTraceFile(const std::string& file) = 0;
    /// @throws InputError when there is none, CommandError when it could not be written to its end
    virtual void stopTraceFile() = 0;

    /// Whether create() would make that file. Leaves what is there as it is.
    virtual bool canCreate(const std::string& file) = 0;

    /// A file to write into; what is there is replaced. Null when it cannot be written.
    virtual std::unique_ptr<std::ostream> create(const std::string& file) = 0;

    virtual std::unique_ptr<LongRun> beginLongRun() = 0;

    /// How much text fits before the user.
    virtual terminal::Size size() const = 0;
};

} // namespace node::commands
