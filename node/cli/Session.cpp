#include "node/cli/Session.h"

#include <algorithm>
#include <exception>
#include <utility>

#include <fmt/format.h>

#include "node/cli/Guard.h"
#include "node/commands/Line.h"
#include "node/commands/LongTime.h"
#include "node/wording/InputError.h"

namespace node::cli
{

namespace
{

using output::Answer;

/// The radio channel that a command is for.
std::optional<RadioChannel> channelOf(const commands::Command& command, const std::vector<std::string>& words)
{
    if (words.empty() || command.arguments.empty() ||
        command.arguments.front().kind != commands::WordKind::RadioChannel)
    {
        return std::nullopt;
    }
    const auto channel = commands::ChannelNumber::parse(words.front());
    return channel ? std::optional(channel->number) : std::nullopt;
}

/// Takes a step behind a command and adds to its answer what goes wrong.
/// @param subject  of that
void note(Answer& answer, const std::string& subject, const std::function<void()>& step)
{
    Answer ofStep;
    guard(ofStep, step);
    if (ofStep.status != Status::Done)
    {
        answer.status = std::max(answer.status, ofStep.status);
        answer.error += fmt::format("{}{}: {}", answer.error.empty() ? "" : "; ", subject, ofStep.error);
    }
}

} // namespace

Session::Session(commands::Desk& desk, output::Output& output, Surroundings surroundings)
    : m_desk(desk), m_surroundings(std::move(surroundings)),
      m_lastTime(m_surroundings.clock ? m_surroundings.clock() : radio::Ticks(0)), m_output(&output),
      m_sinkBefore(trace::setSink([this](const trace::Message& message) { receive(message); }))
{
    begin(m_history, desk.scenario());
}

Session::~Session()
{
    trace::setSink(m_sinkBefore);
}

void Session::start(const scenario::Scenario& scenario)
{
    m_desk.start(scenario);
    begin(m_history, scenario);
}

Status Session::carryOut(const std::vector<std::string>& words, const std::string& place)
{
    const Answer answer = perform(words, place);
    show(answer);
    return answer.status;
}

Status Session::carryOutLine(const std::string& line, const std::string& place)
{
    Answer unread = beginAnswer(place);
    std::vector<std::string> words;
    guard(unread, [&] { words = commands::splitLine(line); });
    if (unread.status != Status::Done)
    {
        show(unread);
        return unread.status;
    }
    return words.empty() ? Status::Done : carryOut(words, place);
}

Answer Session::attempt(const std::function<void()>& step)
{
    Answer answer = beginAnswer("");
    guard(answer, step);
    answer.trace = takeTrace();
    note(answer, "trace file", [&] { expectTraceFileWritten(); });
    if (answer.status != Status::Done)
    {
        finishTrace(answer);
        show(answer);
    }
    return answer;
}

void Session::tellNext(std::vector<output::TimedMessage> messages)
{
    m_toTell = std::move(messages);
}

Answer Session::beginAnswer(const std::string& place) const
{
    Answer answer;
    answer.place = place;
    answer.time = nodeTime().value_or(radio::Ticks(0));
    return answer;
}

void Session::show(const Answer& answer)
{
    const std::lock_guard lock(m_mutex); // a trace message of another thread waits meanwhile
    m_output->show(answer);
}

Answer Session::perform(const std::vector<std::string>& words, const std::string& place)
{
    Answer answer = beginAnswer(place);
    answer.command = words.front();
    answer.arguments.assign(words.begin() + 1, words.end());
    const int starts = m_desk.starts();
    const commands::Command* command = nullptr;
    m_interrupted = false;
    guard(answer,
          [&]
          {
              command = &commands::commandNamed(words.front());
              answer.command = command->name;
              answer.channel = channelOf(*command, answer.arguments);
              answer.outcome = call(*command, answer);
              if (answer.outcome->result != 0)
              {
                  answer.status = Status::CommandFailed;
                  answer.error = command->name + ": failed";
              }
          });
    // A message that the command left open belongs before whatever comes next.
    trace::completeOpenMessage();
    answer.trace = takeTrace();
    // What goes wrong with files is no answer of the node: it is told behind that, and not recorded.
    const Answer ofNode = answer;
    if (command != nullptr && command->repeatable)
    {
        note(answer, "recording", [&] { keep(*command, ofNode, m_desk.starts() != starts); });
    }
    note(answer, "trace file", [&] { expectTraceFileWritten(); });
    finishTrace(answer);
    return answer;
}

void Session::finishTrace(Answer& answer)
{
    answer.trace.insert(answer.trace.begin(), m_toTell.begin(), m_toTell.end());
    m_toTell.clear();
    std::erase_if(answer.trace, [this](const output::TimedMessage& message) { return !lets(message.message); });
}

commands::Outcome Session::call(const commands::Command& command, Answer& answer)
{
    try
    {
        letTimeGoOn();
        answer.time = nodeTime().value_or(radio::Ticks(0));
        m_now = answer.time.count();
        return command.call(m_desk, *this, answer.arguments);
    }
    catch (const commands::Interrupted&)
    {
        noteInterrupt();
        throw;
    }
}

void Session::noteInterrupt()
{
    m_interrupted = true;
    const std::lock_guard lock(m_mutex);
    m_output->interrupted();
}

void Session::keep(const commands::Command& command, const Answer& answer, bool begun)
{
    // What was cut short is left out, and so is what a file did not let begin: the node alone would not do it again.
    // The time that it took is in the next command's.
    if (answer.cutShort || (command.needsFile && answer.status == Status::NotUnderstood))
    {
        return;
    }
    if (begun)
    {
        begin(m_history, m_desk.scenario());
        m_recorder.write(m_history.beginning);
    }
    else
    {
        add(m_history, answer);
    }
    m_recorder.write(answer);
}

void Session::expectTraceFileWritten()
{
    const std::lock_guard lock(m_mutex);
    m_traceView.expectWritten();
}

void Session::letTimeGoOn()
{
    if (!m_surroundings.clock)
    {
        return;
    }
    const radio::Ticks now = m_surroundings.clock();
    const radio::Ticks gone = now - std::exchange(m_lastTime, now);
    if (m_desk.hasNode())
    {
        commands::letTimeGoOn(m_desk.link(), *this, gone);
    }
}

bool Session::interrupted() const
{
    return m_interrupted;
}

bool Session::left() const
{
    return m_left;
}

bool Session::good() const
{
    return m_output->good();
}

void Session::closeLine()
{
    const std::lock_guard lock(m_mutex);
    m_output->closeLine();
}

std::optional<radio::Ticks> Session::nodeTime() const
{
    return m_desk.hasNode() ? std::optional(m_desk.link().conditions().time) : std::nullopt;
}

const History& Session::history() const
{
    return m_history;
}

void Session::receive(const trace::Message& message)
{
    const std::lock_guard lock(m_mutex);
    const output::TimedMessage timed{radio::Ticks(m_now), message};
    m_trace.push_back(timed);
    if (m_traceView.lets(message))
    {
        m_output->trace(timed);
        m_traceView.write(timed);
    }
}

std::vector<output::TimedMessage> Session::takeTrace()
{
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_trace, {});
}

void Session::giveTraceBack(const std::vector<output::TimedMessage>& messages)
{
    const std::lock_guard lock(m_mutex);
    m_trace.insert(m_trace.begin(), messages.begin(), messages.end());
}

bool Session::lets(const trace::Message& message) const
{
    const std::lock_guard lock(m_mutex);
    return m_traceView.lets(message);
}

} // namespace node::cli
