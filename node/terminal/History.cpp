#include "node/terminal/History.h"

#include "node/terminal/Letters.h"

namespace node::terminal
{

namespace
{

constexpr int Size = 1000;

bool isBlank(const std::string& line)
{
    return line.find_first_not_of(" \t") == std::string::npos;
}

} // namespace

History::History(const std::string& file) : m_file(file, Size), m_lines(history_winit(), history_wend)
{
    HistEventW event{};
    history_w(m_lines.get(), &event, H_SETSIZE, Size);
    history_w(m_lines.get(), &event, H_SETUNIQUE, 1);
    for (const std::string& line : m_file.read())
    {
        enter(line);
    }
}

void History::connect(EditLine* editor) const
{
    el_wset(editor, EL_HIST, &history_w, m_lines.get());
}

void History::add(const std::string& line)
{
    if (isBlank(line) || line == m_newest)
    {
        return;
    }
    enter(line);
    m_file.append(line);
}

void History::enter(const std::string& line)
{
    HistEventW event{};
    history_w(m_lines.get(), &event, H_ENTER, toLetters(line).c_str());
    m_newest = line;
}

} // namespace node::terminal
