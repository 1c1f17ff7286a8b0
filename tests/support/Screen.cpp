#include "support/Screen.h"

#include <algorithm>

namespace
{

/// A letter in UTF-8.
std::string encoded(std::uint32_t letter)
{
    const auto byte = [](std::uint32_t value) { return static_cast<char>(static_cast<unsigned char>(value)); };
    if (letter < 0x80)
    {
        return {byte(letter)};
    }
    if (letter < 0x800)
    {
        return {byte(0xC0 | letter >> 6), byte(0x80 | (letter & 0x3F))};
    }
    return {byte(0xE0 | letter >> 12), byte(0x80 | (letter >> 6 & 0x3F)), byte(0x80 | (letter & 0x3F))};
}

std::string textOf(const VTermScreenCell& cell)
{
    std::string text;
    for (const std::uint32_t* letter = std::begin(cell.chars); letter != std::end(cell.chars) && *letter != 0; ++letter)
    {
        // The second cell of a letter that is two wide holds no letter.
        text += *letter == 0xFFFFFFFF ? "" : encoded(*letter);
    }
    return cell.chars[0] == 0 ? " " : text;
}

std::string withoutBlanksAtItsEnd(const std::string& row)
{
    return row.substr(0, row.find_last_not_of(' ') + 1);
}

} // namespace

Screen::Screen(TerminalSize size)
    : m_terminal(vterm_new(size.rows, size.columns), vterm_free), m_screen(vterm_obtain_screen(m_terminal.get())),
      m_size(size)
{
    static const VTermScreenCallbacks Callbacks = []
    {
        VTermScreenCallbacks callbacks{};
        callbacks.bell = [](void* screen) { return ++static_cast<Screen*>(screen)->m_beeps; };
        callbacks.sb_pushline = [](int columns, const VTermScreenCell* cells, void* screen)
        {
            std::string row;
            std::for_each(cells, cells + columns, [&](const VTermScreenCell& cell) { row += textOf(cell); });
            static_cast<Screen*>(screen)->m_scrolledOff += withoutBlanksAtItsEnd(row) + '\n';
            return 1;
        };
        return callbacks;
    }();
    vterm_set_utf8(m_terminal.get(), 1);
    vterm_screen_set_callbacks(m_screen, &Callbacks, this);
    vterm_screen_reset(m_screen, 1);
}

Screen::~Screen() = default;

void Screen::show(const std::string& output)
{
    vterm_input_write(m_terminal.get(), output.data(), output.size());
}

void Screen::resize(TerminalSize size)
{
    vterm_set_size(m_terminal.get(), size.rows, size.columns);
    m_size = size;
}

std::string Screen::row(int number) const
{
    VTermPos cursor{};
    vterm_state_get_cursorpos(vterm_obtain_state(m_terminal.get()), &cursor);
    std::string text;
    std::string untilCursor;
    for (VTermPos place{number, 0}; place.col < m_size.columns; ++place.col)
    {
        if (place.row == cursor.row && place.col == cursor.col)
        {
            untilCursor = text + '|';
            text = "";
        }
        VTermScreenCell cell{};
        vterm_screen_get_cell(m_screen, place, &cell);
        text += textOf(cell);
    }
    return untilCursor + withoutBlanksAtItsEnd(text) + '\n';
}

std::string Screen::text() const
{
    std::string text = m_scrolledOff;
    for (int number = 0; number < m_size.rows; ++number)
    {
        text += row(number);
    }
    return text.substr(0, text.find_last_not_of('\n') + 1) + '\n';
}

int Screen::beeps() const
{
    return m_beeps;
}
