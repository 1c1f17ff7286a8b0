#include "node/cli/Session.h"

#include <exception>
#include <istream>
#include <ostream>
#include <utility>

#include <fmt/format.h>

#include "node/cli/Command.h"
#include "node/cli/Help.h"
#include "node/cli/Line.h"
#include "node/trace/TraceLibrary.h"
#include "node/wording/InputError.h"

namespace node::cli
{

namespace
{

/// @throws InputError when there are more words than `count`
void expectEnd(const std::vector<std::string>& words, std::size_t count)
{
    if (words.size() > count)
    {
        throw wording::InputError(fmt::format("{}: argument {}", words.front(), count), wording::quoted(words[count]),
                                  "nothing more");
    }
}

} // namespace

Session::Session(Desk& desk, std::ostream& output, std::ostream& errors, Clock clock)
    : m_desk(desk), m_output(output), m_errors(errors), m_clock(std::move(clock)),
      m_lastTime(m_clock ? m_clock() : radio::Ticks(0))
{
}

Status Session::carryOut(const std::vector<std::string>& words, const std::string& place)
{
    return guard(place, [&] { return call(words, place); });
}

Status Session::guard(const std::string& place, const std::function<Status()>& step)
{
    try
    {
        return step();
    }
    catch (const wording::InputError& error)
    {
        m_errors << "kel-node: " << place << error.what() << std::endl;
        return Status::NotUnderstood;
    }
    catch (const startup::StartUpError& error)
    {
        m_errors << "kel-node: " << place << error.what() << std::endl;
        return Status::NotStarted;
    }
    catch (const std::exception& error)
    {
        trace::completeOpenMessage();
        m_errors << "kel-node: " << place << m_command << ": threw " << error.what() << std::endl;
        return Status::CommandFailed;
    }
}

Status Session::call(const std::vector<std::string>& words, const std::string& place)
{
    m_command = words.front();
    if (m_command == "exit")
    {
        expectEnd(words, 1);
        m_left = true;
        return Status::Done;
    }
    if (m_command == "help")
    {
        expectEnd(words, 2);
        print(words.size() == 1 ? overview() : helpOn(words[1]));
        return Status::Done;
    }
    const Command& command = commandNamed(m_command);
    keepTime();
    const Outcome outcome = command.call(m_desk, {words.begin() + 1, words.end()});
    // A message that the command left open belongs before whatever comes next.
    trace::completeOpenMessage();
    print(outcome.output);
    if (outcome.result != 0)
    {
        m_errors << "kel-node: " << place << command.name << ": failed" << std::endl;
        return Status::CommandFailed;
    }
    return Status::Done;
}

void Session::keepTime()
{
    if (!m_clock)
    {
        return;
    }
    const radio::Ticks now = m_clock();
    const radio::Ticks gone = now - std::exchange(m_lastTime, now);
    if (m_desk.hasNode())
    {
        m_desk.link().advance(gone);
    }
}

void Session::print(const std::string& text)
{
    m_output << text << std::flush;
    m_lineIsOpen = !text.empty() && !text.ends_with('\n');
}

Status Session::runLines(std::istream& input, Lines kind)
{
    const bool atPrompt = kind == Lines::AtPrompt;
    if (atPrompt)
    {
        print("A simulated node. \"help\" lists the commands, \"exit\" leaves.\n");
    }
    std::string line;
    for (int number = 1; !m_left && prompt(atPrompt) && std::getline(input, line); ++number)
    {
        const std::string place = atPrompt ? "" : fmt::format("line {}: ", number);
        const auto step = [&]
        {
            const auto words = splitLine(line);
            return words.empty() ? Status::Done : call(words, place);
        };
        const Status status = guard(place, step);
        if (status != Status::Done && !atPrompt)
        {
            return status;
        }
    }
    if (atPrompt && !m_left)
    {
        print("\n");
    }
    return Status::Done;
}

bool Session::prompt(bool atPrompt)
{
    if (atPrompt)
    {
        print(m_lineIsOpen ? "\nkel-node> " : "kel-node> ");
        m_lineIsOpen = false; // whoever types ends it
    }
    return m_output.good();
}

} // namespace node::cli
