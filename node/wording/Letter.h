#pragma once

namespace node::wording
{

/// The letter in lower case, whatever the process's locale: only those of ASCII have a case.
inline char lower(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

} // namespace node::wording
