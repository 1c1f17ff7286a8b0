#include "node/reference/Fill.h"

#include <iterator>
#include <sstream>

namespace node::reference
{

std::string fill(const std::vector<std::string>& words, const std::string& gap, const std::string& indent,
                 std::size_t columns)
{
    std::string text;
    std::string line;
    for (const std::string& word : words)
    {
        if (!line.empty() && line.size() + gap.size() + word.size() > columns)
        {
            text += line + "\n";
            line.clear();
        }
        line += (line.empty() ? indent : gap) + word;
    }
    return text + (line.empty() ? "" : line + "\n");
}

std::string fillText(const std::string& text, const std::string& indent, std::size_t columns)
{
    std::istringstream words(text);
    return fill({std::istream_iterator<std::string>(words), {}}, " ", indent, columns);
}

} // namespace node::reference
