#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <iosfwd>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "node/cli/Recording.h"
#include "node/commands/Command.h"
#include "node/commands/Desk.h"
#include "node/output/Output.h"
#include "node/output/TraceView.h"
#include "node/radio/Time.h"
#include "node/terminal/Screen.h"

namespace node::cli
{

using output::Status;

/// What a session has around it. Each may be left out.
struct Surroundings
{
    /// A clock that moves by itself: reads the time since any moment. It lets the link's time go on before each
    /// command; without one, time moves when it is told to.
    std::function<radio::Ticks()> clock;

    /// Waits that long, or until Ctrl-C comes; answers whether it came. Without it, that is what a watch does.
    std::function<bool(std::chrono::milliseconds)> wait;

    /// Makes a file to write into, or answers null. Without it, files are made.
    std::function<std::unique_ptr<std::ostream>(const std::string& file)> create;

    std::function<terminal::Size()> size; ///< of the terminal; without it, 80 by 24
    std::ostream* progress = nullptr;     ///< a terminal where progress is drawn
};

/// Carries out commands. While it exists, trace messages go to its output.
///
/// One exists at a time, but for one that replays a recording. Used by one thread; trace messages come from any.
class Session : public commands::Console
{
public:
    /// @param desk, output  borrowed; they outlive the session
    Session(commands::Desk& desk, output::Output& output, Surroundings surroundings = {});
    ~Session() override;

    /// Ends the node that runs and starts another one. @throws StartUpError
    void start(const scenario::Scenario& scenario);

    /// Carries out one command and shows its answer.
    /// @param words  the command's name and its arguments
    /// @param place  where the words stand, to begin an error with: "" or "faults.txt:3"
    Status carryOut(const std::vector<std::string>& words, const std::string& place = "");

    /// Carries out a line; nothing when it is empty or a comment.
    Status carryOutLine(const std::string& line, const std::string& place = "");

    /// Takes a step that is no command, such as to start the node. What goes wrong is shown, and answered.
    output::Answer attempt(const std::function<void()>& step);

    /// Tells trace messages that belong to no command with the next answer.
    void tellNext(std::vector<output::TimedMessage> messages);

    /// Lets the link's time go on by what the clock has moved.
    /// @throws Interrupted when Ctrl-C comes meanwhile; what is left of that time does not go by
    void letTimeGoOn();

    /// Whether Ctrl-C ended the last command.
    bool interrupted() const;

    /// Whether "exit" was said.
    bool left() const;

    /// Whether all could be written so far.
    bool good() const;

    /// Ends the line that was printed last.
    void closeLine();

    /// Of the node that runs; none without one.
    std::optional<radio::Ticks> nodeTime() const;

    /// The commands since the node began.
    const History& history() const;

    // commands::Console
    std::string help(const std::string& topic) override;
    void leave() override;
    int watch(const commands::Watch& watch) override;
    void startRecording(const std::string& file) override;
    void stopRecording() override;
    commands::Outcome replay(const std::string& file) override;
    void filterTrace(const std::string& channels, std::int32_t level) override;
    void startTraceFile(const std::string& file) override;
    void stopTraceFile() override;
    bool canCreate(const std::string& file) override;
    std::unique_ptr<std::ostream> create(const std::string& file) override;
    std::unique_ptr<commands::LongRun> beginLongRun() override;
    terminal::Size size() const override;

private:
    output::Answer beginAnswer(const std::string& place) const;
    output::Answer perform(const std::vector<std::string>& words, const std::string& place);

    /// Calls the command with the answer's arguments, after the time that has gone.
    commands::Outcome call(const commands::Command& command, output::Answer& answer);
    void noteInterrupt();
    void show(const output::Answer& answer);

    /// Keeps the command for recordings.
    /// @param begun  by the command, a node
    void keep(const commands::Command& command, const output::Answer& answer, bool begun);
    void expectTraceFileWritten();

    /// Gives the answer what belongs to no command, and leaves out what is not to be seen.
    void finishTrace(output::Answer& answer);
    void receive(const trace::Message& message);
    std::vector<output::TimedMessage> takeTrace();

    /// Lets the next answer have what takeTrace() has taken.
    void giveTraceBack(const std::vector<output::TimedMessage>& messages);
    bool lets(const trace::Message& message) const;

    commands::Desk& m_desk;
    Surroundings m_surroundings;
    radio::Ticks m_lastTime{0}; ///< of the clock
    bool m_left = false;        ///< "exit" was said
    bool m_interrupted = false; ///< Ctrl-C ended the last command
    History m_history;
    Recorder m_recorder;

    // What trace messages meet, from whichever thread.
    mutable std::mutex m_mutex;
    output::Output* m_output;
    output::TraceView m_traceView;
    std::vector<output::TimedMessage> m_trace;  ///< since the last answer
    std::vector<output::TimedMessage> m_toTell; ///< with the next answer, and of no command
    std::atomic<radio::Ticks::rep> m_now = 0;   ///< of the node, when the command began
    trace::Sink m_sinkBefore;
};

} // namespace node::cli
