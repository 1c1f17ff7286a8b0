#pragma once

#include <string>
#include <vector>

#include "node/commands/Command.h"

namespace node::reference
{

/// What a command expects where its line ends.
struct Place
{
    std::vector<const commands::Argument*> options; ///< that may begin there
    const commands::Argument* argument = nullptr;   ///< that stands there; none behind the last one
    std::vector<std::string> words;                 ///< of that argument; the last one is still typed
    bool mayEnd = false;                            ///< whether the command is whole without that word
};

/// @param words  that follow the command's name; the last one, which may be "", is still typed
Place placeIn(const commands::Command& command, const std::vector<std::string>& words);

/// The place in the command that the words begin with, or in the one that it carries out.
/// @param words  two at least
/// @throws InputError when there is no such command
Place placeAfter(const std::vector<std::string>& words);

/// The words to choose from for the place's argument.
std::vector<std::string> choicesAt(const Place& place);

} // namespace node::reference
