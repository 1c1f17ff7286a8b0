#include "node/commands/LongTime.h"

#include <algorithm>

namespace node::commands
{

void letTimeGoOn(radio::RadioLink& link, Console& console, radio::Ticks time)
{
    constexpr radio::Ticks Short = std::chrono::minutes(1);
    if (time <= Short)
    {
        link.advance(time);
        return;
    }
    letTimeGoOn(link, console, time, Short, [] {});
}

void letTimeGoOn(radio::RadioLink& link, Console& console, radio::Ticks time, radio::Ticks step,
                 const std::function<void()>& atStep)
{
    const auto run = console.beginLongRun();
    for (radio::Ticks done{0}; done < time;)
    {
        const radio::Ticks part = std::min(step, time - done);
        link.advance(part);
        done += part;
        atStep();
        run->reached(radio::seconds(done) / radio::seconds(time));
    }
}

} // namespace node::commands
