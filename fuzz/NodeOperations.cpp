#include "fuzz/NodeOperations.h"

#include <cmath>

#include <fmt/format.h>

#include "fuzz/Target.h"

namespace fuzz
{

NodeOperations::NodeOperations(Input& input, KnownNode& node) : m_input(input), m_node(node)
{
}

bool NodeOperations::callDpd(const char* call, RadioChannel channel, const std::function<void()>& done)
{
    return m_node.hasChannel(channel) && m_node.callPlatform(call, channel, false, done);
}

void NodeOperations::getCtStatus(RadioChannel channel)
{
    bool complete = false;
    bool served = false;
    const auto expectation = [&]
    {
        const bool hasStatus = m_node.callTopApi("criGetRadioChannelStatus", channel);
        served = m_node.served();
        complete = hasStatus && m_node.callTopApi("criGetRadioChannelCapability", channel) &&
                   m_node.callPlatform("ITiManageRadioChannelNearEnd.getRadioChannelInfo", channel,
                                       !m_node.hasChannel(channel));
        return 0;
    };
    const Answered answered = m_node.operate(
        "getCtStatus", expectation, [&](Commands& to, Answered& a) { return to.getCtStatus(channel, a.report); });
    if (complete)
    {
        const std::string line = fmt::format("\n{:=>37}\nCT info channel {}\n{:->37}\n\n", "", channel, "");
        expectReport(answered, line);
        expectCtLines(answered.report);
        if (served)
        {
            expectCtState(answered.report, m_node.link().snapshot(channel));
        }
    }
    else if (answered.result)
    {
        expectSame("a report that failed", NoData, answered.report);
    }
}

void NodeOperations::getBcmModemStatus(RadioChannel channel)
{
    std::optional<std::string> text;
    const auto expectation = [&]
    {
        if (!m_node.callPlatform("ITiGetDspModemStatus.getDspModemStatus", channel, !m_node.hasChannel(channel)))
        {
            return 1;
        }
        // A record that no service filled tells of no channel.
        if (const auto strike = m_node.strike("ITiGetDspModemStatus.toString", m_node.served() ? channel : 0))
        {
            text = strike->text;
        }
        return 0;
    };
    const Answered answered =
        m_node.operate("getBcmModemStatus", expectation,
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

void NodeOperations::getPpsCalibrationStatus(RadioChannel channel)
{
    const Answered answered = m_node.operate(
        "getPpsCalibrationStatus", [&] { return m_node.callTopApi("criGetCalibrationStatusDspPps", channel) ? 0 : 1; },
        [&](Commands& to, Answered& a) { return to.getPpsCalibrationStatus(channel, a.report); });
    expectReport(answered, "PPS PPs Calibration: ");
}

void NodeOperations::getPpsHopLengthTime(RadioChannel channel)
{
    std::string begin = "PPS hop length time[nsec]: ";
    const auto expectation = [&]
    {
        const bool succeeds = m_node.callTopApi("criGetHopLengthTimeDspPps", channel);
        const double time_ns = m_node.served() ? m_node.link().snapshot(channel).readings.hopLengthTime_ns : 0;
        begin += fmt::format("{}\n", std::lround(time_ns));
        return succeeds ? 0 : 1;
    };
    const Answered answered =
        m_node.operate("getPpsHopLengthTime", expectation,
                       [&](Commands& to, Answered& a) { return to.getPpsHopLengthTime(channel, a.report); });
    expectReport(answered, begin);
}

void NodeOperations::calibratePps(RadioChannel channel)
{
    const int mode = m_input.below(8) == 7 ? m_input.number() : static_cast<int>(m_input.below(4));
    const std::uint16_t time_ns = m_input.half();
    const bool known = mode >= 0 && mode <= 3;
    m_node.operate(
        "calibratePps", [&] { return known && m_node.callTopApi("criCalibrateDspPps", channel) ? 0 : 1; },
        [&](Commands& to, Answered&) { return to.calibratePps(channel, mode, time_ns); });
}

void NodeOperations::setPpsSource(RadioChannel channel)
{
    const int source = m_input.number();
    const int parameter = m_input.number();
    const auto set = [&]
    {
        m_node.told(channel).ppsSource = static_cast<std::uint32_t>(source);
        m_node.told(channel).ppsSourceParameter = parameter;
    };
    const bool known = source >= 0 && source <= 2;
    m_node.operate(
        "setPpsSource", [&] { return known && m_node.callTopApi("criSetSourceDspPps", channel, false, set) ? 0 : 1; },
        [&](Commands& to, Answered&) { return to.setPpsSource(channel, source, parameter); });
}

void NodeOperations::setPpsOutputMode(RadioChannel channel)
{
    const int mode = static_cast<int>(m_input.below(5)) - 1;
    const auto set = [&] { m_node.told(channel).ppsOutputMode = static_cast<std::uint32_t>(mode); };
    const bool known = mode >= 0 && mode <= 2;
    m_node.operate(
        "setPpsOutputMode",
        [&] { return known && m_node.callTopApi("criSetOutputModeDspPps", channel, false, set) ? 0 : 1; },
        [&](Commands& to, Answered&) { return to.setPpsOutputMode(channel, mode); });
}

void NodeOperations::startDpd(RadioChannel channel)
{
    const auto expectation = [&]
    {
        if (!m_node.hasChannel(channel))
        {
            return 1; // the channel has no controller
        }
        const std::optional<Strike> parameter = m_node.strike("IDpdControllerSplit.getStartParameter", channel);
        const bool refused = (parameter && parameter->code != 1) || !m_node.stateOf(channel).modem.locked;
        return m_node.callPlatform("IDpdControllerSplit.start", channel, refused) ? 0 : 1;
    };
    m_node.operate("startDpd", expectation, [&](Commands& to, Answered&) { return to.startDpd(channel); });
    expect(!m_node.served() || !m_node.hasChannel(channel) || m_node.stateOf(channel).dpd.running,
           "predistortion runs once it is started");
}

void NodeOperations::stopDpd(RadioChannel channel)
{
    m_node.operate(
        "stopDpd", [&] { return callDpd("IDpdControllerSplit.stop", channel) ? 0 : 1; },
        [&](Commands& to, Answered&) { return to.stopDpd(channel); });
    expect(!m_node.served() || !m_node.stateOf(channel).dpd.running, "predistortion stands once it is stopped");
}

void NodeOperations::setDpdCoefficients(RadioChannel channel)
{
    DpdCoeffs coefficients;
    coefficients.bytes.fill(m_input.byte());
    coefficients.bytes.back() = m_input.byte();
    const auto set = [&] { m_node.told(channel).coefficients = coefficients.bytes; };
    m_node.operate(
        "setDpdCoefficients", [&] { return callDpd("IDpdControllerSplit.setCoeffs", channel, set) ? 0 : 1; },
        [&](Commands& to, Answered&) { return to.setDpdCoefficients(channel, coefficients); });
}

void NodeOperations::getDpdCoefficients(RadioChannel channel)
{
    const Answered answered = m_node.operate(
        "getDpdCoefficients", [&] { return callDpd("IDpdControllerSplit.getCoeffs", channel) ? 0 : 1; },
        [&](Commands& to, Answered& a) { return to.getDpdCoefficients(channel, &a.coefficients); });
    expect(answered.coefficients.bytes == (m_node.served() ? m_node.told(channel).coefficients : DpdCoeffs{}.bytes),
           "coefficients are read as they were written");
}

void NodeOperations::setXpicSlaveMute(RadioChannel channel)
{
    const std::uint8_t mute = m_input.byte();
    const auto set = [&] { m_node.told(channel).slaveMuted = mute != 0; };
    m_node.operate(
        "setXpicSlaveMute", [&] { return m_node.callTopApi("tiManageXpic", channel, false, set) ? 0 : 1; },
        [&](Commands& to, Answered&) { return to.setXpicSlaveMute(channel, mute); });
}

void NodeOperations::xpicAcquireStart(RadioChannel channel)
{
    const auto mode = static_cast<std::uint8_t>(m_input.below(5));
    const auto option = static_cast<std::uint8_t>(m_input.below(6));
    const auto expectation = [&]
    {
        const bool alone = m_node.link().numberOfChannels() == 1;
        const bool refused = mode > 2 || option > 3 || alone || m_node.told(channel).slaveMuted;
        return m_node.callTopApi("tiManageXpic", channel, refused) ? 0 : 1;
    };
    m_node.operate("xpicAcquireStart", expectation,
                   [&](Commands& to, Answered&) { return to.xpicAcquireStart(channel, mode, option); });
    expect(!m_node.served() || m_node.stateOf(channel).xpic.started(), "an acquisition runs once it is started");
}

void NodeOperations::getXpicPreamble(RadioChannel channel)
{
    const Answered answered = m_node.operate(
        "getXpicPreamble", [&] { return m_node.callTopApi("tiManageXpic", channel) ? 0 : 1; },
        [&](Commands& to, Answered& a) { return to.getXpicPreamble(channel, &a.preamble); });
    const std::uint32_t known = m_node.served() ? m_node.told(channel).preamble : 0;
    expectSame("the preamble that is read", answered.result == 0 ? known : 99, answered.preamble);
}

void NodeOperations::setXpicPreamble(RadioChannel channel)
{
    const auto preamble = static_cast<std::uint8_t>(m_input.below(6));
    const auto set = [&] { m_node.told(channel).preamble = preamble; };
    m_node.operate(
        "setXpicPreamble", [&] { return m_node.callTopApi("tiManageXpic", channel, preamble > 3, set) ? 0 : 1; },
        [&](Commands& to, Answered&) { return to.setXpicPreamble(channel, preamble); });
}

void NodeOperations::getXpicStatus(RadioChannel channel)
{
    const Answered answered = m_node.operate(
        "getXpicStatus", [&] { return m_node.callTopApi("tiManageXpic", channel) ? 0 : 1; },
        [&](Commands& to, Answered& a) { return to.getXpicStatus(channel, a.report); });
    if (answered.result == 0)
    {
        expectReport(answered, "Modem XPIC Information:\n--- XPD [.1dB]                 : ");
    }
    else if (answered.result == 1)
    {
        expectSame("a report that failed",
                   m_node.lastStrike() ? m_node.lastStrike()->text : "radio channel: found 2, expected 1",
                   answered.report);
    }
}

} // namespace fuzz
