#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Text as libedit edits it: letters of the process's locale. A byte that is no letter there becomes one that stands
/// for it alone, so that every text comes back as it was.
namespace node::terminal
{

struct Letter
{
    wchar_t value = 0;
    std::size_t size = 0; ///< in bytes; 0 when the bytes end before the letter does
};

/// The letter that bytes begin with.
Letter firstLetter(std::string_view bytes);

std::wstring toLetters(std::string_view bytes);
std::string toBytes(std::wstring_view letters);

} // namespace node::terminal
