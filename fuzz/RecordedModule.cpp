#include "fuzz/RecordedModule.h"

#include <sstream>

#include "doubles/RecordingFramework.h"
#include "fuzz/Records.h"
#include "fuzz/Target.h"
#include "fuzz/expected/CtStatus.h"
#include "fuzz/expected/Texts.h"

namespace fuzz
{

using doubles::topApi;
using expected::Outcome;
using expected::Platform;

namespace
{

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

VemTraceLevel levelOf(Input& input)
{
    static constexpr std::array<VemTraceLevel, 5> Levels = {3, 1, 255, 0, -1};
    return Levels.at(input.below(Levels.size()));
}

bool traced(const char* channel)
{
    return doubles::trace().levels.at(channel) > 0;
}

} // namespace

RecordedModule::RecordedModule(Input& input) : m_input(input)
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

RecordedModule::~RecordedModule()
{
    m_module.reset();
    InterfaceBroker::getInstance().interfaces().clear();
}

bool RecordedModule::offer(const std::string& key, const std::shared_ptr<IInterface>& service)
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

bool RecordedModule::start()
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
        expect((m_boardSupport->installed != nullptr) == m_start.installed, "the callback is installed");
    }
    return m_start.installed;
}

Platform RecordedModule::platform() const
{
    return {topApi(),
            m_modemStatus,
            m_nearEnd,
            {m_start.found[0] ? m_dpd[0].get() : nullptr, m_start.found[1] ? m_dpd[1].get() : nullptr},
            traced(doubles::KelDebugCmdChannel),
            traced(doubles::GetCtStatusChannel)};
}

void RecordedModule::fillDpd(RadioChannel channel)
{
    doubles::RecordingDpdController& controller = *m_dpd.at(channel - 1);
    controller.result = EDPDResult{m_input.number()};
    controller.startParameter = m_input.unsignedNumber();
    controller.coefficients = coefficientsOf(m_input);
}

void RecordedModule::fillModemStatus()
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

void RecordedModule::fillXpic()
{
    auto& response = topApi().manageXpic;
    fill(m_input, response);
    expectSame("printed canceller", expected::printed(response), response.printResponse());
}

void RecordedModule::fillNearEnd()
{
    m_nearEnd.result.resultCode = m_input.number();
    m_nearEnd.result.errorText = m_input.text();
    m_nearEnd.info.radioChannelId = m_input.number();
    m_nearEnd.info.radioFrameId = m_input.number();
    m_nearEnd.info.minModulationAndCode = m_input.text();
    m_nearEnd.info.maxModulationAndCode = m_input.text();
    m_nearEnd.info.text6 = m_input.text();
}

void RecordedModule::compare(const char* name, const std::function<int(Commands&, Outcome&)>& operation,
                             const std::function<void(const Platform&, Outcome&)>& expectation)
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

/// The request's bytes, and the record that the near end is given to fill.
void RecordedModule::expectIdentityRequest(RadioChannel channel) const
{
    expect(expected::identityRequest(channel) == m_nearEnd.requestBytes, "bytes of the identity request",
           std::to_string(channel));
    const RadioChannelInfo& given = m_nearEnd.received;
    expect(given.radioChannelId == 0 && given.flag2 == 0 && given.radioFrameId == 0 &&
               given.minModulationAndCode.empty() && given.maxModulationAndCode.empty() && given.text6.empty() &&
               given.number7 == 0 && given.number8 == 0 && given.number9 == 0 && given.number10 == 0,
           "the identity record is empty before it is filled");
}

} // namespace fuzz
