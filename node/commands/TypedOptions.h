#pragma once

#include <string>
#include <vector>

#include "node/commands/Command.h"

namespace node::commands
{

/// An option that is typed, with its value.
struct TypedOption
{
    const Argument* argument;
    std::string value;
};

/// The words of a command, options apart.
struct TypedOptions
{
    std::vector<TypedOption> options;     ///< in the order in which they are typed
    const Argument* unfinished = nullptr; ///< the one that the words end with, its value missing
    std::vector<std::string> others;      ///< the words behind the options
    bool mayGoOn = true;                  ///< whether another option may follow the words
};

/// Options stand before all other words, as "-n 5" or "-n5"; "--" ends them. A command without options has none of
/// this: its words are as they stand.
TypedOptions readTypedOptions(const Command& command, const std::vector<std::string>& words);

} // namespace node::commands
