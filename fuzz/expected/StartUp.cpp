#include "fuzz/expected/StartUp.h"

#include "fuzz/expected/Trace.h"

namespace expected
{

StartUp onModuleInit(int numberOfRadioChannels, const Broker& broker, bool traced)
{
    constexpr auto LookUp = "InterfaceBroker.getInstance()";
    constexpr std::int32_t Failed = 0x8000;

    StartUp start;
    start.seen.calls.emplace_back(LookUp);
    if (!broker.boardSupport)
    {
        traceLine(start.seen, CommandsChannel, traced, "onModuleInit",
                  "onModuleInit(): failed to get interface toIRlbspKelApi");
        start.result = Failed;
        return start;
    }
    start.seen.calls.emplace_back("IRlbspKelApi.installDebugCmdCallback()");
    start.installed = true;
    const int served = numberOfRadioChannels == 1 || numberOfRadioChannels == 2 ? numberOfRadioChannels : 0;
    for (int channel = 1; channel <= served; ++channel)
    {
        start.seen.calls.emplace_back(LookUp);
        const auto index = static_cast<std::size_t>(channel) - 1;
        start.found.at(index) = broker.dpd.at(index);
        if (!start.found.at(index))
        {
            traceLine(start.seen, CommandsChannel, traced, "onModuleInit",
                      "onModuleInit(): Error getting interface to IDpdControllerSplit_" + std::to_string(channel));
            start.result = Failed;
            return start;
        }
    }
    return start;
}

} // namespace expected
