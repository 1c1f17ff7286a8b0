#include "node/terminal/ShownLine.h"

#include <algorithm>
#include <cstdio>

#include "node/terminal/Layout.h"
#include "node/terminal/Letters.h"

namespace node::terminal
{

ShownLine::ShownLine(EditLine* editor) : m_editor(editor)
{
}

void ShownLine::setPrompt(const std::string& prompt)
{
    m_prompt = toLetters(prompt);
}

wchar_t* ShownLine::prompt()
{
    return m_prompt.data();
}

std::string ShownLine::toCursor() const
{
    const LineInfoW* const line = el_wline(m_editor);
    return toBytes({line->buffer, line->cursor});
}

void ShownLine::replaceFrom(std::size_t begin, const std::string& text)
{
    const std::string replaced = toCursor().substr(begin);
    el_deletestr(m_editor, static_cast<int>(toLetters(replaced).size()));
    insert(text);
}

void ShownLine::insert(const std::string& text)
{
    el_winsertstr(m_editor, toLetters(text).c_str());
}

bool ShownLine::passBlank()
{
    const LineInfoW* const line = el_wline(m_editor);
    const bool isBlank = line->cursor != line->lastchar && *line->cursor == L' ';
    el_cursor(m_editor, isBlank ? 1 : 0);
    return isBlank;
}

void ShownLine::printAbove(const std::string& text)
{
    erase(row());
    std::fwrite(text.data(), 1, text.size(), stdout);
    draw();
}

void ShownLine::printBehind(const std::string& text)
{
    const LineInfoW* const line = el_wline(m_editor);
    const auto lettersBehind = static_cast<int>(line->lastchar - line->cursor);
    if (lettersBehind > 0)
    {
        erase(row());
        el_cursor(m_editor, lettersBehind);
        draw();
        el_cursor(m_editor, -lettersBehind);
    }
    std::fwrite(text.data(), 1, text.size(), stdout);
}

void ShownLine::draw()
{
    el_set(m_editor, EL_REFRESH);
}

/// Some terminals break a long line anew at their new width, others leave it. Moving up by the smaller number of rows
/// never takes away what is above the line.
void ShownLine::resize()
{
    const int before = row();
    el_resize(m_editor);
    erase(std::min(before, row()));
    draw();
}

int ShownLine::columns() const
{
    int columns = 0;
    el_get(m_editor, EL_GETTC, "co", &columns);
    return columns;
}

/// Lets the terminal's cursor stand where the prompt began, on an empty row.
/// @param rowsAbove  from there to the cursor
void ShownLine::erase(int rowsAbove)
{
    if (!can("up") || !can("cd"))
    {
        std::fputc('\n', stdout);
        return;
    }
    std::fputc('\r', stdout);
    for (int above = rowsAbove; above > 0; --above)
    {
        el_set(m_editor, EL_ECHOTC, "up", nullptr);
    }
    el_set(m_editor, EL_ECHOTC, "cd", nullptr);
}

bool ShownLine::can(const char* capability) const
{
    const char* sequence = nullptr;
    return el_get(m_editor, EL_GETTC, capability, &sequence) == 0 && sequence != nullptr && *sequence != '\0';
}

/// On which row of the line the terminal's cursor stands. Of a line that is longer than the terminal, the
/// end is shown; its row is farther than the terminal's top, where moving up stops.
int ShownLine::row() const
{
    const LineInfoW* const line = el_wline(m_editor);
    return rowBehind(withoutEscapes(m_prompt) + std::wstring(line->buffer, line->cursor), columns());
}

} // namespace node::terminal
