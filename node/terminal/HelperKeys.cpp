#include "node/terminal/HelperKeys.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "node/terminal/Layout.h"
#include "node/terminal/WholeWord.h"

namespace node::terminal
{

namespace
{

/// What all words begin with, in whole letters.
std::string commonBeginning(const std::vector<std::string>& words)
{
    std::string common = words.front();
    for (const std::string& word : words)
    {
        const auto end = std::mismatch(common.begin(), common.end(), word.begin(), word.end()).first;
        common.erase(end, common.end());
    }
    const auto isInside = [&](std::size_t place)
    { return place < words.front().size() && (static_cast<unsigned char>(words.front()[place]) & 0xC0U) == 0x80U; };
    while (isInside(common.size()))
    {
        common.pop_back();
    }
    return common;
}

} // namespace

HelperKeys::HelperKeys(Helper helper, ShownLine& line) : m_helper(std::move(helper)), m_line(line)
{
}

void HelperKeys::begin()
{
    m_ambiguous.reset();
}

unsigned char HelperKeys::complete()
{
    const std::string line = m_line.toCursor();
    const auto [begin, words] = m_helper.complete(line);
    if (words.empty())
    {
        return CC_REFRESH_BEEP;
    }
    if (words.size() == 1)
    {
        m_line.replaceFrom(begin, words.front());
        if (isWhole(words.front()) && !m_line.passBlank())
        {
            m_line.insert(" ");
        }
        return CC_REFRESH;
    }
    const std::string common = commonBeginning(words);
    if (common.size() > line.size() - begin)
    {
        m_line.replaceFrom(begin, common);
        m_ambiguous = m_line.toCursor();
        return CC_REFRESH;
    }
    if (m_ambiguous != line)
    {
        m_ambiguous = line;
        return CC_REFRESH_BEEP;
    }
    m_line.printBehind("\n" + inColumns(words, m_line.columns()));
    m_line.draw();
    return CC_NORM;
}

unsigned char HelperKeys::explain()
{
    const std::string text = m_helper.explain(m_line.toCursor());
    if (text.empty())
    {
        m_line.insert("?");
        return CC_REFRESH;
    }
    m_line.printBehind("\n" + text + (text.ends_with('\n') ? "" : "\n"));
    m_line.draw();
    return CC_NORM;
}

} // namespace node::terminal
