#include <functional>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "node/services/FaultOf.h"
#include "node/startup/StartUpTest.h"

using node::services::PlannedException;
using node::startup::Node;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

namespace
{

using Commands = IRlbspKelApi::KelDebugCmdCallback;

/// What an operator has in front of him when a command ends.
struct Seen
{
    int result = 0;
    std::string report = "as before";

    bool operator==(const Seen&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Seen& seen)
{
    return out << seen.result << " \"" << seen.report << "\"";
}

const std::string NoData = "Data could not be retrieved!";
const std::string AsBefore = "as before";
const std::string Place = "[KEL.KDC.KelDebugCmd] level 1, src/Device/KelDebugCmd/private/KelDebugCmd:1 ";

/// A command that makes a call, and what becomes of it when the call is refused.
struct CommandRow
{
    std::string call;
    std::string command;
    std::function<int(Commands&, std::string&)> run;
    Seen refused;
    std::string trace; ///< empty: none
};

std::ostream& operator<<(std::ostream& out, const CommandRow& row)
{
    return out << row.call << " in " << row.command;
}

template <typename Command>
CommandRow xpicRow(const std::string& name, const Command& command)
{
    return {"tiManageXpic", name, command, {1, AsBefore}, Place + name + ": planned fault\n"};
}

template <typename Command>
CommandRow ppsRow(const std::string& call, const std::string& name, const std::string& report, const Command& command)
{
    return {call, name, command, {1, report}, Place + name + ": " + name + "(): failed: planned fault\n"};
}

template <typename Command>
CommandRow dpdRow(const std::string& call, const std::string& name, const std::string& aim, const Command& command)
{
    return {"IDpdControllerSplit." + call,
            name,
            command,
            {1, AsBefore},
            Place + name + ": " + name + "(): failed to " + aim + ", EDPDResult = 32768\n"};
}

CommandRow ctRow(const std::string& call)
{
    return {call,
            "getCtStatus",
            [](Commands& commands, std::string& report) { return commands.getCtStatus(1, report); },
            {0, NoData},
            "[KEL.KDC.GetCtStatusDebugCmd] level 1: get failed: planned fault\n"};
}

const std::vector<CommandRow> Rows = {
    ctRow("criGetRadioChannelStatus"),
    ctRow("criGetRadioChannelCapability"),
    ctRow("ITiManageRadioChannelNearEnd.getRadioChannelInfo"),
    {"ITiGetDspModemStatus.getDspModemStatus",
     "getBcmModemStatus",
     [](Commands& commands, std::string& report) { return commands.getBcmModemStatus(1, report); },
     {1, NoData},
     "[KEL.KDC.KelDebugCmd] level 1: getBcmModemStatus failed: planned fault\n"},
    {"ITiGetDspModemStatus.toString",
     "getBcmModemStatus",
     [](Commands& commands, std::string& report) { return commands.getBcmModemStatus(1, report); },
     {0, "planned fault"},
     ""},
    ppsRow("criGetCalibrationStatusDspPps", "getPpsCalibrationStatus", NoData,
           [](Commands& commands, std::string& report) { return commands.getPpsCalibrationStatus(1, report); }),
    ppsRow("criGetHopLengthTimeDspPps", "getPpsHopLengthTime", NoData,
           [](Commands& commands, std::string& report) { return commands.getPpsHopLengthTime(1, report); }),
    ppsRow("criCalibrateDspPps", "calibratePps", AsBefore,
           [](Commands& commands, std::string&) { return commands.calibratePps(1, 3, 17); }),
    ppsRow("criSetSourceDspPps", "setPpsSource", AsBefore,
           [](Commands& commands, std::string&) { return commands.setPpsSource(1, 2, 17); }),
    ppsRow("criSetOutputModeDspPps", "setPpsOutputMode", AsBefore,
           [](Commands& commands, std::string&) { return commands.setPpsOutputMode(1, 2); }),
    dpdRow("start", "startDpd", "start dpd", [](Commands& commands, std::string&) { return commands.startDpd(1); }),
    dpdRow("getStartParameter", "startDpd", "start dpd",
           [](Commands& commands, std::string&) { return commands.startDpd(1); }),
    dpdRow("stop", "stopDpd", "stop dpd", [](Commands& commands, std::string&) { return commands.stopDpd(1); }),
    dpdRow("setCoeffs", "setDpdCoefficients", "set dpd coefficients",
           [](Commands& commands, std::string&) {
               return commands.setDpdCoefficients(1, {{1, 2, 3}});
           }),
    dpdRow("getCoeffs", "getDpdCoefficients", "get dpd coefficients",
           [](Commands& commands, std::string& report)
           {
               DpdCoeffs coefficients{{99}};
               const int result = commands.getDpdCoefficients(1, &coefficients);
               report = coefficients.bytes[0] == 99 ? AsBefore : "read";
               return result;
           }),
    xpicRow("setXpicSlaveMute", [](Commands& commands, std::string&) { return commands.setXpicSlaveMute(1, 1); }),
    xpicRow("xpicAcquireStart", [](Commands& commands, std::string&) { return commands.xpicAcquireStart(1, 1, 1); }),
    xpicRow("setXpicPreamble", [](Commands& commands, std::string&) { return commands.setXpicPreamble(1, 2); }),
    xpicRow("getXpicPreamble",
            [](Commands& commands, std::string& report)
            {
                unsigned char preamble = 99;
                const int result = commands.getXpicPreamble(1, &preamble);
                report = preamble == 99 ? AsBefore : "read";
                return result;
            }),
    {"tiManageXpic",
     "getXpicStatus",
     [](Commands& commands, std::string& report) { return commands.getXpicStatus(1, report); },
     {1, "planned fault"},
     ""},
};

class FaultedCommandTest : public NodeStartUpTest, public ::testing::WithParamInterface<CommandRow>
{
protected:
    static Seen run(Node& node)
    {
        Seen seen;
        seen.result = GetParam().run(*node.commands(), seen.report);
        node::trace::completeOpenMessage();
        return seen;
    }

    static Seen runHealthy()
    {
        Node node;
        return run(node);
    }

    static FaultOf fault()
    {
        return FaultOf(GetParam().call);
    }

    std::vector<std::string> traced() const
    {
        std::vector<std::string> lines;
        for (auto message : recorder.messages)
        {
            message.line = message.line == 0 ? 0 : 1;
            lines.push_back(toLine(message));
        }
        return lines;
    }
};

TEST_F(NodeStartUpTest, EveryCallAboutAChannelIsSeenThroughACommand)
{
    std::set<std::string_view> expected;
    for (const auto& call : node::services::platformCalls())
    {
        if (call.hasChannel)
        {
            expected.insert(call.name);
        }
    }
    std::set<std::string_view> seen;
    for (const CommandRow& row : Rows)
    {
        seen.insert(row.call);
    }
    EXPECT_EQ(expected, seen);
}

TEST_P(FaultedCommandTest, TheOperatorSeesARefusalOnce)
{
    const Seen healthy = runHealthy();
    EXPECT_EQ(0, healthy.result);
    Node node;
    node.faults().add(fault().times(1));
    EXPECT_EQ(GetParam().refused, run(node));
    const std::vector<std::string> expected(GetParam().trace.empty() ? 0 : 1, GetParam().trace);
    EXPECT_THAT(traced(), ElementsAreArray(expected));
    EXPECT_EQ(healthy, run(node));
    EXPECT_THAT(traced(), ElementsAreArray(expected));
}

TEST_P(FaultedCommandTest, AnExceptionComesOutAndLeavesTheReportAsItWas)
{
    const Seen healthy = runHealthy();
    Node node;
    node.faults().add(fault().throwing().times(1));
    Seen seen;
    EXPECT_THROW(GetParam().run(*node.commands(), seen.report), PlannedException);
    EXPECT_EQ(AsBefore, seen.report);
    EXPECT_EQ(healthy, run(node));
    EXPECT_THAT(recorder.messages, IsEmpty());
}

TEST_P(FaultedCommandTest, AFaultOfTheOtherChannelIsNotSeen)
{
    const Seen healthy = runHealthy();
    Node node;
    node.faults().add(fault().onChannel(2).throwing());
    EXPECT_EQ(healthy, run(node));
    EXPECT_THAT(recorder.messages, IsEmpty());
    EXPECT_EQ(0U, node.faults().list().front().seen);
}

INSTANTIATE_TEST_SUITE_P(EachCommand, FaultedCommandTest, ::testing::ValuesIn(Rows));

/// The calls whose codes are judged by the module.
class HarmlessCodeTest : public FaultedCommandTest
{
};

TEST_P(HarmlessCodeTest, ACodeThatDoesNotFailIsNotSeen)
{
    const Seen healthy = runHealthy();
    for (const std::int32_t code : {0, -1, INT32_MIN})
    {
        Node node;
        node.faults().add(fault().withCode(code).withText("works all the same"));
        EXPECT_EQ(healthy, run(node)) << code;
        EXPECT_EQ(1U, node.faults().list().front().hits);
    }
    EXPECT_THAT(recorder.messages, IsEmpty());
}

std::vector<CommandRow> rowsOfJudgedCodes()
{
    std::vector<CommandRow> rows;
    for (const CommandRow& row : Rows)
    {
        if (node::services::findPlatformCall(row.call)->fails(INT32_MAX))
        {
            rows.push_back(row);
        }
    }
    return rows;
}

INSTANTIATE_TEST_SUITE_P(EachCommand, HarmlessCodeTest, ::testing::ValuesIn(rowsOfJudgedCodes()));

TEST_F(NodeStartUpTest, ThePlannedCodeOfAControllerIsTraced)
{
    Node node;
    node.faults().add(FaultOf("IDpdControllerSplit.stop").withCode(INT32_MAX));
    EXPECT_EQ(1, node.commands()->stopDpd(2));
    EXPECT_THAT(recorder.texts(), ::testing::ElementsAre("stopDpd(): failed to stop dpd, EDPDResult = 2147483647\n"));
}

TEST_F(NodeStartUpTest, APredistortionThatIsNotLockedIsTracedWithACodeOfItsOwn)
{
    Node node;
    node.link().turnFade(60.0);
    EXPECT_EQ(1, node.commands()->startDpd(1));
    EXPECT_THAT(recorder.texts(), ::testing::ElementsAre("startDpd(): failed to start dpd, EDPDResult = 32769\n"));
}

} // namespace
