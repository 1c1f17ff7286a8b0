#pragma once

#include <string>

namespace node::reference
{

/// What bash reads to complete the program's command line.
std::string bashCompletion();

} // namespace node::reference
