#pragma once

#include <fstream>
#include <optional>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "node/cli/Recording.h"

namespace node::cli
{

/// A line of a recording.
struct Entry
{
    int line = 0;
    std::optional<Beginning> beginning; ///< a node begins; else a command
    radio::Ticks time{0};               ///< of the node, when the command began
    std::vector<std::string> words;     ///< of the command
    nlohmann::ordered_json answer;      ///< null for a command from before the recording
};

/// Reads a recording.
class RecordingReader
{
public:
    /// @throws InputError when the file cannot be read
    explicit RecordingReader(const std::string& file);

    /// The next line; none at the end.
    /// @throws InputError "FILE:LINE: ..." for one that does not fit
    std::optional<Entry> next();

    /// How much has been read, from 0 to 1.
    double share() const;

private:
    std::string m_name;
    double m_size = 0; ///< in bytes
    double m_read = 0;
    std::ifstream m_file;
    int m_line = 0;
};

/// The first thing in which an answer differs from the recorded one; "" where none does. Places and numbers of source
/// lines may differ.
std::string firstDifference(const output::Answer& answer, const nlohmann::ordered_json& recorded);

} // namespace node::cli
