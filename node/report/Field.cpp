#include "node/report/Field.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

#include "node/report/Measure.h"
#include "node/report/Text.h"

namespace node::report
{

namespace
{

using std::string_view;

constexpr auto None = string_view::npos;

Field makeField(string_view under, string_view label, const Measure& measure)
{
    const auto value = std::visit([](auto number) { return decltype(Field::value)(number); }, measure.number);
    return {std::string(under), std::string(label), value, std::string(measure.unit)};
}

Field labelledField(string_view under, string_view label, string_view text)
{
    if (text == "true" || text == "false")
    {
        return {std::string(under), std::string(label), text == "true"};
    }
    const auto measure = measureOf(text);
    if (!measure)
    {
        return {std::string(under), std::string(label), std::string(text)};
    }
    if (!measure->unit.empty())
    {
        return makeField(under, label, *measure);
    }
    const auto [bareLabel, unit] = measuredLabel(label);
    return makeField(under, bareLabel, {measure->number, unit});
}

/// Where the label ends: at the colon that a blank or nothing follows.
std::size_t endOfLabel(string_view text)
{
    auto colon = text.find(':');
    while (colon != None && colon + 1 < text.size() && !isBlank(text[colon + 1]))
    {
        colon = text.find(':', colon + 1);
    }
    return colon;
}

/// What an entry of a legend, which says what a number means, has behind that number: "[5]: Calibration failed: 1"
/// tells a value there. Other text stays as it is.
string_view withoutLegendNumber(string_view text)
{
    const auto end = endOfLabel(text);
    const bool isEntry = text.starts_with('[') && end != None && text[end - 1] == ']';
    return isEntry ? trimmed(text.substr(end + 1)) : text;
}

/// A line of a report.
struct Line
{
    bool nested; ///< blanks stand before it, or a marker as in "--- XPD"
    string_view text;
};

Line lineOf(string_view line)
{
    const string_view text = trimmed(line);
    const auto dashes = std::min(text.find_first_not_of('-'), text.size());
    if (dashes < text.size() && isBlank(text[dashes]))
    {
        return {true, trimmed(text.substr(dashes))};
    }
    return {!line.empty() && isBlank(line.front()), text};
}

/// Reads line after line: a nested one stands under the last that is not, or under a label without a value.
class Reader
{
public:
    void read(string_view line)
    {
        const auto [nested, withLegend] = lineOf(line);
        const string_view text = withoutLegendNumber(withLegend);
        const auto end = std::min(endOfLabel(text), text.size());
        const string_view label = trimmed(text.substr(0, end));
        if (end == text.size() || label.empty() || label.size() > LongestLabel)
        {
            readUnlabelled(nested, text);
        }
        else
        {
            readLabelled(nested, label, trimmed(text.substr(end + 1)));
        }
    }

    std::vector<Field> fields;

private:
    /// Nested lines repeat their heading: what comes out must not grow with the square of what goes in.
    static constexpr std::size_t LongestLabel = 80;

    void readLabelled(bool nested, string_view label, string_view value)
    {
        if (!value.empty())
        {
            fields.push_back(labelledField(nested ? m_heading : "", label, value));
        }
        if (!nested || value.empty())
        {
            m_heading = label;
            m_headsList = value.empty();
        }
    }

    void readUnlabelled(bool nested, string_view text)
    {
        if (!nested && !text.empty())
        {
            m_heading = "";
            m_headsList = false;
        }
        else if (const auto row = m_headsList ? namedMeasureOf(text) : std::nullopt)
        {
            fields.push_back(makeField(m_heading, row->name, row->measure));
        }
    }

    string_view m_heading;
    bool m_headsList = false; ///< the heading has no value of its own, so rows without a colon may stand under it
};

} // namespace

std::vector<Field> fieldsOf(const std::string& text)
{
    Reader reader;
    string_view rest = text;
    while (!rest.empty())
    {
        const auto end = std::min(rest.find('\n'), rest.size());
        reader.read(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return std::move(reader.fields);
}

} // namespace node::report
