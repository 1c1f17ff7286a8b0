#pragma once

#include <functional>
#include <string>
#include <vector>

#include "node/commands/Console.h"
#include "node/commands/Desk.h"

namespace node::commands
{

/// How much of a line an argument takes.
enum class Extent
{
    Word,
    Words,   ///< all that are left
    Command, ///< all that are left, which are a command
};

/// An argument as the user types it.
struct Argument
{
    std::string name;
    std::string form;      ///< what is accepted: "a number from 0 to 255"
    std::string meaning;   ///< what it does
    bool optional = false; ///< may be left out, with all that follow
    std::string more{};    ///< what may come after it, without a name of its own: "[KEY=VALUE...]"
    std::string option{};  ///< "-n" where it is typed behind that word, before all others and in any order; or ""
    Extent extent = Extent::Word;
    WordKind kind = WordKind::Other;

    /// Words that fit, to choose from; none where they cannot be listed. Not all of them are
    /// whole (terminal/WholeWord.h).
    /// @param words  of this argument up to the one to complete, which is the last
    std::function<std::vector<std::string>(const std::vector<std::string>& words)> choices{};
};

/// A command: its words and what they call.
struct Command
{
    std::string name;
    std::string summary;
    std::vector<Argument> arguments;
    std::string details; ///< what else its help says

    /// Calls the command with the words that follow its name.
    /// @throws InputError, before anything is called, when they do not fit
    std::function<Outcome(Desk&, Console&, const std::vector<std::string>& words)> call;

    /// Whether the same node answers alike each time, whatever is around it: only then it can be watched and recorded.
    bool repeatable = true;

    /// Whether a file decides if it is understood.
    bool needsFile = false;
};

/// Commands that belong together, under the heading that the help gives them.
struct CommandGroup
{
    std::string heading;
    std::vector<Command> commands;
};

/// Every command. The first group are those of the module, in the order of its callback interface; the last one those
/// of the command line itself.
const std::vector<CommandGroup>& commandGroups();

/// @param name  the name, or the beginning of a single one
/// @throws InputError when there is none of that name, or several begin so
const Command& commandNamed(const std::string& name);

/// Whether a recording holds the command, or the one that it carries out.
/// @throws InputError as commandNamed() does
bool isRecorded(const std::string& name);

/// The names of all commands.
std::vector<std::string> commandNames();

} // namespace node::commands
