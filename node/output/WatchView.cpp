#include "node/output/WatchView.h"

#include <algorithm>
#include <iterator>

#include <fmt/color.h>
#include <fmt/format.h>
#include <fmt/ranges.h>

#include "node/commands/Line.h"
#include "node/commands/LinkText.h"

namespace node::output
{

namespace
{

// Of ECMA-48, as every terminal of today understands them.
constexpr const char* Home = "\033[H";
constexpr const char* ClearToLineEnd = "\033[K";
constexpr const char* ClearBelow = "\033[J";

constexpr std::size_t MarkWidth = 2;

std::vector<std::string> linesOf(const std::string& text)
{
    std::vector<std::string> lines;
    for (std::size_t begin = 0; begin < text.size();)
    {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        lines.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return lines;
}

/// The line with those letters reversed that differ from the line before.
std::string reversed(const std::string& line, const std::string& before)
{
    std::string text;
    for (std::size_t i = 0; i < line.size();)
    {
        const auto differs = [&](std::size_t at) { return at >= before.size() || line[at] != before[at]; };
        std::size_t end = i + 1;
        while (end < line.size() && differs(end) == differs(i))
        {
            ++end;
        }
        const std::string part = line.substr(i, end - i);
        text += differs(i) ? fmt::format(fmt::emphasis::reverse, "{}", part) : part;
        i = end;
    }
    return text;
}

} // namespace

WatchView::WatchView(const commands::Watch& watch, TextOutput& output, const Look& look)
    : m_watch(watch), m_output(output), m_look(look)
{
}

void WatchView::trace(const TimedMessage& message)
{
    if (!m_look.redraws)
    {
        m_output.trace(message);
    }
}

void WatchView::show(const Answer& answer)
{
    const std::vector<std::string> lines = linesOf(answer.outcome ? answer.outcome->output : "");
    m_before = m_look.redraws ? draw(answer, lines) : print(answer, lines);
    m_first = false;
}

std::vector<std::string> WatchView::print(const Answer& answer, const std::vector<std::string>& lines)
{
    std::string round = fmt::format("{}{}\n", m_first ? "" : "\n", title(answer));
    for (const std::string& line : marked(lines))
    {
        round += line + "\n";
    }
    m_output.print(round);
    Answer rest = answer;
    rest.outcome.reset();
    m_output.show(rest);
    return lines;
}

std::vector<std::string> WatchView::draw(const Answer& answer, std::vector<std::string> lines)
{
    for (const TimedMessage& message : answer.trace)
    {
        lines.push_back(linesOf(traceText(message)).front());
    }
    const std::vector<std::string> error = linesOf(errorText(answer));
    lines.insert(lines.end(), error.begin(), error.end());

    const terminal::Size size = m_look.size ? m_look.size() : terminal::Size();
    const auto columns = static_cast<std::size_t>(std::max(size.columns, 1));
    const auto rows = static_cast<std::size_t>(std::max(size.rows, 3));
    const std::size_t room = rows - 2; // a line for the title, one for the cursor
    if (lines.size() > room)
    {
        const std::size_t left = lines.size() - room + 1;
        lines.resize(room - 1);
        lines.push_back(fmt::format("... {} more lines", left));
    }
    for (std::string& line : lines)
    {
        line = line.substr(0, columns > MarkWidth ? columns - MarkWidth : 0);
    }
    // Each line is cleared before it is drawn: behind its last column, a terminal would clear that column.
    std::string frame =
        fmt::format("{}{}{}{}\n", Home, m_first ? ClearBelow : "", ClearToLineEnd, title(answer).substr(0, columns));
    for (const std::string& line : marked(lines))
    {
        frame += fmt::format("{}{}\n", ClearToLineEnd, line);
    }
    m_output.draw(frame + ClearBelow);
    return lines;
}

void WatchView::closeLine()
{
    m_output.closeLine();
}

void WatchView::interrupted()
{
    m_output.interrupted();
}

bool WatchView::good() const
{
    return m_output.good();
}

std::unique_ptr<Output> WatchView::beginWatch(const commands::Watch& /*watch*/)
{
    return nullptr;
}

/// "Every 2s: getCtStatus 1 at 0:01:30.0"
std::string WatchView::title(const Answer& answer) const
{
    std::vector<std::string> words;
    std::transform(m_watch.command.begin(), m_watch.command.end(), std::back_inserter(words), commands::asTyped);
    return fmt::format("Every {}s: {} at {}", radio::seconds(m_watch.interval), fmt::join(words, " "),
                       commands::clockText(answer.time));
}

std::vector<std::string> WatchView::marked(const std::vector<std::string>& lines) const
{
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < lines.size(); ++i)
    {
        const std::string before = i < m_before.size() ? m_before[i] : "";
        const bool changed = !m_first && (i >= m_before.size() || lines[i] != before);
        const std::string mark = changed ? "* " : "  ";
        texts.push_back(mark + (changed && m_look.colours ? reversed(lines[i], before) : lines[i]));
    }
    return texts;
}

} // namespace node::output
