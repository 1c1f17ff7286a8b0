#pragma once

#include <fstream>
#include <map>
#include <string>
#include <vector>

#include <nlohmann/json_fwd.hpp>

#include "node/output/Answer.h"
#include "node/scenario/Scenario.h"

/// Recordings: files of JSON lines. The first tells how the node began; each other one is a command with its answer, as
/// docs/json.md describes it, or stands for a command that was carried out before the recording began.
namespace node::cli
{

/// The version of the form, in the first line of each recording.
constexpr int RecordingVersion = 1;

/// How a node began.
struct Beginning
{
    std::string scenarioFile;
    std::string scenarioText;
    std::map<std::string, VemTraceLevel> traceLevels; ///< by channel
};

/// The commands since the node began, for a recording that begins in their midst.
struct History
{
    Beginning beginning;
    std::vector<output::Answer> commands; ///< with time, name and arguments alone
    bool complete = true;                 ///< false where there were too many to keep
};

/// Forgets what was: a node began.
void begin(History& history, const scenario::Scenario& scenario);

/// Keeps the command, or, when it is one too many, forgets them all.
void add(History& history, const output::Answer& answer);

/// Writes recordings.
class Recorder
{
public:
    /// @throws InputError when a recording is running
    void expectNone() const;

    /// @throws InputError when the history is not complete, a recording is running, or the file cannot be written
    void start(const std::string& file, const History& history);

    /// @throws InputError when nothing is recorded, CommandError when the file could not be written to its end
    void stop();

    /// A node began anew, by the command whose answer comes next.
    void write(const Beginning& beginning);

    /// @throws CommandError when the file cannot be written any more; then the recording has ended
    void write(const output::Answer& answer);

private:
    bool isRecording() const;
    void writeLine(const nlohmann::ordered_json& document);

    std::string m_name;
    std::ofstream m_file;
};

} // namespace node::cli
