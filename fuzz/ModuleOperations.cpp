#include "fuzz/ModuleOperations.h"

#include "fuzz/EveryOperation.h"
#include "fuzz/Records.h"
#include "fuzz/Target.h"
#include "fuzz/expected/CtStatus.h"
#include "fuzz/expected/Operations.h"
#include "fuzz/expected/Texts.h"

namespace fuzz
{

using doubles::topApi;
using expected::Outcome;
using expected::Platform;

ModuleOperations::ModuleOperations(Input& input, RecordedModule& module) : m_input(input), m_module(module)
{
}

void ModuleOperations::operate()
{
    constexpr auto& operations = EveryOperation<ModuleOperations>;
    const auto operation = operations.at(m_input.below(operations.size()));
    (this->*operation)(1 + m_input.below(2));
}

void ModuleOperations::getCtStatus(RadioChannel channel)
{
    auto& status = topApi().radioChannelStatus;
    auto& capability = topApi().radioChannelCapability;
    fill(m_input, status);
    fill(m_input, capability);
    m_module.fillNearEnd();
    m_module.compare(
        "getCtStatus", [&](Commands& to, Outcome& got) { return to.getCtStatus(channel, got.report); },
        [&](const Platform& with, Outcome& wanted) { expected::getCtStatus(with, channel, wanted); });
    if (doubles::calls().size() == 3)
    {
        m_module.expectIdentityRequest(channel);
    }
    expectSame("printed status", expected::printed(status), status.printResponse());
    expectSame("printed capability", expected::printed(capability), capability.printResponse());
}

void ModuleOperations::getBcmModemStatus(RadioChannel channel)
{
    m_module.fillModemStatus();
    m_module.compare(
        "getBcmModemStatus", [&](Commands& to, Outcome& got) { return to.getBcmModemStatus(channel, got.report); },
        [&](const Platform& with, Outcome& wanted) { expected::getBcmModemStatus(with, channel, wanted); });
}

void ModuleOperations::getPpsCalibrationStatus(RadioChannel channel)
{
    auto& response = topApi().calibrationStatusDspPps;
    fillOutcome(m_input, response);
    response.calibrationStatus = m_input.unsignedNumber();
    response.calibrationFailureReason = m_input.unsignedNumber();
    m_module.compare(
        "getPpsCalibrationStatus",
        [&](Commands& to, Outcome& got) { return to.getPpsCalibrationStatus(channel, got.report); },
        [&](const Platform& with, Outcome& wanted) { expected::getPpsCalibrationStatus(with, channel, wanted); });
    expectSame("printed calibration status", "Sent\n", response.printResponse());
}

void ModuleOperations::getPpsHopLengthTime(RadioChannel channel)
{
    fillOutcome(m_input, topApi().hopLengthTimeDspPps);
    topApi().hopLengthTimeDspPps.hopLengthTime = m_input.unsignedNumber();
    m_module.compare(
        "getPpsHopLengthTime", [&](Commands& to, Outcome& got) { return to.getPpsHopLengthTime(channel, got.report); },
        [&](const Platform& with, Outcome& wanted) { expected::getPpsHopLengthTime(with, channel, wanted); });
}

void ModuleOperations::calibratePps(RadioChannel channel)
{
    fillOutcome(m_input, topApi().calibrateDspPps);
    const int mode = m_input.number();
    const std::uint16_t value = m_input.half();
    m_module.compare(
        "calibratePps", [&](Commands& to, Outcome&) { return to.calibratePps(channel, mode, value); },
        [&](const Platform& with, Outcome& wanted) { expected::calibratePps(with, channel, mode, value, wanted); });
    expectSame("printed standard response", "StandardResponse Sent\n", topApi().calibrateDspPps.printResponse());
}

void ModuleOperations::setPpsSource(RadioChannel channel)
{
    fillOutcome(m_input, topApi().setSourceDspPps);
    const int source = m_input.number();
    const int parameter = m_input.number();
    m_module.compare(
        "setPpsSource", [&](Commands& to, Outcome&) { return to.setPpsSource(channel, source, parameter); },
        [&](const Platform& with, Outcome& wanted)
        { expected::setPpsSource(with, channel, source, parameter, wanted); });
}

void ModuleOperations::setPpsOutputMode(RadioChannel channel)
{
    fillOutcome(m_input, topApi().setOutputModeDspPps);
    const int mode = m_input.number();
    m_module.compare(
        "setPpsOutputMode", [&](Commands& to, Outcome&) { return to.setPpsOutputMode(channel, mode); },
        [&](const Platform& with, Outcome& wanted) { expected::setPpsOutputMode(with, channel, mode, wanted); });
}

void ModuleOperations::startDpd(RadioChannel channel)
{
    m_module.fillDpd(channel);
    m_module.compare(
        "startDpd", [&](Commands& to, Outcome&) { return to.startDpd(channel); },
        [&](const Platform& with, Outcome& wanted) { expected::startDpd(with, channel, wanted); });
}

void ModuleOperations::stopDpd(RadioChannel channel)
{
    m_module.fillDpd(channel);
    m_module.compare(
        "stopDpd", [&](Commands& to, Outcome&) { return to.stopDpd(channel); },
        [&](const Platform& with, Outcome& wanted) { expected::stopDpd(with, channel, wanted); });
}

void ModuleOperations::setDpdCoefficients(RadioChannel channel)
{
    m_module.fillDpd(channel);
    const DpdCoeffs coefficients = coefficientsOf(m_input);
    m_module.compare(
        "setDpdCoefficients", [&](Commands& to, Outcome&) { return to.setDpdCoefficients(channel, coefficients); },
        [&](const Platform& with, Outcome& wanted)
        { expected::setDpdCoefficients(with, channel, coefficients, wanted); });
}

void ModuleOperations::getDpdCoefficients(RadioChannel channel)
{
    m_module.fillDpd(channel);
    m_module.compare(
        "getDpdCoefficients",
        [&](Commands& to, Outcome& got) { return to.getDpdCoefficients(channel, &got.coefficients); },
        [&](const Platform& with, Outcome& wanted) { expected::getDpdCoefficients(with, channel, wanted); });
}

void ModuleOperations::setXpicSlaveMute(RadioChannel channel)
{
    m_module.fillXpic();
    const std::uint8_t mute = m_input.byte();
    m_module.compare(
        "setXpicSlaveMute", [&](Commands& to, Outcome&) { return to.setXpicSlaveMute(channel, mute); },
        [&](const Platform& with, Outcome& wanted) { expected::setXpicSlaveMute(with, channel, mute, wanted); });
}

void ModuleOperations::xpicAcquireStart(RadioChannel channel)
{
    m_module.fillXpic();
    const std::uint8_t mode = m_input.byte();
    const std::uint8_t option = m_input.byte();
    m_module.compare(
        "xpicAcquireStart", [&](Commands& to, Outcome&) { return to.xpicAcquireStart(channel, mode, option); },
        [&](const Platform& with, Outcome& wanted)
        { expected::xpicAcquireStart(with, channel, mode, option, wanted); });
}

void ModuleOperations::getXpicPreamble(RadioChannel channel)
{
    m_module.fillXpic();
    m_module.compare(
        "getXpicPreamble", [&](Commands& to, Outcome& got) { return to.getXpicPreamble(channel, &got.preamble); },
        [&](const Platform& with, Outcome& wanted) { expected::getXpicPreamble(with, channel, wanted); });
}

void ModuleOperations::setXpicPreamble(RadioChannel channel)
{
    m_module.fillXpic();
    const std::uint8_t preamble = m_input.byte();
    m_module.compare(
        "setXpicPreamble", [&](Commands& to, Outcome&) { return to.setXpicPreamble(channel, preamble); },
        [&](const Platform& with, Outcome& wanted) { expected::setXpicPreamble(with, channel, preamble, wanted); });
}

void ModuleOperations::getXpicStatus(RadioChannel channel)
{
    m_module.fillXpic();
    m_module.compare(
        "getXpicStatus", [&](Commands& to, Outcome& got) { return to.getXpicStatus(channel, got.report); },
        [&](const Platform& with, Outcome& wanted) { expected::getXpicStatus(with, channel, wanted); });
}

} // namespace fuzz
