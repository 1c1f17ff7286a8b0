#include <cerrno>
#include <chrono>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <exception>
#include <fstream>
#include <iostream>
#include <memory>
#include <optional>
#include <system_error>

#include <unistd.h>

#include "node/cli/Options.h"
#include "node/cli/Prompt.h"
#include "node/cli/Script.h"
#include "node/cli/Session.h"
#include "node/commands/Binding.h"
#include "node/commands/Desk.h"
#include "node/commands/TraceChannels.h"
#include "node/output/JsonOutput.h"
#include "node/reference/Completion.h"
#include "node/reference/Help.h"
#include "node/terminal/LineEditor.h"
#include "node/terminal/PlainLines.h"
#include "node/terminal/Screen.h"
#include "node/terminal/StateFolder.h"
#include "node/wording/InputError.h"

namespace
{

using node::cli::Options;
using node::cli::Session;
using node::cli::Status;
using node::output::Output;
using node::terminal::LineEditor;
using node::wording::InputError;

node::radio::Ticks wallClock()
{
    return std::chrono::floor<node::radio::Ticks>(std::chrono::steady_clock::now().time_since_epoch());
}

node::terminal::Size screenSize()
{
    return node::terminal::sizeOf(STDOUT_FILENO);
}

node::output::Look look()
{
    return {node::terminal::hasColours(STDOUT_FILENO),
            node::terminal::hasColours(STDERR_FILENO),
            node::terminal::canRedraw(STDOUT_FILENO),
            screenSize,
            isatty(STDOUT_FILENO) != 0,
            isatty(STDERR_FILENO) != 0};
}

/// How a person types lines; none without a terminal to type them on.
struct Typist
{
    node::cli::ReadLine read;
    std::unique_ptr<LineEditor> editor; ///< null where what is printed does not go to a terminal
};

std::optional<Typist> makeTypist(const Options& options)
{
    if (!options.words.empty() || options.file || isatty(STDIN_FILENO) == 0)
    {
        return std::nullopt;
    }
    if (isatty(STDOUT_FILENO) == 0)
    {
        const auto lines = std::make_shared<node::terminal::PlainLines>(stderr);
        return Typist{[lines](const std::string& prompt) { return lines->read(prompt); }, nullptr};
    }
    std::setlocale(LC_CTYPE, ""); // for the letters that are typed; numbers stay as they are
    const std::string folder = node::terminal::stateFolder("kel-node");
    Typist typist;
    typist.editor =
        std::make_unique<LineEditor>(node::terminal::Helper{node::reference::complete, node::reference::explain},
                                     folder.empty() ? "" : folder + "/history");
    typist.read = [editor = typist.editor.get()](const std::string& prompt) { return editor->read(prompt); };
    return typist;
}

std::unique_ptr<Output> makeOutput(bool json, LineEditor* editor)
{
    if (json)
    {
        return std::make_unique<node::output::JsonOutput>(std::cout);
    }
    if (editor != nullptr && isatty(STDERR_FILENO) != 0)
    {
        return std::make_unique<node::cli::PromptOutput>(std::cout, std::cerr, look(), *editor);
    }
    return std::make_unique<node::output::TextOutput>(std::cout, std::cerr, look());
}

Status runFile(Session& session, const Options& options)
{
    const auto atFailure = options.keepGoing ? node::cli::AtFailure::GoOn : node::cli::AtFailure::Stop;
    const std::string name = options.file.value_or("-");
    if (name == "-")
    {
        return node::cli::runScript(session, std::cin, "<stdin>", atFailure);
    }
    std::ifstream file(name, std::ios::binary);
    file.peek(); // tells a folder from a file
    if (!file.is_open() || file.bad())
    {
        throw InputError(name, node::wording::foundInsteadOf("file", {errno, std::generic_category()}),
                         "a file of commands");
    }
    return node::cli::runScript(session, file, name, atFailure);
}

/// Carries out a command, what is typed, or a script.
Status runCommands(Session& session, const Options& options, const std::optional<Typist>& typist)
{
    if (!options.words.empty())
    {
        return session.carryOut(options.words);
    }
    if (typist)
    {
        const bool colours = typist->editor != nullptr && node::terminal::hasColours(STDOUT_FILENO);
        // Beside the prompt: what goes elsewhere is answers alone.
        std::ostream& screen = typist->editor != nullptr ? std::cout : std::cerr;
        node::cli::runPrompt(
            session, typist->read, [&screen](const std::string& text) { screen << text << std::flush; }, colours);
        return Status::Done;
    }
    Status status = Status::Done;
    const Status reading = session.attempt([&] { status = runFile(session, options); }).status;
    return reading == Status::Done ? status : reading;
}

/// Answers the options that need no node. @return whether there was one
bool tellAboutItself(const Options& options)
{
    if (options.help)
    {
        std::cout << node::reference::overview();
    }
    else if (options.version)
    {
        std::cout << "kel-node " KEL_VERSION "\n";
    }
    else if (options.complete)
    {
        for (const std::string& word : node::reference::complete(*options.complete).words)
        {
            std::cout << word << '\n';
        }
    }
    else
    {
        return false;
    }
    return true;
}

/// @throws InputError when the option names no channel of the node
void expectTraceChannels(const Options::Trace& trace)
{
    try
    {
        node::commands::traceChannelsLike(*node::commands::ChannelPattern::parse(trace.channels));
    }
    catch (const node::commands::Misfit& misfit)
    {
        throw InputError("option --trace", misfit.found, misfit.expected);
    }
}

void prepare(Session& session, const Options& options)
{
    if (options.file && !options.words.empty())
    {
        throw InputError("option --file", "a command beside it", "one of the two");
    }
    if (options.record && !options.words.empty() && !node::commands::isRecorded(options.words.front()))
    {
        throw InputError("option --record", node::wording::quoted(options.words.front()),
                         "a command that is recorded, or lines of commands");
    }
    const auto scenario = options.scenario ? node::scenario::load(*options.scenario) : node::scenario::Scenario();
    if (options.trace)
    {
        session.filterTrace(options.trace->channels, options.trace->level);
    }
    if (options.traceFile)
    {
        session.startTraceFile(*options.traceFile);
    }
    session.start(scenario);
    if (options.trace)
    {
        expectTraceChannels(*options.trace); // which the node's start has made
    }
    if (options.record)
    {
        session.startRecording(*options.record);
    }
}

Status runProgram(int argc, char** argv)
{
    Options options;
    std::exception_ptr mistake;
    try
    {
        node::cli::readOptions(argc, argv, options);
    }
    catch (const InputError&)
    {
        mistake = std::current_exception(); // told in the form that the options before it ask for
    }
    if (mistake == nullptr && tellAboutItself(options))
    {
        return Status::Done;
    }

    const std::optional<Typist> typist = mistake == nullptr ? makeTypist(options) : std::nullopt;
    const std::unique_ptr<Output> output = makeOutput(options.json, typist ? typist->editor.get() : nullptr);
    node::commands::NodeDesk desk;
    node::cli::Surroundings surroundings;
    surroundings.size = screenSize;
    surroundings.progress = node::terminal::canRedraw(STDERR_FILENO)   ? &std::cerr
                            : node::terminal::canRedraw(STDOUT_FILENO) ? &std::cout
                                                                       : nullptr;
    if (options.clockOnTheWall.value_or(typist.has_value()))
    {
        surroundings.clock = wallClock;
    }
    Session session(desk, *output, surroundings);
    const auto begin = [&]
    {
        if (mistake != nullptr)
        {
            std::rethrow_exception(mistake);
        }
        prepare(session, options);
    };
    const node::output::Answer begun = session.attempt(begin);
    if (begun.status != Status::Done)
    {
        return begun.status;
    }
    session.tellNext(begun.trace);
    return runCommands(session, options, typist);
}

} // namespace

int main(int argc, char** argv)
{
    // Whoever reads a pipe may close it: then the program ends as others do, whatever it was started from.
    std::signal(SIGPIPE, SIG_DFL);
    std::ios::sync_with_stdio(false);
    try
    {
        const Status status = runProgram(argc, argv);
        std::cout.flush();
        if (!std::cout)
        {
            std::cerr << "kel-node: standard output: found it closed or full, expected to write to it" << std::endl;
            return static_cast<int>(Status::CommandFailed);
        }
        return static_cast<int>(status);
    }
    catch (const std::exception& error)
    {
        std::cerr << "kel-node: " << error.what() << std::endl;
        return static_cast<int>(Status::CommandFailed);
    }
}
