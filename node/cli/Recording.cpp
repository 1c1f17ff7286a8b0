#include "node/cli/Recording.h"

#include <cerrno>
#include <cstddef>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "node/output/Json.h"
#include "node/wording/InputError.h"

namespace node::cli
{

namespace
{

using nlohmann::ordered_json;
using wording::InputError;

constexpr std::size_t LongestHistory = 10'000;

ordered_json toJson(const Beginning& beginning)
{
    return {{"recording", RecordingVersion},
            {"scenario", {{"file", beginning.scenarioFile}, {"text", beginning.scenarioText}}},
            {"trace_levels", beginning.traceLevels}};
}

/// A command that was carried out before the recording began: without its answer.
ordered_json earlier(const output::Answer& answer)
{
    ordered_json document = {{"earlier", true}};
    const ordered_json whole = output::toJson(answer);
    for (const auto& [name, value] : whole.items())
    {
        if (name == "time_s" || name == "command" || name.starts_with("arguments"))
        {
            document[name] = value;
        }
    }
    return document;
}

} // namespace

void begin(History& history, const scenario::Scenario& scenario)
{
    history = {{scenario.file, scenario.text, trace::levels()}, {}, true};
}

void add(History& history, const output::Answer& answer)
{
    if (history.commands.size() == LongestHistory)
    {
        history.commands.clear();
        history.complete = false;
    }
    if (history.complete)
    {
        output::Answer kept;
        kept.time = answer.time;
        kept.command = answer.command;
        kept.arguments = answer.arguments;
        history.commands.push_back(kept);
    }
}

void Recorder::expectNone() const
{
    if (isRecording())
    {
        throw InputError("recording", wording::quoted(m_name) + " running", "none; \"stopRecord\" ends it");
    }
}

bool Recorder::isRecording() const
{
    return m_file.is_open();
}

void Recorder::start(const std::string& file, const History& history)
{
    expectNone();
    if (!history.complete)
    {
        throw InputError("recording", fmt::format("more than {} commands since the node began", LongestHistory),
                         "fewer, or the option --record from the start");
    }
    m_file.open(file, std::ios::binary);
    if (!m_file)
    {
        throw InputError(file, wording::foundInsteadOf("folder", {errno, std::generic_category()}), "a file to write");
    }
    m_name = file;
    write(history.beginning);
    for (const output::Answer& command : history.commands)
    {
        writeLine(earlier(command));
    }
}

void Recorder::stop()
{
    if (!isRecording())
    {
        throw InputError("recording", "none running", "one that \"record\" has begun");
    }
    m_file.close();
    if (!m_file)
    {
        throw commands::CommandError(wording::takesNoMore(m_name));
    }
}

void Recorder::write(const Beginning& beginning)
{
    if (isRecording())
    {
        writeLine(toJson(beginning));
    }
}

void Recorder::write(const output::Answer& answer)
{
    if (isRecording())
    {
        writeLine(output::toJson(answer));
    }
}

void Recorder::writeLine(const nlohmann::ordered_json& document)
{
    if (!(m_file << output::toLine(document) << std::flush))
    {
        m_file.close();
        throw commands::CommandError(wording::takesNoMore(m_name));
    }
}

} // namespace node::cli
