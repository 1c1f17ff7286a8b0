#include "private/util.h"

#include <array>
#include <charconv>

namespace kel::device::kelDebugCmd::util
{

std::string makeDecibelString(int value, std::string unit)
{
    unit.insert(0, makeDecimalValString(value));
    return unit;
}

std::string makeDbString(int value)
{
    return makeDecibelString(value, DbUnit);
}

std::string makeDbmString(int value)
{
    return makeDecibelString(value, DbmUnit);
}

std::string makeDecimalValString(int value)
{
    constexpr int SignificantDigits = 6;
    std::array<char, sizeof "-2.14748e+07"> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value / 100.0, std::chars_format::general,
                                   SignificantDigits);
    return {text.data(), end.ptr};
}

bool validateParamValue(const std::string& text, const std::string& name, const std::string& value)
{
    return text.find(name + value) != std::string::npos;
}

bool validateError(const std::string& text, const std::string& error)
{
    return text.find(error) != std::string::npos;
}

} // namespace kel::device::kelDebugCmd::util
