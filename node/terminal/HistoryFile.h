#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace node::terminal
{

/// A file of lines that were typed, oldest first. Several prompts may use the same one at once: each line is added as
/// it is typed, so that none takes away what another one wrote.
///
/// Its owner alone may read it: a mode that lets others is narrowed. What is no plain file, or cannot be read or
/// written, is left alone.
class HistoryFile
{
public:
    /// @param path  "" for a history that is kept nowhere
    /// @param size  how many lines are kept
    HistoryFile(std::filesystem::path path, std::size_t size);

    /// The newest lines. Drops the others from the file.
    std::vector<std::string> read() const;

    /// Makes the file and its folder where they are missing.
    void append(const std::string& line) const;

private:
    std::filesystem::path m_path;
    std::size_t m_size;
};

} // namespace node::terminal
