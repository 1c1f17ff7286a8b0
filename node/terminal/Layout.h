#pragma once

#include <string>
#include <vector>

namespace node::terminal
{

/// Stands before and behind an escape sequence in a prompt.
constexpr wchar_t EscapeMark = L'\x01';

/// A prompt without its escape sequences.
std::wstring withoutEscapes(const std::wstring& prompt);

/// The lines of a text, without their line ends.
std::vector<std::string> linesOf(const std::string& text);

/// As much of a line as fits into so many columns, and nothing that a terminal obeys: '?' stands for what has no shape
/// and for a byte that is no letter, blanks for a tabulator.
std::string cutToColumns(const std::string& line, int columns);

/// How many rows below its first one a terminal's cursor stands behind a prompt and a line, as the line editor shows
/// them: a control character as ^X, another letter that has no shape as \U+XXXX.
int rowBehind(const std::wstring& shown, int columns);

/// Words in as many columns as fit, read downwards. Each row ends with a line end.
std::string inColumns(const std::vector<std::string>& words, int columns);

} // namespace node::terminal
