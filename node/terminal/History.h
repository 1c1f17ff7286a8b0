#pragma once

#include <memory>
#include <string>

#include <histedit.h>

#include "node/terminal/HistoryFile.h"

namespace node::terminal
{

/// The lines that were typed, in this run and in those before, for libedit.
class History
{
public:
    /// @param file  where they are kept; "" for nowhere
    explicit History(const std::string& file);

    /// Lets an editor look lines up. The editor does not outlive the history.
    void connect(EditLine* editor) const;

    /// Keeps a line, at once. Blank ones are not kept, nor is one that repeats the line before.
    void add(const std::string& line);

private:
    void enter(const std::string& line);

    HistoryFile m_file;
    std::unique_ptr<HistoryW, decltype(&history_wend)> m_lines;
    std::string m_newest;
};

} // namespace node::terminal
