#include "node/cli/Session.h"

#include <exception>
#include <istream>
#include <iterator>
#include <ostream>
#include <sstream>

#include <fmt/format.h>

#include "node/cli/Help.h"
#include "node/cli/Operation.h"
#include "node/cli/UsageError.h"
#include "node/trace/TraceLibrary.h"

namespace node::cli
{

namespace
{

/// The words of a line; none when it is empty or a comment.
std::vector<std::string> split(const std::string& line)
{
    std::istringstream stream(line);
    std::vector<std::string> words{std::istream_iterator<std::string>(stream), {}};
    if (!words.empty() && words.front().starts_with('#'))
    {
        words.clear();
    }
    return words;
}

const Operation& operationOf(const std::string& name)
{
    const Operation* const operation = findOperation(name);
    if (operation == nullptr)
    {
        throw UsageError("command", quoted(name), "one that \"help\" lists");
    }
    return *operation;
}

/// @throws UsageError when there are more words than `count`
void expectEnd(const std::vector<std::string>& words, std::size_t count)
{
    if (words.size() > count)
    {
        throw UsageError(fmt::format("{}: argument {}", words.front(), count), quoted(words[count]), "nothing more");
    }
}

std::string help(const std::vector<std::string>& words)
{
    expectEnd(words, 2);
    const bool ofAll = words.size() == 1 || words[1] == "help" || words[1] == "exit";
    return ofAll ? overview() : describe(operationOf(words[1]));
}

} // namespace

Session::Session(IRlbspKelApi::KelDebugCmdCallback& commands, std::ostream& output, std::ostream& errors)
    : m_commands(commands), m_output(output), m_errors(errors)
{
}

Status Session::carryOut(const std::vector<std::string>& words, const std::string& place)
{
    try
    {
        return call(words, place);
    }
    catch (const UsageError& error)
    {
        m_errors << "kel-node: " << place << error.what() << std::endl;
        return Status::NotUnderstood;
    }
    catch (const std::exception& error)
    {
        trace::completeOpenMessage();
        m_errors << "kel-node: " << place << words.front() << ": threw " << error.what() << std::endl;
        return Status::CommandFailed;
    }
}

Status Session::call(const std::vector<std::string>& words, const std::string& place)
{
    if (words.front() == "exit")
    {
        expectEnd(words, 1);
        m_left = true;
        return Status::Done;
    }
    if (words.front() == "help")
    {
        print(help(words));
        return Status::Done;
    }
    const Operation& operation = operationOf(words.front());
    const Outcome outcome = operation.call(m_commands, {words.begin() + 1, words.end()});
    // A message that the command left open belongs before whatever comes next.
    trace::completeOpenMessage();
    print(outcome.output);
    if (outcome.result != 0)
    {
        m_errors << "kel-node: " << place << operation.name << ": failed" << std::endl;
        return Status::CommandFailed;
    }
    return Status::Done;
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
        print("A simulated node with two radio channels. \"help\" lists the commands, \"exit\" leaves.\n");
    }
    std::string line;
    for (int number = 1; !m_left && prompt(atPrompt) && std::getline(input, line); ++number)
    {
        const auto words = split(line);
        if (words.empty())
        {
            continue;
        }
        const Status status = carryOut(words, atPrompt ? "" : fmt::format("line {}: ", number));
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
