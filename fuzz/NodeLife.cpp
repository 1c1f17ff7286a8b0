// Any sequence of operations, faults, weather and time on a started node. A fault strikes as often as it says and does
// what it says; what was set is read back; what is reported is what the link is; and all of it is so again.

#include <algorithm>
#include <array>
#include <chrono>
#include <optional>
#include <string>

#include "fuzz/EveryOperation.h"
#include "fuzz/Input.h"
#include "fuzz/KnownNode.h"
#include "fuzz/NodeAround.h"
#include "fuzz/NodeOperations.h"
#include "fuzz/Target.h"
#include "node/radio/Range.h"
#include "node/scenario/FaultKeys.h"
#include "node/services/PlatformCall.h"
#include "node/wording/InputError.h"

namespace
{

using fuzz::expectSame;
using fuzz::Input;
using fuzz::NodeOperations;
using node::radio::Channel;
using node::radio::Ticks;

constexpr int MostSteps = 64;
constexpr Ticks LongestLife = std::chrono::minutes(1);

/// A node as an input has it: one or two channels, in still or trembling air.
node::startup::Configuration configurationOf(Input& input)
{
    node::startup::Configuration configuration;
    node::radio::LinkSetup& link = configuration.link;
    link.numberOfChannels = input.below(4) == 3 ? 1 : 2; // mostly two
    link.weather.seed = input.byte();
    link.weather.scintillation.deviation_dB = input.below(4);
    link.hop.distance_km = 1.0 + input.byte() / 4.0;
    for (Channel& channel : link.channels)
    {
        channel.modem.lowest = input.below(static_cast<std::uint32_t>(node::radio::modulations().size()));
        channel.modem.highest = std::max(channel.modem.lowest, channel.modem.highest);
        channel.modem.current = channel.modem.highest;
        channel.ppsMasterAnswers = input.below(4) != 3;
    }
    return configuration;
}

/// A node to which the input says what happens.
class Life
{
public:
    explicit Life(Input& input) : m_input(input), m_node(configurationOf(input)), m_operations(input, m_node)
    {
    }

    /// @return all that was seen of it
    std::string live()
    {
        for (int step = 0; step < MostSteps && !m_input.atEnd(); ++step)
        {
            take();
            m_node.look();
        }
        return m_node.seen() + m_trace.lines;
    }

private:
    void take();

    // Steps that are no operations.
    void letTimeGoOn();
    void changeWeather();
    void changeChannel();
    void planFault();
    void dropFaults();

    fuzz::KeptTrace m_trace;
    Input& m_input;
    fuzz::KnownNode m_node;
    NodeOperations m_operations;
};

void Life::letTimeGoOn()
{
    const Ticks time = std::min(Ticks(m_input.byte()), LongestLife - m_node.time());
    m_node.advance(time);
}

void Life::changeWeather()
{
    const std::uint8_t what = m_input.byte();
    const double share = m_input.byte() / 255.0;
    const Ticks over(m_input.below(64));
    switch (what % 3)
    {
    case 0:
        m_node.link().turnRain(node::radio::RainRate_mm_per_h.highest * share, over);
        break;
    case 1:
        m_node.link().turnFade(node::radio::FadeDepth_dB.highest * share, over);
        break;
    default:
        m_node.link().setDistance(std::max(node::radio::Distance_km.highest * share, node::radio::Distance_km.lowest));
        break;
    }
}

void Life::changeChannel()
{
    const RadioChannel channel = 1 + m_input.below(m_node.link().numberOfChannels());
    const std::uint32_t what = m_input.below(3);
    const bool on = m_input.flag();
    m_node.link().change(
        channel,
        [&](Channel& state)
        {
            bool* const switches[] = {&state.transmitter.on, &state.xpic.cableConnected, &state.ppsMasterAnswers};
            *switches[what] = on;
        });
}

void Life::planFault()
{
    const auto calls = node::services::platformCalls();
    node::services::Fault fault;
    fault.call = &calls[m_input.below(static_cast<std::uint32_t>(calls.size()))];
    const std::uint8_t has = m_input.byte();
    const auto ifHas = [has](unsigned bit, auto value)
    { return (has >> bit) % 2 != 0 ? std::optional(value) : std::nullopt; };
    fault.channel = ifHas(0, RadioChannel{1 + m_input.below(2)});
    fault.code = ifHas(1, m_input.number());
    fault.text = ifHas(2, m_input.text());
    fault.throws = (has >> 3U) % 2 != 0;
    fault.fromCall = 1 + m_input.below(4);
    fault.calls = ifHas(4, std::uint64_t{1 + m_input.below(4)});
    try
    {
        node::scenario::checkFault(fault, [](const std::string& key) { return key; });
    }
    catch (const node::wording::InputError&)
    {
        return; // no user could plan it
    }
    m_node.planFault(fault);
}

void Life::dropFaults()
{
    m_node.dropFaults();
}

void Life::take()
{
    constexpr auto& operations = fuzz::EveryOperation<NodeOperations>;
    using Step = void (Life::*)();
    static constexpr std::array<Step, 5> Others = {&Life::letTimeGoOn, &Life::changeWeather, &Life::changeChannel,
                                                   &Life::planFault, &Life::dropFaults};
    const std::uint32_t step = m_input.below(operations.size() + Others.size());
    if (step < operations.size())
    {
        (m_operations.*operations.at(step))(1 + m_input.below(2));
    }
    else
    {
        (this->*Others.at(step - operations.size()))();
    }
}

std::string lifeOf(const std::uint8_t* data, std::size_t size)
{
    Input input(data, size);
    return Life(input).live();
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string once = lifeOf(data, size);
    fuzz::NodeAround::expectNothingThere();
    expectSame("the same life is the same again", once, lifeOf(data, size));
    return 0;
}
