// Whatever the platform answers, the module asks, reports and traces what the second implementation in expected/ says.

#include <cstring>
#include <memory>
#include <sstream>

#include "KelDebugCmd.h"
#include "doubles/RecordingFramework.h"
#include "fuzz/Input.h"
#include "fuzz/Records.h"
#include "fuzz/Target.h"
#include "fuzz/expected/CtStatus.h"
#include "fuzz/expected/Operations.h"
#include "fuzz/expected/StartUp.h"
#include "fuzz/expected/Texts.h"

namespace
{

using doubles::topApi;
using expected::Outcome;
using expected::Platform;
using fuzz::coefficientsOf;
using fuzz::expectSame;
using fuzz::fill;
using fuzz::fillOutcome;
using fuzz::Input;

constexpr int MostSteps = 64;

std::string textOf(const doubles::CallLog& calls)
{
    std::string text;
    for (const std::string& call : calls)
    {
        text += call + "\n";
    }
    return text;
}

std::string textOf(const std::vector<doubles::TraceMessage>& messages)
{
    std::ostringstream text;
    for (doubles::TraceMessage message : messages)
    {
        message.line = 0; // sources move
        text << message << "\n";
    }
    return text.str();
}

void forgetWhatWasSeen()
{
    doubles::calls().clear();
    doubles::trace().messages.clear();
    doubles::trace().discarded.clear();
}

void expectSeen(const Outcome& wanted)
{
    expectSame("calls", textOf(wanted.calls), textOf(doubles::calls()));
    expectSame("trace", textOf(wanted.messages), textOf(doubles::trace().messages));
    expectSame("discarded trace", wanted.discarded, doubles::trace().discarded);
    expectSame("text outside of any message", "", doubles::trace().outsideOfAny);
}

/// The module on a recording platform that the input decides.
class Module
{
public:
    explicit Module(Input& input) : m_input(input)
    {
        doubles::topApi() = {};
        doubles::framework() = {};
        doubles::trace().reset();
        auto& levels = doubles::trace().levels;
        levels.at(doubles::KelDebugCmdChannel) = levelOf(input);
        levels.at(doubles::GetCtStatusChannel) = levelOf(input);
        m_broker.boardSupport = offer("IRlbspKelApi", m_boardSupport);
        m_broker.dpd[0] = offer("IDpdControllerSplit_1", m_dpd[0]);
        m_broker.dpd[1] = offer("IDpdControllerSplit_2", m_dpd[1]);
    }

    Module(const Module&) = delete;
    Module& operator=(const Module&) = delete;

    ~Module()
    {
        m_module.reset();
        InterfaceBroker::getInstance().interfaces().clear();
    }

    void live()
    {
        start();
        for (int step = 0; m_start.installed && !m_input.atEnd() && step < MostSteps; ++step)
        {
            operate();
        }
    }

private:
    static VemTraceLevel levelOf(Input& input)
    {
        static constexpr std::array<VemTraceLevel, 5> Levels = {3, 1, 255, 0, -1};
        return Levels.at(input.below(Levels.size()));
    }

    bool traced(const char* channel) const
    {
        return doubles::trace().levels.at(channel) > 0;
    }

    /// @return whether it is what the module looks for
    bool offer(const std::string& key, const std::shared_ptr<IInterface>& service)
    {
        auto& interfaces = InterfaceBroker::getInstance().interfaces();
        switch (m_input.below(8)) // mostly as it should be
        {
        case 5:
            return false;
        case 6:
            interfaces[key] = nullptr;
            return false;
        case 7:
            interfaces[key] = std::make_shared<doubles::OtherInterface>();
            return false;
        default:
            interfaces[key] = service;
            return true;
        }
    }

    void start()
    {
        static constexpr std::array<int, 6> Numbers = {2, 1, 0, 3, -1, 255};
        const int channels = Numbers.at(m_input.below(Numbers.size()));
        forgetWhatWasSeen();
        m_module = std::make_unique<kel::device::kelDebugCmd::KelDebugCmd>(channels, m_nearEnd, m_modemStatus);
        expectSame("calls of the construction",
                   "ModuleInterface(KelDebugCmd)\nCModuleManager.GetInstance()\n"
                   "CModuleManager.RegisterModule(KelDebugCmd)\n",
                   textOf(doubles::calls()));
        // A node may initialise its modules again.
        for (int times = m_input.flag() ? 2 : 1; times > 0; --times)
        {
            forgetWhatWasSeen();
            m_start = expected::onModuleInit(channels, m_broker, traced(doubles::KelDebugCmdChannel));
            expectSame("result of onModuleInit()", m_start.result, m_module->onModuleInit());
            expectSeen(m_start.seen);
            fuzz::expect((m_boardSupport->installed != nullptr) == m_start.installed, "the callback is installed");
        }
    }

    Platform platform() const
    {
        return {topApi(),
                m_modemStatus,
                m_nearEnd,
                {m_start.found[0] ? m_dpd[0].get() : nullptr, m_start.found[1] ? m_dpd[1].get() : nullptr},
                traced(doubles::KelDebugCmdChannel),
                traced(doubles::GetCtStatusChannel)};
    }

    void operate();

    // The operations: each on what the input puts into the records that it reads.
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

    void fillDpd(RadioChannel channel);
    void fillModemStatus();
    void fillNearEnd();
    void fillXpic();
    void expectIdentityRequest(RadioChannel channel) const;

    /// Calls the operation on both sides and compares all that comes of it.
    template <typename Operate, typename Expect>
    void compare(const char* name, const Operate& operation, const Expect& expectation)
    {
        forgetWhatWasSeen();
        Outcome wanted;
        wanted.report = "what was there before";
        wanted.preamble = 99;
        Outcome got = wanted;
        expectation(platform(), wanted);
        got.result = operation(*m_boardSupport->installed, got);
        expectSame(name, wanted.result, got.result);
        expectSame(name, wanted.report, got.report);
        expectSame(name, wanted.preamble, got.preamble);
        expectSame(name, doubles::hex(wanted.coefficients), doubles::hex(got.coefficients));
        expectSeen(wanted);
    }

    using Commands = IRlbspKelApi::KelDebugCmdCallback;

    Input& m_input;
    std::shared_ptr<doubles::RecordingBoardSupport> m_boardSupport = std::make_shared<doubles::RecordingBoardSupport>();
    std::array<std::shared_ptr<doubles::RecordingDpdController>, 2> m_dpd = {
        std::make_shared<doubles::RecordingDpdController>("IDpdControllerSplit_1"),
        std::make_shared<doubles::RecordingDpdController>("IDpdControllerSplit_2")};
    doubles::RecordingNearEnd m_nearEnd;
    doubles::RecordingModemStatus m_modemStatus;
    expected::Broker m_broker{};
    expected::StartUp m_start;
    std::unique_ptr<kel::device::kelDebugCmd::KelDebugCmd> m_module;
};

void Module::fillDpd(RadioChannel channel)
{
    doubles::RecordingDpdController& controller = *m_dpd.at(channel - 1);
    controller.result = EDPDResult{m_input.number()};
    controller.startParameter = m_input.unsignedNumber();
    controller.coefficients = coefficientsOf(m_input);
}

void Module::fillModemStatus()
{
    m_modemStatus.result.resultCode = m_input.number();
    m_modemStatus.result.errorText = m_input.text();
    m_modemStatus.filled.request = m_input.unsignedNumber();
    for (std::uint32_t& word : m_modemStatus.filled.content)
    {
        word = m_input.byte();
    }
    m_modemStatus.text = m_input.text();
}

void Module::fillXpic()
{
    auto& response = topApi().manageXpic;
    fill(m_input, response);
    expectSame("printed canceller", expected::printed(response), response.printResponse());
}

void Module::fillNearEnd()
{
    m_nearEnd.result.resultCode = m_input.number();
    m_nearEnd.result.errorText = m_input.text();
    m_nearEnd.info.radioChannelId = m_input.number();
    m_nearEnd.info.radioFrameId = m_input.number();
    m_nearEnd.info.minModulationAndCode = m_input.text();
    m_nearEnd.info.maxModulationAndCode = m_input.text();
    m_nearEnd.info.text6 = m_input.text();
}

/// The request's bytes but those that nobody reads, and the record that the near end is given to fill.
void Module::expectIdentityRequest(RadioChannel channel) const
{
    std::array<unsigned char, 88> wanted{};
    const auto put = [&](std::size_t offset, std::uint32_t word)
    { std::memcpy(&wanted.at(offset), &word, sizeof word); };
    put(0, channel);
    wanted[4] = 1;
    put(20, 143);
    put(28, 143);
    put(36, 1000);
    wanted[60] = 1;
    for (std::size_t offset = 0; offset < wanted.size(); ++offset)
    {
        const bool read = (offset < 62 || offset >= 68) && (offset < 69 || offset >= 75);
        fuzz::expect(!read || wanted.at(offset) == m_nearEnd.requestBytes.at(offset), "bytes of the identity request",
                     std::to_string(offset));
    }
    const RadioChannelInfo& given = m_nearEnd.received;
    fuzz::expect(given.radioChannelId == 0 && given.flag2 == 0 && given.radioFrameId == 0 &&
                     given.minModulationAndCode.empty() && given.maxModulationAndCode.empty() && given.text6.empty() &&
                     given.number7 == 0 && given.number8 == 0 && given.number9 == 0 && given.number10 == 0,
                 "the identity record is empty before it is filled");
}

void Module::operate()
{
    static constexpr std::array<void (Module::*)(RadioChannel), 16> Operations = {
        &Module::getCtStatus,         &Module::getBcmModemStatus,  &Module::getPpsCalibrationStatus,
        &Module::getPpsHopLengthTime, &Module::calibratePps,       &Module::setPpsSource,
        &Module::setPpsOutputMode,    &Module::startDpd,           &Module::stopDpd,
        &Module::setDpdCoefficients,  &Module::getDpdCoefficients, &Module::setXpicSlaveMute,
        &Module::xpicAcquireStart,    &Module::getXpicPreamble,    &Module::setXpicPreamble,
        &Module::getXpicStatus};
    const auto operation = Operations.at(m_input.below(Operations.size()));
    (this->*operation)(1 + m_input.below(2));
}

void Module::getCtStatus(RadioChannel channel)
{
    auto& status = topApi().radioChannelStatus;
    auto& capability = topApi().radioChannelCapability;
    fill(m_input, status);
    fill(m_input, capability);
    fillNearEnd();
    compare(
        "getCtStatus", [&](Commands& to, Outcome& got) { return to.getCtStatus(channel, got.report); },
        [&](const Platform& with, Outcome& wanted) { expected::getCtStatus(with, channel, wanted); });
    if (doubles::calls().size() == 3)
    {
        expectIdentityRequest(channel);
    }
    expectSame("printed status", expected::printed(status), status.printResponse());
    expectSame("printed capability", expected::printed(capability), capability.printResponse());
}

void Module::getBcmModemStatus(RadioChannel channel)
{
    fillModemStatus();
    compare(
        "getBcmModemStatus", [&](Commands& to, Outcome& got) { return to.getBcmModemStatus(channel, got.report); },
        [&](const Platform& with, Outcome& wanted) { expected::getBcmModemStatus(with, channel, wanted); });
}

void Module::getPpsCalibrationStatus(RadioChannel channel)
{
    auto& response = topApi().calibrationStatusDspPps;
    fillOutcome(m_input, response);
    response.calibrationStatus = m_input.unsignedNumber();
    response.calibrationFailureReason = m_input.unsignedNumber();
    compare(
        "getPpsCalibrationStatus",
        [&](Commands& to, Outcome& got) { return to.getPpsCalibrationStatus(channel, got.report); },
        [&](const Platform& with, Outcome& wanted) { expected::getPpsCalibrationStatus(with, channel, wanted); });
    expectSame("printed calibration status", "Sent\n", response.printResponse());
}

void Module::getPpsHopLengthTime(RadioChannel channel)
{
    fillOutcome(m_input, topApi().hopLengthTimeDspPps);
    topApi().hopLengthTimeDspPps.hopLengthTime = m_input.unsignedNumber();
    compare(
        "getPpsHopLengthTime", [&](Commands& to, Outcome& got) { return to.getPpsHopLengthTime(channel, got.report); },
        [&](const Platform& with, Outcome& wanted) { expected::getPpsHopLengthTime(with, channel, wanted); });
}

void Module::calibratePps(RadioChannel channel)
{
    fillOutcome(m_input, topApi().calibrateDspPps);
    const int mode = m_input.number();
    const std::uint16_t value = m_input.half();
    compare(
        "calibratePps", [&](Commands& to, Outcome&) { return to.calibratePps(channel, mode, value); },
        [&](const Platform& with, Outcome& wanted) { expected::calibratePps(with, channel, mode, value, wanted); });
    expectSame("printed standard response", "StandardResponse Sent\n", topApi().calibrateDspPps.printResponse());
}

void Module::setPpsSource(RadioChannel channel)
{
    fillOutcome(m_input, topApi().setSourceDspPps);
    const int source = m_input.number();
    const int parameter = m_input.number();
    compare(
        "setPpsSource", [&](Commands& to, Outcome&) { return to.setPpsSource(channel, source, parameter); },
        [&](const Platform& with, Outcome& wanted)
        { expected::setPpsSource(with, channel, source, parameter, wanted); });
}

void Module::setPpsOutputMode(RadioChannel channel)
{
    fillOutcome(m_input, topApi().setOutputModeDspPps);
    const int mode = m_input.number();
    compare(
        "setPpsOutputMode", [&](Commands& to, Outcome&) { return to.setPpsOutputMode(channel, mode); },
        [&](const Platform& with, Outcome& wanted) { expected::setPpsOutputMode(with, channel, mode, wanted); });
}

void Module::startDpd(RadioChannel channel)
{
    fillDpd(channel);
    compare(
        "startDpd", [&](Commands& to, Outcome&) { return to.startDpd(channel); },
        [&](const Platform& with, Outcome& wanted) { expected::startDpd(with, channel, wanted); });
}

void Module::stopDpd(RadioChannel channel)
{
    fillDpd(channel);
    compare(
        "stopDpd", [&](Commands& to, Outcome&) { return to.stopDpd(channel); },
        [&](const Platform& with, Outcome& wanted) { expected::stopDpd(with, channel, wanted); });
}

void Module::setDpdCoefficients(RadioChannel channel)
{
    fillDpd(channel);
    const DpdCoeffs coefficients = coefficientsOf(m_input);
    compare(
        "setDpdCoefficients", [&](Commands& to, Outcome&) { return to.setDpdCoefficients(channel, coefficients); },
        [&](const Platform& with, Outcome& wanted)
        { expected::setDpdCoefficients(with, channel, coefficients, wanted); });
}

void Module::getDpdCoefficients(RadioChannel channel)
{
    fillDpd(channel);
    compare(
        "getDpdCoefficients",
        [&](Commands& to, Outcome& got) { return to.getDpdCoefficients(channel, &got.coefficients); },
        [&](const Platform& with, Outcome& wanted) { expected::getDpdCoefficients(with, channel, wanted); });
}

void Module::setXpicSlaveMute(RadioChannel channel)
{
    fillXpic();
    const std::uint8_t mute = m_input.byte();
    compare(
        "setXpicSlaveMute", [&](Commands& to, Outcome&) { return to.setXpicSlaveMute(channel, mute); },
        [&](const Platform& with, Outcome& wanted) { expected::setXpicSlaveMute(with, channel, mute, wanted); });
}

void Module::xpicAcquireStart(RadioChannel channel)
{
    fillXpic();
    const std::uint8_t mode = m_input.byte();
    const std::uint8_t option = m_input.byte();
    compare(
        "xpicAcquireStart", [&](Commands& to, Outcome&) { return to.xpicAcquireStart(channel, mode, option); },
        [&](const Platform& with, Outcome& wanted)
        { expected::xpicAcquireStart(with, channel, mode, option, wanted); });
}

void Module::getXpicPreamble(RadioChannel channel)
{
    fillXpic();
    compare(
        "getXpicPreamble", [&](Commands& to, Outcome& got) { return to.getXpicPreamble(channel, &got.preamble); },
        [&](const Platform& with, Outcome& wanted) { expected::getXpicPreamble(with, channel, wanted); });
}

void Module::setXpicPreamble(RadioChannel channel)
{
    fillXpic();
    const std::uint8_t preamble = m_input.byte();
    compare(
        "setXpicPreamble", [&](Commands& to, Outcome&) { return to.setXpicPreamble(channel, preamble); },
        [&](const Platform& with, Outcome& wanted) { expected::setXpicPreamble(with, channel, preamble, wanted); });
}

void Module::getXpicStatus(RadioChannel channel)
{
    fillXpic();
    compare(
        "getXpicStatus", [&](Commands& to, Outcome& got) { return to.getXpicStatus(channel, got.report); },
        [&](const Platform& with, Outcome& wanted) { expected::getXpicStatus(with, channel, wanted); });
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Input input(data, size);
    Module(input).live();
    return 0;
}
