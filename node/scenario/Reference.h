#pragma once

#include <string>

namespace node::scenario
{

/// Every table and key of a scenario file with what it takes, its default and its meaning, in Markdown.
std::string reference();

/// The keys that typedFault() reads, a line each.
std::string faultKeyList();

} // namespace node::scenario
