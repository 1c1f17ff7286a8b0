#pragma once

#include <string>
#include <vector>

/// Words to choose from while one is typed.
namespace node::reference
{

/// The words that begin with what is typed; where none does, those that do but for the case. Sorted, each once.
std::vector<std::string> fitting(const std::vector<std::string>& words, const std::string& typed);

/// The words as they are typed: in quotation marks where they need them, and where the person began with one. Those of
/// a word that is not whole stay open.
/// @param begun  what is typed
std::vector<std::string> asTypedAfter(const std::string& begun, std::vector<std::string> words);

} // namespace node::reference
