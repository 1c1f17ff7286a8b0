#include "node/reference/ManPage.h"

#include <regex>

#include <fmt/format.h>

#include "node/commands/Command.h"
#include "node/reference/Escape.h"
#include "node/reference/Fill.h"
#include "node/reference/Help.h"
#include "node/reference/HowTo.h"
#include "node/reference/ProgramOptions.h"

namespace node::reference
{

using commands::Argument;
using commands::Command;
using commands::CommandGroup;

namespace
{

constexpr const char* Description = R"(Starts a simulated node with a radio link behind it, and carries out debug
commands on it.
With a command on the command line it carries out that one.
Without, it carries out the lines that standard input holds, up to the first
that fails; at a terminal it prompts for them.

From a script and for a command on the command line, time stands still but for
the commands that let it go on.
At a prompt it goes on with the clock on the wall.

At the prompt, the tabulator key completes the word that is typed, and a
question mark tells what may come next.

Reports go to standard output, trace messages and errors to standard error.
)";

constexpr const char* Scenarios = R"(A scenario says how the node begins: the hop, the weather, the channels, the
faults.
"kel-node listScenarios" lists the ready ones.
A name with a slash in it or with ".toml" at its end is a file; "kel-node help
scenario" prints every key of one.
)";

/// What stands under a tag.
struct Entry
{
    std::string tag; ///< with its fonts
    std::string text;
};

std::string bold(const std::string& text)
{
    return "\\fB" + roff(text) + "\\fR";
}

std::string italic(const std::string& text)
{
    return "\\fI" + roff(text) + "\\fR";
}

std::string entry(const Entry& entry)
{
    return ".TP\n" + entry.tag + "\n" + roff(entry.text) + "\n";
}

std::string entries(const std::vector<Entry>& all)
{
    std::string text;
    for (const Entry& each : all)
    {
        text += entry(each);
    }
    return text;
}

std::string asItStands(const std::string& lines)
{
    return ".nf\n" + roff(lines) + ".fi\n";
}

std::string section(const std::string& heading, const std::string& content)
{
    return ".SH " + heading + "\n" + content;
}

/// The text, whose paragraphs have an empty line between them.
std::string paragraphs(const std::string& text)
{
    return std::regex_replace(roff(text), std::regex("\n\n"), "\n.PP\n");
}

std::string optionEntries()
{
    std::string text;
    for (const ProgramOption& option : programOptions())
    {
        const std::string letter = option.letter == 0 ? "" : bold(std::string("-") + option.letter) + ", ";
        const std::string value = option.value.empty() ? "" : " " + italic(option.value);
        const std::string name = bold("--" + option.name);
        text += entry({fmt::format("{}{}{}", letter, name, value), option.meaning + "."});
    }
    return text;
}

std::string commandEntry(const Command& command)
{
    std::string text =
        entry({bold(command.name) + roff(usage(command).substr(command.name.size())), command.summary + "."});
    std::string inner;
    for (const Argument& argument : command.arguments)
    {
        inner += entry({italic(argument.name), argument.form + ": " + argument.meaning});
    }
    inner += command.details.empty() ? "" : ".PP\n" + asItStands(command.details);
    return text + (inner.empty() ? "" : ".RS\n" + inner + ".RE\n");
}

std::string commandEntries()
{
    std::string text;
    for (const CommandGroup& group : commands::commandGroups())
    {
        text += ".SS " + roff(group.heading) + "\n";
        for (const Command& command : group.commands)
        {
            text += commandEntry(command);
        }
    }
    return text;
}

std::string exampleParts()
{
    std::string text;
    for (const ShellExample& example : shellExamples())
    {
        text +=
            (text.empty() ? "" : ".PP\n") + roff(example.purpose) + ":\n" + asItStands("    $ " + example.line + "\n");
    }
    return text;
}

std::string synopsis()
{
    return bold("kel-node") + " [" + italic("OPTION") + "...] [" + italic("COMMAND") + " [" + italic("ARGUMENT") +
           "...]]\n";
}

std::string exitStatusEntries()
{
    std::string text;
    for (const ExitStatus& status : exitStatuses())
    {
        text += entry({bold(std::to_string(status.number)), status.meaning + "."});
    }
    return text;
}

const std::vector<Entry>& environment()
{
    static const std::vector<Entry> variables = {
        {bold("KEL_NODE_SCENARIOS"), "The folder of the ready scenarios, in place of the one that comes along."},
        {bold("NO_COLOR"), "Where it is set and not empty, nothing is printed in colours."},
        {bold("TERM"), "The terminal. Where it is \"dumb\" or not set, nothing is printed in colours or drawn anew."},
        {bold("XDG_STATE_HOME"), "The folder below which the history is kept; ~/.local/state without it."},
    };
    return variables;
}

const std::vector<Entry>& files()
{
    static const std::vector<Entry> kept = {
        {italic("~/.local/state/kel-node/history"), "The lines that were typed at the prompt."},
        {italic("~/.editrc"), "The keys of the prompt, as editrc(5) tells."},
    };
    return kept;
}

} // namespace

const std::vector<ShellExample>& shellExamples()
{
    static const std::vector<ShellExample> all = {
        {"The report of a carrier termination", "kel-node getCtStatus 1"},
        {"The same after three minutes of a rain front",
         R"(printf 'advance 3min\ngetCtStatus 1\n' | kel-node -s rain-front)"},
        {"A table of an hour, a line for each minute", "kel-node -s rain-front sample 1h 1min -"},
        {"The status of the canceller as a JSON document", "kel-node --json getXpicStatus 1"},
    };
    return all;
}

std::string manPage(const std::string& version, const std::string& date)
{
    return fmt::format(".TH KEL\\-NODE 1 \"{}\" \"kel-node {}\" \"User Commands\"\n.nh\n.ad l\n", date, version) +
           section("NAME", roff("kel-node - simulated node of a radio link that runs debug commands\n")) +
           section("SYNOPSIS", synopsis()) + section("DESCRIPTION", paragraphs(Description)) +
           section("OPTIONS", optionEntries()) + section("COMMANDS", roff(fillText(HowToType, "")) + commandEntries()) +
           section("SCENARIOS", paragraphs(Scenarios)) + section("EXIT STATUS", exitStatusEntries()) +
           section("ENVIRONMENT", entries(environment())) + section("FILES", entries(files())) +
           section("EXAMPLES", exampleParts());
}

} // namespace node::reference
