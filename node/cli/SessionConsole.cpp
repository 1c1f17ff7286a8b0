// What commands of the command line ask of their session.
#include "node/cli/Session.h"

#include <filesystem>
#include <fstream>
#include <functional>
#include <system_error>

#include "node/cli/Guard.h"
#include "node/cli/Progress.h"
#include "node/cli/Replay.h"
#include "node/reference/Help.h"
#include "node/terminal/Interrupt.h"

namespace node::cli
{

using output::Answer;

std::string Session::help(const std::string& topic)
{
    return topic.empty() ? reference::overview() : reference::helpOn(topic);
}

void Session::leave()
{
    m_left = true;
}

int Session::watch(const commands::Watch& watch)
{
    std::unique_ptr<output::Output> view;
    output::Output* const before = m_output;
    {
        const std::lock_guard lock(m_mutex);
        view = before->beginWatch(watch);
        m_output = view == nullptr ? before : view.get();
    }
    struct Back
    {
        ~Back()
        {
            back();
        }

        std::function<void()> back;
    };
    const Back back{[&]
                    {
                        const std::lock_guard lock(m_mutex);
                        view.reset(); // and tells of what waits for the next frame, before anything newer
                        m_output = before;
                    }};

    terminal::Interrupt interrupt;
    const std::chrono::milliseconds interval = watch.interval;
    const auto wait = [&]
    { return m_surroundings.wait ? m_surroundings.wait(interval) : interrupt.happensWithin(interval); };
    for (std::uint32_t round = 1;; ++round)
    {
        const Answer answer = perform(watch.command, "");
        if (answer.status == Status::NotUnderstood || answer.status == Status::NotStarted)
        {
            giveTraceBack(answer.trace);
            throw Ended(answer.status, answer.error);
        }
        show(answer);
        const bool last = round == watch.rounds || !m_output->good() || m_interrupted;
        if (!last && wait())
        {
            noteInterrupt();
        }
        if (last || m_interrupted)
        {
            return static_cast<int>(answer.status);
        }
        if (!m_surroundings.clock && m_desk.hasNode())
        {
            m_desk.link().advance(watch.interval);
        }
    }
}

void Session::startRecording(const std::string& file)
{
    m_desk.link(); // without a node there is nothing to record
    m_recorder.start(file, m_history);
}

void Session::stopRecording()
{
    m_recorder.stop();
}

commands::Outcome Session::replay(const std::string& file)
{
    m_recorder.expectNone();
    const auto run = beginLongRun();
    return cli::replay(m_desk, file, m_history, *run);
}

void Session::filterTrace(const std::string& channels, std::int32_t level)
{
    const std::lock_guard lock(m_mutex);
    m_traceView.filter(channels, level);
}

void Session::startTraceFile(const std::string& file)
{
    const std::lock_guard lock(m_mutex);
    m_traceView.open(file);
}

void Session::stopTraceFile()
{
    const std::lock_guard lock(m_mutex);
    m_traceView.close();
}

bool Session::canCreate(const std::string& file)
{
    namespace fs = std::filesystem;
    std::error_code unknown;
    const bool isThere = fs::exists(file, unknown);
    const bool opens = std::ofstream(file, std::ios::app).is_open();
    if (opens && !isThere)
    {
        fs::remove(fs::canonical(file, unknown), unknown); // a link stays, and still leads nowhere
    }
    return opens;
}

std::unique_ptr<std::ostream> Session::create(const std::string& file)
{
    if (m_surroundings.create)
    {
        return m_surroundings.create(file);
    }
    auto output = std::make_unique<std::ofstream>(file, std::ios::binary);
    return *output ? std::move(output) : nullptr;
}

std::unique_ptr<commands::LongRun> Session::beginLongRun()
{
    if (m_surroundings.progress == nullptr)
    {
        return std::make_unique<Progress>(nullptr);
    }
    return std::make_unique<Progress>(
        [this](const std::string& drawing)
        {
            const std::lock_guard lock(m_mutex);
            *m_surroundings.progress << drawing << std::flush;
        });
}

terminal::Size Session::size() const
{
    return m_surroundings.size ? m_surroundings.size() : terminal::Size();
}

} // namespace node::cli
