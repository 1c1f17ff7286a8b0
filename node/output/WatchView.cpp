#include "node/output/WatchView.h"

#include <algorithm>
#include <iterator>

#include <fmt/color.h>
#include <fmt/format.h>
#include <fmt/ranges.h>

#include "node/commands/Line.h"
#include "node/commands/LinkText.h"
#include "node/terminal/Layout.h"
#include "node/terminal/Letters.h"
#include "node/terminal/Screen.h"

namespace node::output
{

namespace
{

// Of ECMA-48, as every terminal of today understands them.
constexpr const char* Home = "\033[H";
constexpr const char* ClearBelow = "\033[J";

// Marks before a line.
constexpr const char* Changed = "* ";
constexpr const char* Same = "  ";
constexpr int MarkWidth = 2;

/// The line with those letters reversed that differ from the line before.
std::string reversed(const std::string& line, const std::string& before)
{
    const std::wstring letters = terminal::toLetters(line);
    const std::wstring lettersBefore = terminal::toLetters(before);
    const auto differs = [&](std::size_t at) { return at >= lettersBefore.size() || letters[at] != lettersBefore[at]; };
    std::string text;
    for (std::size_t i = 0; i < letters.size();)
    {
        std::size_t end = i + 1;
        while (end < letters.size() && differs(end) == differs(i))
        {
            ++end;
        }
        const std::string part = terminal::toBytes(letters.substr(i, end - i));
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

WatchView::~WatchView()
{
    for (const TimedMessage& message : m_toDraw)
    {
        m_output.trace(message);
    }
}

void WatchView::trace(const TimedMessage& message)
{
    if (isFrameAll())
    {
        m_toDraw.push_back(message);
    }
    else
    {
        m_output.trace(message);
    }
}

void WatchView::show(const Answer& answer)
{
    const std::vector<std::string> lines = terminal::linesOf(answer.outcome ? answer.outcome->output : "");
    m_before = m_look.redraws ? draw(answer, lines) : print(answer, lines);
    m_first = false;
}

std::vector<std::string> WatchView::print(const Answer& answer, const std::vector<std::string>& lines)
{
    std::string round = fmt::format("{}{}\n", m_first ? "" : "\n", title(answer));
    for (const std::string& line : marked(lines, [](const std::string& line) { return line; }))
    {
        round += line + "\n";
    }
    m_output.print(round);
    showRest(answer);
    return lines;
}

std::vector<std::string> WatchView::draw(const Answer& answer, std::vector<std::string> lines)
{
    m_toDraw.clear(); // the answer has them
    if (isFrameAll())
    {
        std::string behind;
        for (const TimedMessage& message : answer.trace)
        {
            behind += traceText(message);
        }
        const std::vector<std::string> linesBehind = terminal::linesOf(behind + errorText(answer));
        lines.insert(lines.end(), linesBehind.begin(), linesBehind.end());
    }
    const terminal::Size size = m_look.size ? m_look.size() : terminal::Size();
    const int columns = std::max(size.columns, 1);
    const auto rows = static_cast<std::size_t>(std::max(size.rows, 3));
    const auto shown = [columns](const std::string& line) { return terminal::cutToColumns(line, columns - MarkWidth); };
    // What is above stays to be scrolled to. Each line is cleared before it is drawn: behind its last column, a
    // terminal would clear that column.
    std::string frame = fmt::format("{}{}{}{}\n", m_first ? std::string(rows - 1, '\n') : "", Home,
                                    terminal::ClearToLineEnd, terminal::cutToColumns(title(answer), columns));
    const auto room = rows - 2; // without the title's row and the cursor's
    for (const std::string& line : fitted(marked(lines, shown), room, shown))
    {
        frame += fmt::format("{}{}\n", terminal::ClearToLineEnd, line);
    }
    m_output.draw(frame + ClearBelow);
    if (!isFrameAll())
    {
        showRest(answer);
    }
    return lines;
}

/// What is no report: it goes where it always goes.
void WatchView::showRest(const Answer& answer)
{
    Answer rest = answer;
    rest.outcome.reset();
    m_output.show(rest);
}

bool WatchView::isFrameAll() const
{
    return m_look.redraws && m_look.oneScreen();
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

std::vector<std::string> WatchView::marked(const std::vector<std::string>& lines, const ToShow& shown) const
{
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < lines.size(); ++i)
    {
        const std::string before = i < m_before.size() ? m_before[i] : "";
        const bool changed = !m_first && (i >= m_before.size() || lines[i] != before);
        const std::string text = shown(lines[i]);
        texts.push_back((changed ? Changed : Same) +
                        (changed && m_look.colours ? reversed(text, shown(before)) : text));
    }
    return texts;
}

/// The marked lines for which there is room, and what is said of the others.
std::vector<std::string> WatchView::fitted(std::vector<std::string> lines, std::size_t room, const ToShow& shown)
{
    if (lines.size() <= room)
    {
        return lines;
    }
    const auto hidden = lines.begin() + static_cast<std::ptrdiff_t>(room - 1);
    const bool changed =
        std::any_of(hidden, lines.end(), [](const std::string& line) { return line.starts_with(Changed); });
    const auto count = lines.end() - hidden;
    lines.erase(hidden, lines.end());
    lines.push_back((changed ? Changed : Same) + shown(fmt::format("... {} more lines", count)));
    return lines;
}

} // namespace node::output
