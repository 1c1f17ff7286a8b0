#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "endtoend/Program.h"
#include "node/services/PlatformCall.h"
#include "support/TemporaryFolder.h"

namespace
{

constexpr const char* NoData = "Data could not be retrieved!";

/// A call that refuses, the command that meets it, and what comes of that.
struct Row
{
    std::string call;
    std::string command;
    std::string output;
    std::string trace; ///< what the module traces
    int status;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << row.call << ", " << row.command;
}

std::string ppsTraced(const std::string& function)
{
    return traced(function, function + "(): failed: planned fault");
}

std::string dpdTraced(const std::string& function, const std::string& what)
{
    return traced(function, function + "(): failed to " + what + ", EDPDResult = 32768");
}

const std::string CtTrace = "0:00:00.0 [KEL.KDC.GetCtStatusDebugCmd] level 1: get failed: planned fault\n";

const std::vector<Row> Rows = {
    {"criCalibrateDspPps", "calibratePps 1 0 0", "", ppsTraced("calibratePps"), 1},
    {"criGetCalibrationStatusDspPps", "getPpsCalibrationStatus 1", NoData, ppsTraced("getPpsCalibrationStatus"), 1},
    {"criGetHopLengthTimeDspPps", "getPpsHopLengthTime 1", NoData, ppsTraced("getPpsHopLengthTime"), 1},
    {"criGetRadioChannelCapability", "getCtStatus 1", NoData, CtTrace, 0},
    {"criGetRadioChannelStatus", "getCtStatus 1", NoData, CtTrace, 0},
    {"criSetOutputModeDspPps", "setPpsOutputMode 1 1", "", ppsTraced("setPpsOutputMode"), 1},
    {"criSetSourceDspPps", "setPpsSource 1 0 0", "", ppsTraced("setPpsSource"), 1},
    {"tiManageXpic", "getXpicStatus 1", "planned fault", "", 1},
    {"tiManageXpic", "getXpicPreamble 1", "", traced("getXpicPreamble", "planned fault"), 1},
    {"tiManageXpic", "setXpicPreamble 1 1", "", traced("setXpicPreamble", "planned fault"), 1},
    {"tiManageXpic", "setXpicSlaveMute 1 1", "", traced("setXpicSlaveMute", "planned fault"), 1},
    {"tiManageXpic", "xpicAcquireStart 1 0 0", "", traced("xpicAcquireStart", "planned fault"), 1},
    {"IDpdControllerSplit.start", "startDpd 1", "", dpdTraced("startDpd", "start dpd"), 1},
    {"IDpdControllerSplit.stop", "stopDpd 1", "", dpdTraced("stopDpd", "stop dpd"), 1},
    {"IDpdControllerSplit.getStartParameter", "startDpd 1", "", dpdTraced("startDpd", "start dpd"), 1},
    {"IDpdControllerSplit.getCoeffs", "getDpdCoefficients 1", "",
     dpdTraced("getDpdCoefficients", "get dpd coefficients"), 1},
    {"IDpdControllerSplit.setCoeffs", "setDpdCoefficients 1 0000000000000000000000000000000000000000", "",
     dpdTraced("setDpdCoefficients", "set dpd coefficients"), 1},
    {"ITiGetDspModemStatus.getDspModemStatus", "getBcmModemStatus 1", NoData,
     "0:00:00.0 [KEL.KDC.KelDebugCmd] level 1: getBcmModemStatus failed: planned fault\n", 1},
    {"ITiGetDspModemStatus.toString", "getBcmModemStatus 1", "planned fault", "", 0},
    {"ITiManageRadioChannelNearEnd.getRadioChannelInfo", "getCtStatus 1", NoData, CtTrace, 0},
};

std::string commandNameOf(const Row& row)
{
    return row.command.substr(0, row.command.find(' '));
}

class PlatformFaultTest : public ::testing::TestWithParam<Row>
{
};

TEST_P(PlatformFaultTest, RefusesItsCommand)
{
    const Row& row = GetParam();
    const Finished run = runScript("addFault " + row.call + "\n" + row.command + "\n");
    EXPECT_EQ(row.output, run.output);
    EXPECT_EQ(row.trace + (row.status == 0 ? "" : "kel-node: <stdin>:2: " + commandNameOf(row) + ": failed\n"),
              withoutSourceLines(run.errors));
    EXPECT_EQ(row.status, run.status);
}

TEST_P(PlatformFaultTest, ThrowsThroughItsCommand)
{
    const Row& row = GetParam();
    const Finished run = runScript("addFault " + row.call + " throws=true \"text=it is gone\"\n" + row.command + "\n");
    EXPECT_EQ("", run.output);
    EXPECT_EQ("kel-node: <stdin>:2: " + commandNameOf(row) + ": threw it is gone\n", run.errors);
    EXPECT_EQ(1, run.status);
}

TEST_P(PlatformFaultTest, LeavesTheOtherChannelAlone)
{
    const Row& row = GetParam();
    const Finished plain = runScript(row.command + "\n");
    const Finished run = runScript("addFault " + row.call + " channel=2\n" + row.command + "\n");
    EXPECT_EQ(plain.output, run.output);
    EXPECT_EQ("", run.errors);
    EXPECT_EQ(0, run.status);
}

TEST_P(PlatformFaultTest, IsGoneWhenFaultsAreCleared)
{
    const Row& row = GetParam();
    const Finished plain = runScript(row.command + "\n");
    const Finished run = runScript("addFault " + row.call + " throws=true\nclearFaults\n" + row.command + "\n");
    EXPECT_EQ(plain.output, run.output);
    EXPECT_EQ("", run.errors);
    EXPECT_EQ(0, run.status);
}

INSTANTIATE_TEST_SUITE_P(EachCall, PlatformFaultTest, ::testing::ValuesIn(Rows));

/// A call of the start, and what the program says when it throws.
struct StartRow
{
    std::string call;
    std::string complaint;
};

std::ostream& operator<<(std::ostream& out, const StartRow& row)
{
    return out << row.call;
}

class StartFaultTest : public ::testing::TestWithParam<StartRow>
{
};

TEST_P(StartFaultTest, LeavesNoNodeToRunTheScript)
{
    const TemporaryFolder folder;
    const std::string file =
        folder.write("x.toml", "[[fault]]\ncall = \"" + GetParam().call + "\"\nthrows = true\ntext = \"no room\"\n");
    const Finished run = runScenario(file, "getXpicPreamble 1\n");
    EXPECT_EQ("", run.output);
    EXPECT_EQ("kel-node: " + GetParam().complaint + "\n", run.errors);
    EXPECT_EQ(3, run.status);

    const Finished loaded = runScript("loadScenario " + file + "\ngetXpicPreamble 1\n");
    EXPECT_EQ("", loaded.output);
    EXPECT_EQ("kel-node: <stdin>:1: " + GetParam().complaint + "\n", loaded.errors);
    EXPECT_EQ(3, loaded.status);
}

const std::vector<StartRow> StartRows = {
    {"CModuleManager.RegisterModule", "module KelDebugCmd: its constructor threw: no room"},
    {"IRlbspKelApi.installDebugCmdCallback", "module KelDebugCmd: onModuleInit() threw: no room"},
};

INSTANTIATE_TEST_SUITE_P(EachCall, StartFaultTest, ::testing::ValuesIn(StartRows));

TEST(PlatformFaultsTest, TheTablesHaveEveryCall)
{
    for (const auto& call : node::services::platformCalls())
    {
        const auto isOfCall = [&](const auto& row) { return row.call == call.name; };
        EXPECT_TRUE(std::any_of(Rows.begin(), Rows.end(), isOfCall) ||
                    std::any_of(StartRows.begin(), StartRows.end(), isOfCall))
            << call.name;
    }
}

TEST(PlatformFaultsTest, AFaultOfTheStartCannotBePlannedAfterIt)
{
    const Finished run = runScript("addFault CModuleManager.RegisterModule throws=true\n");
    EXPECT_EQ("", run.output);
    EXPECT_EQ(
        "kel-node: <stdin>:1: addFault: call: found \"CModuleManager.RegisterModule\", expected a call that is made "
        "after the start; this one belongs into a scenario\n",
        run.errors);
    EXPECT_EQ(2, run.status);
}

TEST(PlatformFaultsTest, AScenarioForgetsTheFaultsOfTheOneBefore)
{
    const Finished run = runScript("addFault tiManageXpic\nloadScenario clear-sky\nlistFaults\n");
    EXPECT_EQ("", run.output);
    EXPECT_EQ("", run.errors);
    EXPECT_EQ(0, run.status);
}

TEST(PlatformFaultsTest, AFaultHitsTheCallsThatItNames)
{
    const Finished plain = runScript("getBcmModemStatus 1\n");
    const Finished run = runScript("addFault ITiGetDspModemStatus.toString text=\"hit \" from_call=2 calls=2\n"
                                   "getBcmModemStatus 1\ngetBcmModemStatus 1\ngetBcmModemStatus 2\n"
                                   "getBcmModemStatus 1\nlistFaults\n");
    EXPECT_EQ(plain.output + "hit hit " + plain.output +
                  "ITiGetDspModemStatus.toString text=\"hit \" from_call=2 calls=2: seen 4, hit 2\n",
              run.output);
    EXPECT_EQ(0, run.status);
}

TEST(PlatformFaultsTest, AnAnswerThatIsNoRefusalChangesTheCodeAlone)
{
    const Finished plain = runScript("getCtStatus 1\n");
    const Finished run = runScript("addFault criGetRadioChannelStatus code=0 text=fine\ngetCtStatus 1\n");
    EXPECT_EQ(plain.output, run.output);
    EXPECT_EQ("", run.errors);
    EXPECT_EQ(0, run.status);
}

TEST(PlatformFaultsTest, ATraceLevelOf0SilencesTheMessage)
{
    const std::string script = "addFault criCalibrateDspPps\nsetTraceLevel KEL.KDC.KelDebugCmd ";
    EXPECT_EQ("kel-node: <stdin>:3: calibratePps: failed\n", runScript(script + "0\ncalibratePps 1 0 0\n").errors);
    EXPECT_EQ(ppsTraced("calibratePps") + "kel-node: <stdin>:3: calibratePps: failed\n",
              withoutSourceLines(runScript(script + "1\ncalibratePps 1 0 0\n").errors));
}

} // namespace
