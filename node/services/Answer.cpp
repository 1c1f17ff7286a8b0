#include "node/services/Answer.h"

#include <cmath>

namespace node::services
{

namespace
{

constexpr std::uint32_t Retries = 1;
constexpr std::uint32_t Reacquires = 2;

} // namespace

std::string unknownChannel(RadioChannel channel, const radio::RadioLink& link)
{
    return "radio channel: found " + std::to_string(channel) +
           (link.numberOfChannels() == 1 ? ", expected 1" : ", expected 1 or 2");
}

std::string stateOf(const radio::Xpic& xpic)
{
    using enum radio::XpicState;
    switch (xpic.state)
    {
    case Idle:
        return "Idle";
    case Acquiring:
        return "Acquiring";
    case Acquired:
        return xpic.slaveMuted ? "Muted" : "Locked";
    case Failed:
        return "Failed";
    case Lost:
        break;
    }
    return "Lost";
}

std::uint32_t optionOf(const radio::Xpic& xpic)
{
    return (xpic.retries ? Retries : 0) | (xpic.reacquires ? Reacquires : 0);
}

void setOption(radio::Xpic& xpic, std::uint32_t option)
{
    xpic.retries = (option & Retries) != 0;
    xpic.reacquires = (option & Reacquires) != 0;
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
