#pragma once

#include <string>
#include <vector>

#include "node/startup/Configuration.h"

/// Scenarios: nodes to start, written down in TOML files.
namespace node::scenario
{

struct Scenario
{
    std::string description;
    startup::Configuration configuration;
    std::string file; ///< that it was read from; "" for none
    std::string text; ///< of the file
};

/// Reads a scenario from the text of a file.
/// @param fileName  to begin errors with
/// @throws InputError "FILE:LINE:COLUMN: KEY: found ..., expected ..." for a thing that does not fit: in a table, the
///         first one
Scenario parse(const std::string& text, const std::string& fileName);

/// What the name of a scenario file ends in.
constexpr const char* FileExtension = ".toml";

/// Loads a scenario by the name of a ready one, or from a file: a word with '/' in it, or ending in ".toml".
/// @throws InputError as parse(), and when there is no such scenario or the file cannot be read
Scenario load(const std::string& nameOrFile);

/// The names of the ready scenarios, sorted. They are the files of the folder that the environment variable
/// KEL_NODE_SCENARIOS names, or those that were installed with the program, or the project's own.
/// @throws InputError when the folder cannot be read
std::vector<std::string> readyScenarios();

} // namespace node::scenario
