#include "node/cli/Line.h"

#include "node/wording/InputError.h"

namespace node::cli
{

namespace
{

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\v' || c == '\f';
}

} // namespace

std::vector<std::string> splitLine(const std::string& line)
{
    std::vector<std::string> words;
    bool inWord = false;
    bool inQuotes = false;
    for (std::size_t i = 0; i < line.size(); ++i)
    {
        if (isBlank(line[i]) && !inQuotes)
        {
            inWord = false;
            continue;
        }
        if (!inWord)
        {
            if (words.empty() && line[i] == '#')
            {
                return {};
            }
            words.emplace_back();
            inWord = true;
        }
        if (line[i] == '"')
        {
            inQuotes = !inQuotes;
            continue;
        }
        if (inQuotes && line[i] == '\\' && i + 1 < line.size())
        {
            ++i;
        }
        words.back() += line[i];
    }
    if (inQuotes)
    {
        throw wording::InputError("line", "a quotation mark alone", "another one that closes it");
    }
    return words;
}

} // namespace node::cli
