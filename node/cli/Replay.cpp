#include "node/cli/Replay.h"

#include <algorithm>
#include <fstream>
#include <utility>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "node/cli/RecordingReader.h"
#include "node/cli/Session.h"
#include "node/commands/LinkText.h"
#include "node/wording/InputError.h"

namespace node::cli
{

namespace
{

/// Keeps the last answer.
class LastAnswer : public output::Output
{
public:
    void trace(const output::TimedMessage& /*message*/) override
    {
    }

    void show(const output::Answer& answer) override
    {
        last = answer;
    }

    void closeLine() override
    {
    }

    bool good() const override
    {
        return true;
    }

    std::unique_ptr<output::Output> beginWatch(const commands::Watch& /*watch*/) override
    {
        return nullptr;
    }

    output::Answer last;
};

/// Takes everything and keeps nothing.
std::unique_ptr<std::ostream> discard()
{
    auto stream = std::make_unique<std::ofstream>();
    stream->open("/dev/null");
    return stream;
}

class Replay
{
public:
    Replay(commands::Desk& desk, const std::string& file) : m_desk(desk), m_file(file), m_reader(file)
    {
    }

    commands::Outcome run()
    {
        bool begun = false; // by the line before
        int commands = 0;
        while (const auto entry = m_reader.next())
        {
            if (entry->beginning)
            {
                begin(*entry);
                begun = entry->line > 1;
                continue;
            }
            // The command that loaded a scenario has been done: what it loaded is in the recording.
            const std::string difference = std::exchange(begun, false) ? "" : repeat(*entry);
            if (!difference.empty())
            {
                return {1,
                        fmt::format("{}: \"{}\" at {}: {}\n", placeOf(*entry), fmt::join(entry->words, " "),
                                    commands::clockText(entry->time), difference),
                        {}};
            }
            ++commands;
        }
        return {0, fmt::format("{}: {} commands, each answered as recorded\n", m_file, commands), {}};
    }

    const History& history() const
    {
        return m_session.history();
    }

private:
    std::string placeOf(const Entry& entry) const
    {
        return fmt::format("{}:{}", m_file, entry.line);
    }

    void begin(const Entry& entry)
    {
        const Beginning& beginning = *entry.beginning;
        const scenario::Scenario scenario = parse(beginning, placeOf(entry));
        for (const auto& [channel, level] : beginning.traceLevels)
        {
            trace::setLevel(channel, level);
        }
        m_session.start(scenario);
    }

    static scenario::Scenario parse(const Beginning& beginning, const std::string& place)
    {
        try
        {
            return scenario::parse(beginning.scenarioText, beginning.scenarioFile);
        }
        catch (const wording::InputError& error)
        {
            throw wording::InputError(place, error.what(), "a scenario that fits");
        }
    }

    /// @return how the answer differs from the recorded one
    std::string repeat(const Entry& entry)
    {
        const std::string& name = entry.words.front();
        const std::vector<std::string> known = commands::commandNames();
        if (std::find(known.begin(), known.end(), name) == known.end() || !commands::commandNamed(name).repeatable)
        {
            throw wording::InputError(placeOf(entry), wording::quoted(name), "a command that can be recorded");
        }
        const radio::Ticks now = m_session.nodeTime().value_or(entry.time);
        if (now > entry.time)
        {
            return fmt::format("time: found {}", commands::clockText(now));
        }
        if (now < entry.time)
        {
            m_desk.link().advance(entry.time - now);
        }
        // A command that was not understood and yet made a file could not make it.
        m_makesFiles = entry.answer.is_null() || entry.answer.at("status") != "not understood";
        m_session.carryOut(entry.words);
        return entry.answer.is_null() ? "" : firstDifference(m_output.last, entry.answer);
    }

    Surroundings withoutFiles()
    {
        Surroundings surroundings;
        surroundings.create = [this](const std::string& /*file*/) { return m_makesFiles ? discard() : nullptr; };
        return surroundings;
    }

    commands::Desk& m_desk;
    std::string m_file;
    RecordingReader m_reader;
    LastAnswer m_output;
    bool m_makesFiles = true;
    Session m_session{m_desk, m_output, withoutFiles()};
};

} // namespace

commands::Outcome replay(commands::Desk& desk, const std::string& file, History& history)
{
    Replay replay(desk, file);
    const int starts = desk.starts();
    try
    {
        commands::Outcome outcome = replay.run();
        history = replay.history();
        return outcome;
    }
    catch (...)
    {
        if (desk.starts() != starts) // the node is no longer the one that the history tells of
        {
            history = replay.history();
        }
        throw;
    }
}

} // namespace node::cli
