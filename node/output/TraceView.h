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
    /// Lets those channels through up to that level, and no others. At first, all.
    /// @param channels  a name with * for any letters and ? for any one
    void filter(const std::string& channels, std::int32_t level);

    bool lets(const trace::Message& message) const;

    /// Writes the messages from now on to a file too, as JSON lines.
    /// @throws InputError when it cannot be written; the file before, if any, goes on
    void open(const std::string& file);

    /// @throws InputError when there is no file
    void close();

    void write(const TimedMessage& message);

private:
    std::string m_channels = "*";
    std::int32_t m_level = 255;
    std::ofstream m_file;
};

} // namespace node::output
