#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

/// What reports say, as values.
namespace node::report
{

/// A value that a report tells.
struct Field
{
    std::string under; ///< the heading that it stands under; "" where there is none
    std::string label;
    std::variant<std::string, bool, std::int64_t, double> value;
    std::string unit{}; ///< "dBm", "0.1 dB"; "" for a text and for a number without one

    bool operator==(const Field&) const = default;
};

/// Reads the fields of a report, in their order. A line "LABEL: VALUE", "LABEL: VALUE UNIT" or "LABEL [UNIT]: VALUE" is
/// one; below a line "LABEL:" so is an indented "NAME NUMBER UNIT". Indented lines and those behind dashes, as in
/// "--- LABEL: VALUE", stand under the line above that is not. Lines of another form are no fields, nor are those with
/// a label of more than 80 bytes. Numbers and "true" and "false" become values of their kind.
std::vector<Field> fieldsOf(const std::string& text);

} // namespace node::report
