// Any sequence of operations, faults, weather and time on a started node. A fault strikes as often as it says and does
// what it says; what was set is read back; what is reported is what the link is; and all of it is so again.

#include <cmath>
#include <functional>
#include <map>
#include <optional>
#include <string>

#include <fmt/format.h>

#include "fuzz/ExpectedPlan.h"
#include "fuzz/Input.h"
#include "fuzz/NodeAround.h"
#include "fuzz/NodeStates.h"
#include "fuzz/Target.h"
#include "node/radio/Range.h"
#include "node/scenario/FaultKeys.h"
#include "node/services/ModulationNames.h"
#include "node/services/PlatformCall.h"
#include "node/startup/Node.h"
#include "node/wording/InputError.h"

namespace
{

using fuzz::expect;
using fuzz::expectSame;
using fuzz::Input;
using fuzz::Strike;
using fuzz::Thrown;
using node::radio::Channel;
using node::radio::Ticks;

constexpr int MostSteps = 64;
constexpr Ticks LongestLife = std::chrono::minutes(1);
constexpr auto NoData = "Data could not be retrieved!";
constexpr auto Before = "what was there before";

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

/// What an operation answered.
struct Answered
{
    std::optional<int> result; ///< none: it threw
    std::string thrown;
    std::string report = Before;
    std::uint8_t preamble = 99;
    DpdCoeffs coefficients{};
};

/// A node, and what is known of it from what was done to it.
class Life
{
public:
    explicit Life(Input& input) : m_input(input), m_node(configurationOf(input))
    {
        for (RadioChannel channel = 1; channel <= m_node.link().numberOfChannels(); ++channel)
        {
            m_told.emplace(channel, stateOf(channel));
        }
        expect(m_node.commands() != nullptr, "a node without faults has its commands");
    }

    /// @return all that was seen of it
    std::string live()
    {
        for (int step = 0; step < MostSteps && !m_input.atEnd(); ++step)
        {
            take();
            look();
        }
        return m_seen + m_trace.lines;
    }

private:
    Channel stateOf(RadioChannel channel) const
    {
        return m_node.link().snapshot(channel).state;
    }

    bool hasChannel(RadioChannel channel) const
    {
        return m_node.link().hasChannel(channel);
    }

    void take();
    void look();

    // Steps that are no operations.
    void letTimeGoOn();
    void changeWeather();
    void changeChannel();
    void planFault();
    void dropFaults();

    // Operations: what is expected of the node, then what it does.
    void getCtStatus(RadioChannel channel);
    void getBcmModemStatus(RadioChannel channel);
    void getPpsCalibrationStatus(RadioChannel channel);
    void getPpsHopLengthTime(RadioChannel channel);
    void calibratePps(RadioChannel channel);
    void setPpsSource(RadioChannel channel);
    void setPpsOutputMode(RadioChannel channel);
    void startDpd(RadioChannel channel);
    void stopDpd(RadioChannel channel);
    void setDpdCoefficients(RadioChannel channel);
    void getDpdCoefficients(RadioChannel channel);
    void setXpicSlaveMute(RadioChannel channel);
    void xpicAcquireStart(RadioChannel channel);
    void getXpicPreamble(RadioChannel channel);
    void setXpicPreamble(RadioChannel channel);
    void getXpicStatus(RadioChannel channel);

    using Commands = IRlbspKelApi::KelDebugCmdCallback;

    /// A call of the top-level API about a channel.
    /// @param refused  by the service, where it comes to that
    /// @param done     what is known once the service has done its work
    /// @return whether it succeeds
    bool callTopApi(
        const char* call, RadioChannel channel, bool refused = false, const std::function<void()>& done = [] {});

    /// A call of another interface, likewise. @param refused  the service refuses
    bool callPlatform(
        const char* call, RadioChannel channel, bool refused, const std::function<void()>& done = [] {});

    /// Works out what the operation is to answer, calls it and compares.
    /// @param expectation  the result; may throw Thrown
    /// @return what it answered
    Answered operate(const char* name, const std::function<int()>& expectation,
                     const std::function<int(Commands&, Answered&)>& operation);

    static void expectReport(const Answered& answered, const std::string& begin);
    void expectCtReport(RadioChannel channel, const std::string& report, bool served) const;

    fuzz::KeptTrace m_trace;
    Input& m_input;
    mutable node::startup::Node m_node;
    fuzz::ExpectedPlan m_plan;
    std::map<RadioChannel, fuzz::Told> m_told;
    Ticks m_time{0};
    std::string m_seen;

    // Of the last call that an operation is expected to make.
    bool m_served = false; ///< its service did its work
    std::optional<Strike> m_strike;
};

bool Life::callTopApi(const char* call, RadioChannel channel, bool refused, const std::function<void()>& done)
{
    return callPlatform(call, channel, refused || !hasChannel(channel), done);
}

bool Life::callPlatform(const char* call, RadioChannel channel, bool refused, const std::function<void()>& done)
{
    m_served = false;
    m_strike = m_plan.strike(call, channel);
    m_served = !(m_strike && m_strike->refuses()) && !refused;
    if (m_served)
    {
        done();
    }
    return m_strike ? !m_strike->refuses() : !refused;
}

Answered Life::operate(const char* name, const std::function<int()>& expectation,
                       const std::function<int(Commands&, Answered&)>& operation)
{
    Answered wanted;
    m_served = false;
    m_strike.reset();
    try
    {
        wanted.result = expectation();
    }
    catch (const Thrown& thrown)
    {
        wanted.thrown = std::string("threw ") + thrown.text.c_str(); // as an exception tells it
    }
    Answered answered;
    try
    {
        answered.result = operation(*m_node.commands(), answered);
    }
    catch (const node::services::PlannedException& planned)
    {
        answered.thrown = std::string("threw ") + planned.what();
    }
    node::trace::completeOpenMessage();
    expectSame(name, wanted.thrown, answered.thrown);
    expectSame(name, wanted.result.value_or(-1), answered.result.value_or(-1));
    expect(answered.result.has_value() || answered.report == Before, "what throws reports nothing", answered.report);
    m_seen += fmt::format("{}: {} {}\n{}\n", name, answered.result.value_or(-1), answered.thrown, answered.report);
    return answered;
}

void Life::letTimeGoOn()
{
    const Ticks time = std::min(Ticks(m_input.byte()), LongestLife - m_time);
    m_node.link().advance(time);
    m_time += time;
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
    m_plan.add(fault);
    m_node.faults().add(fault);
}

void Life::dropFaults()
{
    m_plan.clear();
    m_node.faults().clear();
}

void Life::take()
{
    using Operation = void (Life::*)(RadioChannel);
    static constexpr std::array<Operation, 16> Operations = {
        &Life::getCtStatus,      &Life::getBcmModemStatus,  &Life::getPpsCalibrationStatus, &Life::getPpsHopLengthTime,
        &Life::calibratePps,     &Life::setPpsSource,       &Life::setPpsOutputMode,        &Life::startDpd,
        &Life::stopDpd,          &Life::setDpdCoefficients, &Life::getDpdCoefficients,      &Life::setXpicSlaveMute,
        &Life::xpicAcquireStart, &Life::getXpicPreamble,    &Life::setXpicPreamble,         &Life::getXpicStatus};
    using Step = void (Life::*)();
    static constexpr std::array<Step, 5> Others = {&Life::letTimeGoOn, &Life::changeWeather, &Life::changeChannel,
                                                   &Life::planFault, &Life::dropFaults};
    const std::uint32_t step = m_input.below(Operations.size() + Others.size());
    if (step < Operations.size())
    {
        (this->*Operations.at(step))(1 + m_input.below(2));
    }
    else
    {
        (this->*Others.at(step - Operations.size()))();
    }
}

void Life::look()
{
    expectSame("faults strike as often as they say", m_plan.counts(), fuzz::countsOf(m_node.faults().list()));
    expectSame("time goes on by what is told", m_time.count(), m_node.link().conditions().time.count());
    for (const auto& [channel, told] : m_told)
    {
        const node::radio::Snapshot now = m_node.link().snapshot(channel);
        fuzz::expectKnown(told, now.state);
        fuzz::expectConsistent(now);
        m_seen += fuzz::textOf(now);
    }
}

void Life::expectReport(const Answered& answered, const std::string& begin)
{
    if (answered.result == 0)
    {
        expect(answered.report.starts_with(begin) && answered.report.ends_with('\n'), "a report is complete",
               answered.report);
    }
    else if (answered.result == 1)
    {
        expectSame("a report that failed", NoData, answered.report);
    }
}

void Life::expectCtReport(RadioChannel channel, const std::string& report, bool served) const
{
    const auto holds = [&](const std::string& caption, const std::string& value)
    {
        const std::string line = fmt::format("\n{:<26}{}\n", caption, value);
        expect(report.find(line) != std::string::npos, line.c_str(), report);
    };
    for (const std::string caption : {"Tx Actual Status:",
                                      "DSP Lock:",
                                      "Actual Tx Modulation:",
                                      "Actual Rx Modulation:",
                                      "Actual Rf Input Power:",
                                      "Reported Rf Output Power:",
                                      "Actual SNIR:",
                                      "Tx Frequency:",
                                      "Rx Frequency:",
                                      "XPIC Started:",
                                      "Min Tx Frequency:",
                                      "Max Tx Frequency:",
                                      "Min Rx Frequency:",
                                      "Max Rx Frequency:",
                                      "Frequency Step Size:",
                                      "Available Min Output Pwr:",
                                      "Available Max Output Pwr:",
                                      "Radio Channel Id:",
                                      "Radio Frame Id:",
                                      "Min Modulation and Code:",
                                      "Max Modulation and Code:"})
    {
        expect(report.find("\n" + caption) != std::string::npos, caption.c_str(), report);
    }
    if (served)
    {
        const auto level = [](double decibels, const char* unit)
        { return fmt::format("{:.6g} {}", static_cast<double>(std::lround(decibels * 100)) / 100, unit); };
        const auto [hop, state, readings] = m_node.link().snapshot(channel);
        const std::string modulation = node::services::nameOf(state.modem.modulation());
        holds("Tx Actual Status:", state.transmitter.on ? "On" : "Off");
        holds("DSP Lock:", state.modem.locked ? "Locked" : "Unlocked");
        holds("Actual Tx Modulation:", modulation);
        holds("Actual Rx Modulation:", modulation);
        holds("Actual Rf Input Power:", level(readings.level_dBm, "dBm"));
        holds("Actual SNIR:", level(readings.snir_dB, "dB"));
    }
}

void Life::getCtStatus(RadioChannel channel)
{
    bool complete = false;
    bool served = false;
    const auto expectation = [&]
    {
        const bool hasStatus = callTopApi("criGetRadioChannelStatus", channel);
        served = m_served;
        complete = hasStatus && callTopApi("criGetRadioChannelCapability", channel) &&
                   callPlatform("ITiManageRadioChannelNearEnd.getRadioChannelInfo", channel, !hasChannel(channel));
        return 0;
    };
    const Answered answered = operate("getCtStatus", expectation,
                                      [&](Commands& to, Answered& a) { return to.getCtStatus(channel, a.report); });
    if (complete)
    {
        const std::string line = fmt::format("\n{:=>37}\nCT info channel {}\n{:->37}\n\n", "", channel, "");
        expectReport(answered, line);
        expectCtReport(channel, answered.report, served);
    }
    else if (answered.result)
    {
        expectSame("a report that failed", NoData, answered.report);
    }
}

void Life::getBcmModemStatus(RadioChannel channel)
{
    std::optional<std::string> text;
    const auto expectation = [&]
    {
        if (!callPlatform("ITiGetDspModemStatus.getDspModemStatus", channel, !hasChannel(channel)))
        {
            return 1;
        }
        // A record that no service filled tells of no channel.
        if (const auto strike = m_plan.strike("ITiGetDspModemStatus.toString", m_served ? channel : 0))
        {
            text = strike->text;
        }
        return 0;
    };
    const Answered answered =
        operate("getBcmModemStatus", expectation,
                [&](Commands& to, Answered& a) { return to.getBcmModemStatus(channel, a.report); });
    if (text)
    {
        expectSame("the text of a fault", *text, answered.report);
    }
    else
    {
        expectReport(answered, "Modem status of radio channel ");
    }
}

void Life::getPpsCalibrationStatus(RadioChannel channel)
{
    const Answered answered = operate(
        "getPpsCalibrationStatus", [&] { return callTopApi("criGetCalibrationStatusDspPps", channel) ? 0 : 1; },
        [&](Commands& to, Answered& a) { return to.getPpsCalibrationStatus(channel, a.report); });
    expectReport(answered, "PPS PPs Calibration: ");
}

void Life::getPpsHopLengthTime(RadioChannel channel)
{
    std::string begin = "PPS hop length time[nsec]: ";
    const auto expectation = [&]
    {
        const bool succeeds = callTopApi("criGetHopLengthTimeDspPps", channel);
        const double time_ns = m_served ? m_node.link().snapshot(channel).readings.hopLengthTime_ns : 0;
        begin += fmt::format("{}\n", std::lround(time_ns));
        return succeeds ? 0 : 1;
    };
    const Answered answered =
        operate("getPpsHopLengthTime", expectation,
                [&](Commands& to, Answered& a) { return to.getPpsHopLengthTime(channel, a.report); });
    expectReport(answered, begin);
}

void Life::calibratePps(RadioChannel channel)
{
    const int mode = m_input.below(8) == 7 ? m_input.number() : static_cast<int>(m_input.below(4));
    const std::uint16_t time_ns = m_input.half();
    const bool known = mode >= 0 && mode <= 3;
    operate(
        "calibratePps", [&] { return known && callTopApi("criCalibrateDspPps", channel) ? 0 : 1; },
        [&](Commands& to, Answered&) { return to.calibratePps(channel, mode, time_ns); });
}

void Life::setPpsSource(RadioChannel channel)
{
    const int source = m_input.number();
    const int parameter = m_input.number();
    const auto set = [&]
    {
        m_told.at(channel).ppsSource = static_cast<std::uint32_t>(source);
        m_told.at(channel).ppsSourceParameter = parameter;
    };
    const bool known = source >= 0 && source <= 2;
    operate(
        "setPpsSource", [&] { return known && callTopApi("criSetSourceDspPps", channel, false, set) ? 0 : 1; },
        [&](Commands& to, Answered&) { return to.setPpsSource(channel, source, parameter); });
}

void Life::setPpsOutputMode(RadioChannel channel)
{
    const int mode = static_cast<int>(m_input.below(5)) - 1;
    const auto set = [&] { m_told.at(channel).ppsOutputMode = static_cast<std::uint32_t>(mode); };
    const bool known = mode >= 0 && mode <= 2;
    operate(
        "setPpsOutputMode", [&] { return known && callTopApi("criSetOutputModeDspPps", channel, false, set) ? 0 : 1; },
        [&](Commands& to, Answered&) { return to.setPpsOutputMode(channel, mode); });
}

void Life::startDpd(RadioChannel channel)
{
    const auto expectation = [&]
    {
        if (!hasChannel(channel))
        {
            return 1; // the channel has no controller
        }
        const std::optional<Strike> parameter = m_plan.strike("IDpdControllerSplit.getStartParameter", channel);
        const bool refused = (parameter && parameter->code != 1) || !stateOf(channel).modem.locked;
        return callPlatform("IDpdControllerSplit.start", channel, refused) ? 0 : 1;
    };
    operate("startDpd", expectation, [&](Commands& to, Answered&) { return to.startDpd(channel); });
    expect(!m_served || !hasChannel(channel) || stateOf(channel).dpd.running, "predistortion runs once it is started");
}

void Life::stopDpd(RadioChannel channel)
{
    operate(
        "stopDpd",
        [&] { return hasChannel(channel) && callPlatform("IDpdControllerSplit.stop", channel, false) ? 0 : 1; },
        [&](Commands& to, Answered&) { return to.stopDpd(channel); });
    expect(!m_served || !stateOf(channel).dpd.running, "predistortion stands once it is stopped");
}

void Life::setDpdCoefficients(RadioChannel channel)
{
    DpdCoeffs coefficients;
    coefficients.bytes.fill(m_input.byte());
    coefficients.bytes.back() = m_input.byte();
    const auto set = [&] { m_told.at(channel).coefficients = coefficients.bytes; };
    operate(
        "setDpdCoefficients",
        [&]
        { return hasChannel(channel) && callPlatform("IDpdControllerSplit.setCoeffs", channel, false, set) ? 0 : 1; },
        [&](Commands& to, Answered&) { return to.setDpdCoefficients(channel, coefficients); });
}

void Life::getDpdCoefficients(RadioChannel channel)
{
    const Answered answered = operate(
        "getDpdCoefficients",
        [&] { return hasChannel(channel) && callPlatform("IDpdControllerSplit.getCoeffs", channel, false) ? 0 : 1; },
        [&](Commands& to, Answered& a) { return to.getDpdCoefficients(channel, &a.coefficients); });
    expect(answered.coefficients.bytes == (m_served ? m_told.at(channel).coefficients : DpdCoeffs{}.bytes),
           "coefficients are read as they were written");
}

void Life::setXpicSlaveMute(RadioChannel channel)
{
    const std::uint8_t mute = m_input.byte();
    const auto set = [&] { m_told.at(channel).slaveMuted = mute != 0; };
    operate(
        "setXpicSlaveMute", [&] { return callTopApi("tiManageXpic", channel, false, set) ? 0 : 1; },
        [&](Commands& to, Answered&) { return to.setXpicSlaveMute(channel, mute); });
}

void Life::xpicAcquireStart(RadioChannel channel)
{
    const auto mode = static_cast<std::uint8_t>(m_input.below(5));
    const auto option = static_cast<std::uint8_t>(m_input.below(6));
    const auto expectation = [&]
    {
        const bool alone = m_node.link().numberOfChannels() == 1;
        const bool refused = mode > 2 || option > 3 || alone || m_told.at(channel).slaveMuted;
        return callTopApi("tiManageXpic", channel, refused) ? 0 : 1;
    };
    operate("xpicAcquireStart", expectation,
            [&](Commands& to, Answered&) { return to.xpicAcquireStart(channel, mode, option); });
    expect(!m_served || stateOf(channel).xpic.started(), "an acquisition runs once it is started");
}

void Life::getXpicPreamble(RadioChannel channel)
{
    const Answered answered = operate(
        "getXpicPreamble", [&] { return callTopApi("tiManageXpic", channel) ? 0 : 1; },
        [&](Commands& to, Answered& a) { return to.getXpicPreamble(channel, &a.preamble); });
    const std::uint32_t known = m_served ? m_told.at(channel).preamble : 0;
    expectSame("the preamble that is read", answered.result == 0 ? known : 99, answered.preamble);
}

void Life::setXpicPreamble(RadioChannel channel)
{
    const auto preamble = static_cast<std::uint8_t>(m_input.below(6));
    const auto set = [&] { m_told.at(channel).preamble = preamble; };
    operate(
        "setXpicPreamble", [&] { return callTopApi("tiManageXpic", channel, preamble > 3, set) ? 0 : 1; },
        [&](Commands& to, Answered&) { return to.setXpicPreamble(channel, preamble); });
}

void Life::getXpicStatus(RadioChannel channel)
{
    const Answered answered = operate(
        "getXpicStatus", [&] { return callTopApi("tiManageXpic", channel) ? 0 : 1; },
        [&](Commands& to, Answered& a) { return to.getXpicStatus(channel, a.report); });
    if (answered.result == 0)
    {
        expectReport(answered, "Modem XPIC Information:\n--- XPD [.1dB]                 : ");
    }
    else if (answered.result == 1)
    {
        expectSame("a report that failed", m_strike ? m_strike->text : "radio channel: found 2, expected 1",
                   answered.report);
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
