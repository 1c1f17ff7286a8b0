#include "node/reference/Escape.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace node::reference
{

namespace
{

struct Glyph
{
    char letter;
    std::string_view name;
};

/// Letters that roff reads, or prints as another one: a '-' as a hyphen, a '\'' as a closing quotation mark.
constexpr Glyph Glyphs[] = {
    {'\\', "\\e"}, {'-', "\\-"}, {'"', "\\(dq"}, {'\'', "\\(aq"}, {'`', "\\(ga"}, {'^', "\\(ha"}, {'~', "\\(ti"},
};

} // namespace

std::string markdown(const std::string& text)
{
    constexpr std::string_view Marks = R"(\`*_[]<>|&)";
    std::string escaped;
    for (const char letter : text)
    {
        escaped += Marks.find(letter) == std::string_view::npos ? "" : "\\";
        escaped += letter;
    }
    return escaped;
}

std::string roff(const std::string& text)
{
    std::string escaped;
    bool lineBegins = true;
    for (const char letter : text)
    {
        const auto* const glyph = std::find_if(std::begin(Glyphs), std::end(Glyphs),
                                               [&](const Glyph& known) { return known.letter == letter; });
        escaped += lineBegins && letter == '.' ? "\\&" : "";
        escaped += glyph == std::end(Glyphs) ? std::string(1, letter) : std::string(glyph->name);
        lineBegins = letter == '\n';
    }
    return escaped;
}

} // namespace node::reference
