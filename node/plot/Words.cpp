#include "node/plot/Words.h"

#include <cmath>

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <nlohmann/json.hpp>

namespace node::plot
{

namespace
{

/// The text with a replacement character for what is not UTF-8.
std::string wellFormed(const std::string& text)
{
    using nlohmann::json;
    return json::parse(json(text).dump(-1, ' ', false, json::error_handler_t::replace)).get<std::string>();
}

bool isControl(char c)
{
    return static_cast<unsigned char>(c) < ' ' || c == '\x7f';
}

/// As gnuplot wants the text of a tic, where '%' begins a number.
std::string asFormat(const std::string& text)
{
    std::string format;
    for (const char c : text)
    {
        format.append(c == '%' ? 2 : 1, c);
    }
    return format;
}

} // namespace

std::string quoted(const std::string& text)
{
    std::string quoted = "'";
    for (const char c : wellFormed(text))
    {
        // Between single quotation marks gnuplot knows nothing but the mark itself. Doubled marks it does not always
        // read as one: each is a text of its own, put together with the others.
        quoted += c == '\'' ? R"('."'".')" : std::string(1, isControl(c) ? ' ' : c);
    }
    return quoted + "'";
}

std::string plainLetters(const std::string& text)
{
    std::string letters;
    for (const char c : wellFormed(text))
    {
        const auto byte = static_cast<unsigned char>(c);
        const bool goesOn = byte >= 0x80 && byte < 0xC0; // a character of more than one byte
        if (!goesOn)
        {
            letters += byte < 0x80 ? c : '?';
        }
    }
    return letters;
}

std::string number(double value)
{
    return std::isfinite(value) ? fmt::format("{}", value) : "NaN";
}

std::string modulationTics(const std::vector<std::string>& names, const ModulationAxis& axis)
{
    std::vector<std::string> tics;
    for (const std::size_t modulation : namedOn(axis))
    {
        tics.push_back(fmt::format("{} {}", quoted(asFormat(names[modulation])), modulation));
    }
    return fmt::format("({})", fmt::join(tics, ", "));
}

} // namespace node::plot
