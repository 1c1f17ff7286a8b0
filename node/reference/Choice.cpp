#include "node/reference/Choice.h"

#include <algorithm>
#include <set>

#include "node/commands/Line.h"
#include "node/terminal/WholeWord.h"
#include "node/wording/Letter.h"

namespace node::reference
{

namespace
{

bool equalButForCase(char a, char b)
{
    return wording::lower(a) == wording::lower(b);
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
        const bool whole = terminal::isWhole(word);
        word = begun.starts_with('"') ? commands::inQuotationMarks(word) : commands::asTyped(word);
        if (!whole && word.ends_with('"'))
        {
            word.pop_back();
        }
    }
    return words;
}

} // namespace node::reference
