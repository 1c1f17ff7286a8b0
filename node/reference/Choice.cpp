#include "node/reference/Choice.h"

#include <algorithm>
#include <set>

#include "node/commands/Line.h"

namespace node::reference
{

namespace
{

/// Equal letters whatever the process's locale.
bool equalButForCase(char a, char b)
{
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    return lower(a) == lower(b);
}

} // namespace

std::vector<std::string> fitting(const std::vector<std::string>& words, const std::string& typed)
{
    std::set<std::string> exact;
    std::set<std::string> butForCase;
    for (const std::string& word : words)
    {
        if (word.size() >= typed.size() && std::equal(typed.begin(), typed.end(), word.begin(), equalButForCase))
        {
            (word.starts_with(typed) ? exact : butForCase).insert(word);
        }
    }
    const auto& found = exact.empty() ? butForCase : exact;
    return {found.begin(), found.end()};
}

std::vector<std::string> asTypedAfter(const std::string& begun, std::vector<std::string> words)
{
    for (std::string& word : words)
    {
        const bool goesOn = word.ends_with('/') || word.ends_with('=');
        word = begun.starts_with('"') ? commands::inQuotationMarks(word) : commands::asTyped(word);
        if (goesOn && word.ends_with('"'))
        {
            word.pop_back();
        }
    }
    return words;
}

} // namespace node::reference
