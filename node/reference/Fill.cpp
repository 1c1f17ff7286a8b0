#include "node/reference/Fill.h"

#include <cstddef>

namespace node::reference
{

std::string fill(const std::vector<std::string>& words, const std::string& gap, const std::string& indent)
{
    constexpr std::size_t Columns = 80;
    std::string text;
    std::string line;
    for (const std::string& word : words)
    {
        if (!line.empty() && line.size() + gap.size() + word.size() > Columns)
        {
            text += line + "\n";
            line.clear();
        }
        line += (line.empty() ? indent : gap) + word;
    }
    return text + (line.empty() ? "" : line + "\n");
}

} // namespace node::reference
