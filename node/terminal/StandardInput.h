#pragma once

#include <string>

namespace node::terminal
{

/// Reads what standard input has, and adds it to the bytes. Does not wait where it has nothing.
/// @return false at its end
bool readInput(std::string& bytes);

} // namespace node::terminal
