#include <chrono>
#include <cstdio>
#include <exception>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include <getopt.h>
#include <unistd.h>

#include "node/cli/Desk.h"
#include "node/cli/Help.h"
#include "node/cli/Session.h"
#include "node/scenario/Scenario.h"
#include "node/wording/InputError.h"

namespace
{

using node::cli::Session;
using node::cli::Status;
using node::wording::InputError;
using node::wording::quoted;

struct Options
{
    bool help = false;
    bool version = false;
    node::startup::Configuration node;
    std::optional<bool> clockOnTheWall;
    std::vector<std::string> words; ///< of the command
};

bool parseClock(const std::string& word)
{
    if (word != "wall" && word != "told")
    {
        throw InputError("option --clock", quoted(word), "told or wall");
    }
    return word == "wall";
}

Options parseOptions(int argc, char** argv)
{
    const option options[] = {
        {"clock", required_argument, nullptr, 'c'},
        {"help", no_argument, nullptr, 'h'},
        {"scenario", required_argument, nullptr, 's'},
        {"version", no_argument, nullptr, 'V'},
        {},
    };
    opterr = 0;
    Options parsed;
    for (;;)
    {
        const std::string word = optind < argc ? argv[optind] : "";
        // "+": what follows the command is the command's, negative numbers among it. ":": a missing value has its own
        // answer.
        switch (getopt_long(argc, argv, "+:hs:", options, nullptr))
        {
        case -1:
            parsed.words.assign(argv + optind, argv + argc);
            return parsed;
        case 'c':
            parsed.clockOnTheWall = parseClock(optarg);
            break;
        case 'h':
            parsed.help = true;
            break;
        case 's':
            parsed.node = node::scenario::load(optarg).configuration;
            break;
        case 'V':
            parsed.version = true;
            break;
        case ':':
            throw InputError("option " + word, "nothing", "a value");
        default:
            throw InputError("option", quoted(word), "one that \"kel-node --help\" lists");
        }
    }
}

node::radio::Ticks wallClock()
{
    return std::chrono::floor<node::radio::Ticks>(std::chrono::steady_clock::now().time_since_epoch());
}

Status runCommands(const Options& options)
{
    node::cli::NodeDesk desk;
    const bool needsNode = options.words.empty() || options.words.front() != "help";
    if (needsNode)
    {
        desk.start(options.node);
    }
    const bool atPrompt = options.words.empty() && isatty(STDIN_FILENO) != 0;
    const bool byWall = options.clockOnTheWall.value_or(atPrompt);
    Session session(desk, std::cout, std::cerr, byWall ? wallClock : Session::Clock());
    if (!options.words.empty())
    {
        return session.carryOut(options.words);
    }
    const Status status = session.runLines(std::cin, atPrompt ? Session::Lines::AtPrompt : Session::Lines::FromScript);
    if (std::ferror(stdin) != 0)
    {
        throw InputError("standard input", "it unreadable", "lines");
    }
    return status;
}

Status runProgram(int argc, char** argv)
{
    const Options options = parseOptions(argc, argv);
    if (options.help)
    {
        std::cout << node::cli::overview();
        return Status::Done;
    }
    if (options.version)
    {
        std::cout << "kel-node " KEL_VERSION "\n";
        return Status::Done;
    }
    return runCommands(options);
}

} // namespace

int main(int argc, char** argv)
{
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
    catch (const InputError& error)
    {
        std::cerr << "kel-node: " << error.what() << std::endl;
        return static_cast<int>(Status::NotUnderstood);
    }
    catch (const node::startup::StartUpError& error)
    {
        std::cerr << "kel-node: " << error.what() << std::endl;
        return static_cast<int>(Status::NotStarted);
    }
    catch (const std::exception& error)
    {
        std::cerr << "kel-node: " << error.what() << std::endl;
        return static_cast<int>(Status::CommandFailed);
    }
}
