#pragma once

#include <cstdint>
#include <fstream>
#include <string>

#include "node/output/Answer.h"

namespace node::output
{

/// Which trace messages are seen, and the file that they go to. Not for use by several threads at once.
class TraceView
{
public:
    /// Lets those channels through up to that level, and no others. At first, all that a user can choose.
    /// @param channels  a name with * for any letters and ? for any one
    void filter(const std::string& channels, std::int32_t level);

    bool lets(const trace::Message& message) const;

    /// Writes the messages from now on to a file too, as JSON lines.
    /// @throws InputError when it cannot be written; the file before, if any, goes on
    void open(const std::string& file);

    /// @throws InputError when there is no file, CommandError when it could not be written to its end
    void close();

    /// Writes the message to the file, where there is one. A file that cannot be written any more is closed.
    void write(const TimedMessage& message);

    /// @throws CommandError, once, when the file could not be written any more
    void expectWritten();

private:
    std::string m_channels = "*";
    std::int32_t m_level = commands::TraceLevel::Highest;
    std::string m_name; ///< of the file
    std::ofstream m_file;
    std::string m_lost; ///< the file that could not be written any more, which nobody has been told; or ""
};

} // namespace node::output
