#include "node/cli/Script.h"

#include <istream>
#include <string_view>

#include <fmt/format.h>

#include "node/wording/InputError.h"

namespace node::cli
{

namespace
{

/// What some editors write before the first line of UTF-8.
constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

} // namespace

Status runScript(Session& session, std::istream& input, const std::string& name, AtFailure atFailure)
{
    Status first = Status::Done;
    std::string line;
    for (int number = 1; !session.left() && session.good() && std::getline(input, line); ++number)
    {
        if (number == 1 && line.starts_with(ByteOrderMark))
        {
            line.erase(0, ByteOrderMark.size());
        }
        const Status status = session.carryOutLine(line, fmt::format("{}:{}", name, number));
        if (first == Status::Done)
        {
            first = status;
        }
        if (first != Status::Done && atFailure == AtFailure::Stop)
        {
            return first;
        }
    }
    if (input.bad())
    {
        throw wording::InputError(name, "it unreadable", "lines");
    }
    return first;
}

} // namespace node::cli
