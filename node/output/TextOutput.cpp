#include "node/output/TextOutput.h"

#include <ostream>
#include <utility>

#include <fmt/color.h>
#include <fmt/format.h>

#include "node/commands/LinkText.h"
#include "node/output/WatchView.h"

namespace node::output
{

TextOutput::TextOutput(std::ostream& output, std::ostream& errors, Look look)
    : m_output(output), m_errors(errors), m_look(std::move(look))
{
}

void TextOutput::trace(const TimedMessage& message)
{
    const std::string text = traceText(message);
    tell(m_look.errorColours ? fmt::format(fmt::emphasis::faint, "{}", text) : text);
}

void TextOutput::show(const Answer& answer)
{
    if (answer.outcome)
    {
        print(answer.outcome->output);
    }
    if (m_look.oneScreen())
    {
        closeLine();
    }
    const std::string error = errorText(answer);
    if (!error.empty())
    {
        tell(m_look.errorColours ? fmt::format(fmt::fg(fmt::terminal_color::red), "{}", error) : error);
    }
}

void TextOutput::closeLine()
{
    print(m_lineIsOpen ? "\n" : "");
}

void TextOutput::interrupted()
{
    m_lineIsOpen = m_lineIsOpen || m_look.screen;
    if (m_look.errorScreen && !m_look.screen)
    {
        tell("\n");
    }
}

bool TextOutput::good() const
{
    return m_output.good();
}

std::unique_ptr<Output> TextOutput::beginWatch(const commands::Watch& watch)
{
    closeLine();
    return std::make_unique<WatchView>(watch, *this, m_look);
}

void TextOutput::print(const std::string& text)
{
    if (!text.empty())
    {
        m_output << text << std::flush;
        m_lineIsOpen = !text.ends_with('\n');
    }
}

void TextOutput::draw(const std::string& frame)
{
    m_output << frame << std::flush;
    m_lineIsOpen = false;
}

void TextOutput::tell(const std::string& text)
{
    m_errors << text << std::flush;
}

std::string traceText(const TimedMessage& message)
{
    return commands::clockText(message.time) + " " + trace::toLine(message.message);
}

std::string errorText(const Answer& answer)
{
    const std::string place = answer.place.empty() ? "" : answer.place + ": ";
    return answer.error.empty() ? "" : fmt::format("kel-node: {}{}\n", place, answer.error);
}

} // namespace node::output
