#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "node/commands/Value.h"

namespace node::cli
{

/// What the program was called with.
struct Options
{
    struct Trace
    {
        std::string channels;
        std::int32_t level = commands::TraceLevel::Highest;
    };

    bool help = false;
    bool version = false;
    bool json = false;
    bool keepGoing = false;
    std::optional<std::string> scenario;
    std::optional<std::string> file;
    std::optional<std::string> record;
    std::optional<Trace> trace;
    std::optional<std::string> traceFile;
    std::optional<bool> clockOnTheWall;
    std::optional<std::string> complete; ///< a line to complete
    std::vector<std::string> words;      ///< of the command
};

/// Reads the program's arguments. What stands before a mistake has been read into `options`.
/// @throws InputError
void readOptions(int argc, char** argv, Options& options);

} // namespace node::cli
