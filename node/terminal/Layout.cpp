#include "node/terminal/Layout.h"

#include <algorithm>
#include <cstdint>
#include <cwchar>
#include <cwctype>

#include "node/terminal/Letters.h"

namespace node::terminal
{

namespace
{

constexpr int TabulatorColumns = 8;

/// Where letters come to stand, row by row.
class Cursor
{
public:
    explicit Cursor(int columns) : m_columns(columns)
    {
    }

    void put(wchar_t letter)
    {
        if (letter == L'\n')
        {
            nextRow();
        }
        else if (letter == L'\t')
        {
            do
            {
                advance(1);
            } while (m_column % TabulatorColumns != 0);
        }
        else if (std::iswprint(static_cast<std::wint_t>(letter)) != 0)
        {
            advance(std::max(wcwidth(letter), 0));
        }
        else
        {
            spell(letter);
        }
    }

    int row() const
    {
        return m_row;
    }

private:
    void spell(wchar_t letter)
    {
        const auto code = static_cast<std::uint32_t>(letter); // wchar_t has a sign on some machines only
        const int signs = code < 0x80 ? 2 : code > 0xFFFF ? 8 : 7;
        for (int sign = 0; sign < signs; ++sign)
        {
            advance(1);
        }
    }

    /// A letter that is wider than what is left of its row stands in the next one, and so does the cursor behind a full
    /// row.
    void advance(int width)
    {
        if (m_column + width > m_columns)
        {
            nextRow();
        }
        m_column += width;
        if (m_column >= m_columns)
        {
            nextRow();
        }
    }

    void nextRow()
    {
        ++m_row;
        m_column = 0;
    }

    int m_columns;
    int m_row = 0;
    int m_column = 0;
};

/// What is shown of a letter that comes to stand in this column.
std::wstring shapeOf(wchar_t letter, int column)
{
    if (letter == L'\t')
    {
        std::wstring blanks(static_cast<std::size_t>(TabulatorColumns - column % TabulatorColumns), L' ');
        return blanks;
    }
    return wcwidth(letter) < 0 || letter == 0 ? L"?" : std::wstring(1, letter);
}

int widthOf(const std::string& word)
{
    const std::wstring letters = toLetters(word);
    return std::max(wcswidth(letters.c_str(), letters.size()), 0);
}

} // namespace

std::wstring withoutEscapes(const std::wstring& prompt)
{
    std::wstring shown;
    bool inside = false;
    for (const wchar_t letter : prompt)
    {
        if (letter == EscapeMark)
        {
            inside = !inside;
        }
        else if (!inside)
        {
            shown += letter;
        }
    }
    return shown;
}

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

std::string cutToColumns(const std::string& line, int columns)
{
    std::wstring shown;
    int column = 0;
    for (const wchar_t letter : toLetters(line))
    {
        const std::wstring shape = shapeOf(letter, column);
        const int width = wcswidth(shape.c_str(), shape.size());
        if (column + width > columns)
        {
            break;
        }
        shown += shape;
        column += width;
    }
    return toBytes(shown);
}

int rowBehind(const std::wstring& shown, int columns)
{
    Cursor cursor(columns);
    for (const wchar_t letter : shown)
    {
        cursor.put(letter);
    }
    return cursor.row();
}

std::string inColumns(const std::vector<std::string>& words, int columns)
{
    constexpr std::size_t Gap = 2;
    std::size_t widest = 0;
    for (const std::string& word : words)
    {
        widest = std::max(widest, static_cast<std::size_t>(widthOf(word)));
    }
    // No gap stands behind the last column.
    const std::size_t fit = (static_cast<std::size_t>(std::max(columns, 0)) + Gap) / (widest + Gap);
    const std::size_t abreast = std::max<std::size_t>(fit, 1);
    const std::size_t rows = (words.size() + abreast - 1) / abreast;
    std::string text;
    for (std::size_t row = 0; row < rows; ++row)
    {
        std::size_t missing = 0;
        for (std::size_t place = row; place < words.size(); place += rows)
        {
            text += std::string(missing, ' ') + words[place];
            missing = widest + Gap - static_cast<std::size_t>(widthOf(words[place]));
        }
        text += '\n';
    }
    return text;
}

} // namespace node::terminal
