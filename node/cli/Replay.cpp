#include "node/cli/Replay.h"

#include <algorithm>
#include <fstream>
#include <utility>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "node/cli/Guard.h"
#include "node/cli/RecordingReader.h"
#include "node/cli/Session.h"
#include "node/commands/LinkText.h"
#include "node/commands/LongTime.h"
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
    Replay(commands::Desk& desk, const std::string& file, commands::LongRun& run)
        : m_desk(desk), m_file(file), m_run(run), m_reader(file)
    {
    }

    commands::Outcome run()
    {
        int commands = 0;
        while (const auto entry = m_reader.next())
        {
            m_run.reached(m_reader.share());
            if (entry->beginning && entry->line == 1)
            {
                begin(*entry);
                continue;
            }
            const Entry command = entry->beginning ? commandAfter(*entry) : *entry;
            const std::string difference = entry->beginning ? beginAnew(*entry, command) : repeat(command);
            if (!difference.empty())
            {
                return {1,
                        fmt::format("{}: \"{}\" at {}: {}\n", placeOf(command), fmt::join(command.words, " "),
                                    commands::clockText(command.time), difference),
                        {}};
            }
            ++commands;
        }
        return {0,
                fmt::format("{}: {} {}, each answered as recorded\n", m_file, commands,
                            commands == 1 ? "command" : "commands"),
                {}};
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

    /// Starts the node that the recording begins with. What that traces is no command's.
    void begin(const Entry& beginning)
    {
        const scenario::Scenario scenario = prepare(beginning);
        const output::Answer answer = m_session.attempt([&] { m_session.start(scenario); });
        if (answer.status != Status::Done)
        {
            throw Ended(answer.status, answer.error);
        }
    }

    /// Sets the trace levels that the node began with. @return its scenario
    scenario::Scenario prepare(const Entry& entry) const
    {
        scenario::Scenario scenario = parse(*entry.beginning, placeOf(entry));
        for (const auto& [channel, level] : entry.beginning->traceLevels)
        {
            trace::setLevel(channel, level);
        }
        return scenario;
    }

    /// The command that began the node of a line.
    Entry commandAfter(const Entry& beginning)
    {
        auto command = m_reader.next();
        if (!command || command->beginning)
        {
            throw wording::InputError(fmt::format("{}:{}", m_file, beginning.line + 1),
                                      command ? "another node's beginning" : "the end",
                                      "the command that began the node of the line before");
        }
        return *std::move(command);
    }

    /// Starts the node that a command began. Its words are not carried out: the file that they name may be gone.
    /// @return how that differs from the command's answer
    std::string beginAnew(const Entry& beginning, const Entry& command)
    {
        const scenario::Scenario scenario = prepare(beginning);
        output::Answer answer = m_session.attempt([&] { m_session.start(scenario); });
        if (answer.status == Status::Done)
        {
            answer.outcome = commands::Outcome();
        }
        return differenceFrom(answer, command);
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
            commands::letTimeGoOn(m_desk.link(), m_session, entry.time - now);
        }
        m_session.carryOut(entry.words);
        if (m_session.interrupted())
        {
            throw commands::Interrupted();
        }
        return differenceFrom(m_output.last, entry);
    }

    static std::string differenceFrom(const output::Answer& answer, const Entry& entry)
    {
        return entry.answer.is_null() ? "" : firstDifference(answer, entry.answer);
    }

    static Surroundings withoutFiles()
    {
        Surroundings surroundings;
        surroundings.create = [](const std::string& /*file*/) { return discard(); };
        return surroundings;
    }

    commands::Desk& m_desk;
    std::string m_file;
    commands::LongRun& m_run;
    RecordingReader m_reader;
    LastAnswer m_output;
    Session m_session{m_desk, m_output, withoutFiles()};
};

} // namespace

commands::Outcome replay(commands::Desk& desk, const std::string& file, History& history, commands::LongRun& run)
{
    Replay replay(desk, file, run);
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
