#include "node/services/Answer.h"

#include <cmath>

namespace node::services
{

std::string unknownChannel(RadioChannel channel)
{
    return "radio channel: found " + std::to_string(channel) + ", expected 1 or 2";
}

std::string stateOf(const radio::Xpic& xpic)
{
    if (xpic.slaveMuted)
    {
        return "Muted";
    }
    return xpic.acquired ? "Locked" : "Unlocked";
}

std::int32_t hundredths(double decibels)
{
    return static_cast<std::int32_t>(std::lround(decibels * 100.0));
}

std::int32_t tenths(double decibels)
{
    return static_cast<std::int32_t>(std::lround(decibels * 10.0));
}

} // namespace node::services
