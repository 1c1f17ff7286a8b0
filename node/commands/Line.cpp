#include "node/commands/Line.h"

#include <algorithm>

#include "node/wording/InputError.h"

namespace node::commands
{

namespace
{

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\v' || c == '\f';
}

} // namespace

UnfinishedLine splitUnfinished(const std::string& line)
{
    UnfinishedLine split;
    bool inWord = false;
    for (std::size_t i = 0; i < line.size(); ++i)
    {
        if (isBlank(line[i]) && !split.inQuotes)
        {
            inWord = false;
            continue;
        }
        if (!inWord)
        {
            if (split.words.empty() && line[i] == '#')
            {
                return {{}, line.size(), false};
            }
            split.words.emplace_back();
            split.begin = i;
            inWord = true;
        }
        if (line[i] == '"')
        {
            split.inQuotes = !split.inQuotes;
            continue;
        }
        if (split.inQuotes && line[i] == '\\' && i + 1 < line.size())
        {
            ++i;
        }
        split.words.back() += line[i];
    }
    if (!inWord)
    {
        split.words.emplace_back();
        split.begin = line.size();
    }
    return split;
}

std::vector<std::string> splitLine(const std::string& line)
{
    UnfinishedLine split = splitUnfinished(line);
    if (split.inQuotes)
    {
        throw wording::InputError("line", "a quotation mark alone", "another one that closes it");
    }
    const bool endsBetweenWords = !split.words.empty() && split.begin == line.size();
    if (endsBetweenWords)
    {
        split.words.pop_back();
    }
    return split.words;
}

std::string asTyped(const std::string& word)
{
    const bool plain = !word.empty() && word.front() != '#' &&
                       std::none_of(word.begin(), word.end(), [](char c) { return isBlank(c) || c == '"'; });
    return plain ? word : inQuotationMarks(word);
}

std::string inQuotationMarks(const std::string& word)
{
    std::string text = "\"";
    for (const char c : word)
    {
        text += c == '"' || c == '\\' ? "\\" : "";
        text += c;
    }
    return text + "\"";
}

} // namespace node::commands
