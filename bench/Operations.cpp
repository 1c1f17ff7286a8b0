#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "KelDebugCmd.h"
#include "bench/EmptyCommands.h"
#include "bench/Floor.h"
#include "bench/Measured.h"
#include "bench/Platform.h"
#include "framework/InterfaceBroker.h"
#include "kel_top_api/ModulationAndCode.h"
#include "node/trace/TraceLibrary.h"

namespace bench
{

namespace
{

using kel::device::kelDebugCmd::KelDebugCmd;
using kel_top_api::BaseResponse;
using kel_top_api::CriCalibrateDspPps;
using kel_top_api::CriSetOutputModeDspPps;
using kel_top_api::CriSetSourceDspPps;
using kel_top_api::TiManageXpic;

constexpr RadioChannel Channel = 1;

/// The module on the platform, and what callers hand to it.
struct Desk
{
    Desk()
    {
        auto& interfaces = InterfaceBroker::getInstance().interfaces();
        interfaces["IRlbspKelApi"] = boardSupport;
        interfaces["IDpdControllerSplit_1"] = dpdController;
        interfaces["IDpdControllerSplit_2"] = dpdController;
        nearEnd.info.minModulationAndCode = "4QAM_STRONG";
        nearEnd.info.maxModulationAndCode = "4096QAM";
        for (const auto& [channel, level] : node::trace::levels())
        {
            node::trace::setLevel(channel, 0);
        }
        if (module.onModuleInit() != 0)
        {
            throw std::runtime_error("the module does not start");
        }
    }

    IRlbspKelApi::KelDebugCmdCallback& commands()
    {
        return *boardSupport->installed;
    }

    std::shared_ptr<BoardSupport> boardSupport = std::make_shared<BoardSupport>();
    std::shared_ptr<DpdController> dpdController = std::make_shared<DpdController>();
    NearEnd nearEnd;
    ModemStatus modemStatus;
    KelDebugCmd module{2, nearEnd, modemStatus};

    std::string report;
    std::unique_ptr<EmptyCommands> empty = makeEmptyCommands();
    floor::Buffer buffer;
    unsigned char preamble = 0;
    DpdCoeffs coefficients;
};

Desk& desk()
{
    static Desk desk;
    return desk;
}

constexpr std::int32_t ApiFailure = 7;
constexpr std::int32_t InterfaceFailure = 0x8000;

/// Every service succeeds, or fails.
void answerAll(std::int32_t apiCode, std::int32_t interfaceCode)
{
    auto& api = topApi();
    const std::array<BaseResponse*, 8> responses = {
        &api.manageXpic,          &api.calibrateDspPps,         &api.setSourceDspPps,
        &api.setOutputModeDspPps, &api.calibrationStatusDspPps, &api.hopLengthTimeDspPps,
        &api.radioChannelStatus,  &api.radioChannelCapability};
    const std::string text = apiCode == 0 ? "done" : "no answer";
    for (BaseResponse* const response : responses)
    {
        doubles::answer(*response, apiCode, text);
    }
    desk().dpdController->result = static_cast<EDPDResult>(interfaceCode);
    desk().modemStatus.result = {interfaceCode, text};
    desk().nearEnd.result = {interfaceCode, text};
}

void succeed()
{
    answerAll(0, 0);
}

void fail()
{
    answerAll(ApiFailure, InterfaceFailure);
}

/// @param lines  of the list of powers: the first so many modulations and codes, over and over
std::function<void()> succeedWith(std::size_t lines)
{
    return [lines]
    {
        succeed();
        const auto table = getModulationAndCodeVector();
        const std::size_t known = table.size() - 1; // the last is "undefined"
        auto& powers = topApi().radioChannelCapability.AvailableMaxRFOutputPower;
        powers.clear();
        for (std::size_t line = 0; line < lines; ++line)
        {
            powers.push_back({table[line % known].code, 2420 - 20 * static_cast<std::int32_t>(line % known)});
        }
    };
}

/// What a command answers, and leaves in the report where it has one.
struct Expected
{
    int result;
    std::optional<std::string> report = std::nullopt;
};

/// Adds an operation's ways to the list.
class Adding
{
public:
    Adding(std::vector<Measured>& list, std::string name, std::function<void()> prepare = succeed)
        : m_list(list), m_name(std::move(name)), m_prepare(std::move(prepare))
    {
    }

    /// @param failed  the answer while all services fail
    template <typename Call>
    Adding& module(Call call, const Expected& failed = {1})
    {
        m_module = call;
        m_list.push_back(measured(m_name + "/module", checked(m_prepare, {0}), call));
        return failing("failed", fail, failed, call);
    }

    /// A way in which the operation fails.
    template <typename Call>
    Adding& failing(const std::string& way, const std::function<void()>& prepare, const Expected& expected, Call call)
    {
        m_list.push_back(measured(m_name + "/" + way, checked(prepare, expected), call));
        return *this;
    }

    template <typename Call>
    Adding& bare(Call call)
    {
        m_list.push_back(measured(m_name + "/bare", m_prepare, call));
        return *this;
    }

    template <typename Call>
    Adding& floor(Call call)
    {
        const auto prepare = [before = checked(m_prepare, {0}), name = m_name, call]
        {
            before();
            call(desk().buffer);
            if (fmt::to_string(desk().buffer) != desk().report)
            {
                throw std::runtime_error(name + ": found another text of the floor, expected the module's");
            }
        };
        const auto size = [call]
        {
            call(desk().buffer);
            return desk().buffer.size();
        };
        m_list.push_back(measured(m_name + "/floor", prepare, size));
        return *this;
    }

private:
    /// Prepares, and looks at what the module answers then.
    std::function<void()> checked(const std::function<void()>& prepare, const Expected& expected) const
    {
        return [prepare, expected, call = m_module, name = m_name]
        {
            prepare();
            const int result = call();
            if (result != expected.result || expected.report.value_or(desk().report) != desk().report)
            {
                throw std::runtime_error(name + ": found result " + std::to_string(result) + " and report \"" +
                                         desk().report + "\", expected another");
            }
        };
    }

    std::vector<Measured>& m_list;
    std::string m_name;
    std::function<void()> m_prepare;
    std::function<int()> m_module;
};

void addCtStatus(std::vector<Measured>& list)
{
    // A command that always succeeds: the report says what happened.
    const Expected failed = {0, "Data could not be retrieved!"};
    const auto get = [&commands = desk().commands(), &report = desk().report]
    { return commands.getCtStatus(Channel, report); };
    for (const std::size_t lines : {0U, 14U, 42U, 1000U})
    {
        const auto failLast = [prepare = succeedWith(lines)]
        {
            prepare();
            desk().nearEnd.result.resultCode = InterfaceFailure;
        };
        Adding(list, "getCtStatus:" + std::to_string(lines), succeedWith(lines))
            .module(get, failed)
            .failing("failed last", failLast, failed, get)
            .bare(
                []
                {
                    keep(kel_top_api::criGetRadioChannelStatus({Channel}));
                    keep(kel_top_api::criGetRadioChannelCapability({Channel}));
                    RadioChannelInfo info;
                    return desk().nearEnd.getRadioChannelInfo({Channel}, &info).resultCode;
                })
            .floor(
                [](floor::Buffer& buffer)
                {
                    floor::ctReport(buffer, Channel, topApi().radioChannelStatus, topApi().radioChannelCapability,
                                    desk().nearEnd.info);
                });
    }
}

TiManageXpic::Command xpicCommand()
{
    TiManageXpic::Command command;
    command.RadioChannelID = Channel;
    return command;
}

void addStatus(std::vector<Measured>& list)
{
    auto& commands = desk().commands();
    Adding(list, "getBcmModemStatus")
        .module([&commands] { return commands.getBcmModemStatus(Channel, desk().report); })
        .bare(
            []
            {
                DspModemStatus status;
                status.request = 2;
                keep(desk().modemStatus.getDspModemStatus(Channel, &status));
                return desk().modemStatus.toString(status);
            });
    Adding(list, "getPpsCalibrationStatus")
        .module([&commands] { return commands.getPpsCalibrationStatus(Channel, desk().report); })
        .bare([] { return kel_top_api::criGetCalibrationStatusDspPps({Channel}); })
        .floor([](floor::Buffer& buffer) { floor::ppsCalibrationReport(buffer, topApi().calibrationStatusDspPps); });
    Adding(list, "getPpsHopLengthTime")
        .module([&commands] { return commands.getPpsHopLengthTime(Channel, desk().report); })
        .bare([] { return kel_top_api::criGetHopLengthTimeDspPps({Channel}); })
        .floor([](floor::Buffer& buffer) { floor::ppsHopLengthReport(buffer, topApi().hopLengthTimeDspPps); });
    Adding(list, "getXpicStatus")
        .module([&commands] { return commands.getXpicStatus(Channel, desk().report); })
        .bare(
            []
            {
                auto command = xpicCommand();
                command.GetStatus = true;
                return kel_top_api::tiManageXpic(command);
            })
        .floor([](floor::Buffer& buffer) { floor::xpicStatusReport(buffer, topApi().manageXpic); });
}

void addPps(std::vector<Measured>& list)
{
    auto& commands = desk().commands();
    Adding(list, "calibratePps")
        .module([&commands] { return commands.calibratePps(Channel, 3, 65535); })
        .bare(
            [] {
                return kel_top_api::criCalibrateDspPps({Channel, CriCalibrateDspPps::CalibrationMode::Mode3, 65535});
            });
    Adding(list, "setPpsSource")
        .module([&commands] { return commands.setPpsSource(Channel, 2, -7); })
        .bare(
            [] {
                return kel_top_api::criSetSourceDspPps({Channel, CriSetSourceDspPps::Source::Source2, -7});
            });
    Adding(list, "setPpsOutputMode")
        .module([&commands] { return commands.setPpsOutputMode(Channel, 1); })
        .bare(
            [] {
                return kel_top_api::criSetOutputModeDspPps({Channel, CriSetOutputModeDspPps::OutputMode::Mode1});
            });
}

void addDpd(std::vector<Measured>& list)
{
    auto& commands = desk().commands();
    auto& empty = *desk().empty;
    IDpdControllerSplit& controller = *desk().dpdController;
    DpdCoeffs& coefficients = desk().coefficients;
    Adding(list, "startDpd")
        .module([&commands] { return commands.startDpd(Channel); })
        .bare(
            [&empty, &controller]
            {
                keep(empty.command(Channel));
                return controller.start(controller.getStartParameter());
            });
    Adding(list, "stopDpd")
        .module([&commands] { return commands.stopDpd(Channel); })
        .bare(
            [&empty, &controller]
            {
                keep(empty.command(Channel));
                return controller.stop();
            });
    Adding(list, "setDpdCoefficients")
        .module([&commands, &coefficients] { return commands.setDpdCoefficients(Channel, coefficients); })
        .bare(
            [&empty, &controller, &coefficients]
            {
                keep(empty.command(Channel, coefficients));
                return controller.setCoeffs(coefficients);
            });
    Adding(list, "getDpdCoefficients")
        .module([&commands, &coefficients] { return commands.getDpdCoefficients(Channel, &coefficients); })
        .bare(
            [&empty, &controller, &coefficients]
            {
                keep(empty.command(Channel, &coefficients));
                return controller.getCoeffs(&coefficients);
            });
}

void addXpic(std::vector<Measured>& list)
{
    auto& commands = desk().commands();
    Adding(list, "setXpicSlaveMute")
        .module([&commands] { return commands.setXpicSlaveMute(Channel, 1); })
        .bare(
            []
            {
                auto command = xpicCommand();
                command.SlaveMute = true;
                return kel_top_api::tiManageXpic(command);
            });
    Adding(list, "xpicAcquireStart")
        .module([&commands] { return commands.xpicAcquireStart(Channel, 2, 3); })
        .bare(
            []
            {
                auto command = xpicCommand();
                command.AcquireStart = true;
                command.AcquireMode = TiManageXpic::AcquireModeType::Mode2;
                command.AcquireOption = TiManageXpic::AcquireOptionType::Option3;
                return kel_top_api::tiManageXpic(command);
            });
    Adding(list, "getXpicPreamble")
        .module([&commands] { return commands.getXpicPreamble(Channel, &desk().preamble); })
        .bare(
            []
            {
                auto command = xpicCommand();
                command.GetPreamble = true;
                return kel_top_api::tiManageXpic(command);
            });
    Adding(list, "setXpicPreamble")
        .module([&commands] { return commands.setXpicPreamble(Channel, 3); })
        .bare(
            []
            {
                auto command = xpicCommand();
                command.Preamble = TiManageXpic::PreambleType::Preamble3;
                return kel_top_api::tiManageXpic(command);
            });
}

} // namespace

std::vector<Measured> operations()
{
    std::vector<Measured> list;
    addCtStatus(list);
    addStatus(list);
    addPps(list);
    addDpd(list);
    addXpic(list);
    return list;
}

std::vector<Measured> records()
{
    std::vector<Measured> list;
    const auto add = [&](const std::string& name, auto& record, const std::function<void()>& prepare)
    {
        list.push_back(measured("print " + name + "/module", prepare, [&record] { return record.printResponse(); }));
        const auto floor = [&record]
        {
            floor::printed(desk().buffer, record);
            return desk().buffer.size();
        };
        const auto compare = [&record, name, prepare, floor]
        {
            prepare();
            floor();
            if (fmt::to_string(desk().buffer) != record.printResponse())
            {
                throw std::runtime_error(name + ": found another text of the floor, expected the record's");
            }
        };
        list.push_back(measured("print " + name + "/floor", compare, floor));
    };
    add("StandardResponse", topApi().calibrateDspPps, succeed);
    add("CriGetHopLengthTimeDspPps", topApi().hopLengthTimeDspPps, succeed);
    add("TiManageXpic", topApi().manageXpic, succeed);
    add("CriGetRadioChannelStatus", topApi().radioChannelStatus, succeed);
    for (const std::size_t lines : {0U, 42U})
    {
        add("CriGetRadioChannelCapability:" + std::to_string(lines), topApi().radioChannelCapability,
            succeedWith(lines));
    }
    list.push_back(measured("getModulationAndCodeVector/module", succeed, getModulationAndCodeVector));
    return list;
}

} // namespace bench
