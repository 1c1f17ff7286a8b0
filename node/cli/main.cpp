#include <cstdio>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include <getopt.h>
#include <unistd.h>

#include "node/cli/Help.h"
#include "node/cli/Session.h"
#include "node/cli/UsageError.h"
#include "node/startup/Node.h"

namespace
{

using node::cli::quoted;
using node::cli::Session;
using node::cli::Status;
using node::cli::UsageError;

Status runCommands(const std::vector<std::string>& words)
{
    node::startup::Node node;
    Session session(node.commands(), std::cout, std::cerr);
    if (!words.empty())
    {
        return session.carryOut(words);
    }
    const bool atTerminal = isatty(STDIN_FILENO) != 0;
    const Status status =
        session.runLines(std::cin, atTerminal ? Session::Lines::AtPrompt : Session::Lines::FromScript);
    if (std::ferror(stdin) != 0)
    {
        throw UsageError("standard input", "it unreadable", "lines");
    }
    return status;
}

Status runProgram(int argc, char** argv)
{
    const option options[] = {
        {"help", no_argument, nullptr, 'h'},
        {"version", no_argument, nullptr, 'V'},
        {},
    };
    opterr = 0;
    const char* const word = optind < argc ? argv[optind] : "";
    // "+": what follows the command is the command's, negative numbers among it.
    switch (getopt_long(argc, argv, "+h", options, nullptr))
    {
    case -1:
        return runCommands({argv + optind, argv + argc});
    case 'h':
        std::cout << node::cli::overview();
        return Status::Done;
    case 'V':
        std::cout << "kel-node " KEL_VERSION "\n";
        return Status::Done;
    default:
        throw UsageError("option", quoted(word), "--help or --version");
    }
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
    catch (const UsageError& error)
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
