#include <algorithm>
#include <filesystem>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "endtoend/Program.h"

namespace
{

const std::string CoarseRunning = R"(PPS PPs Calibration: 1
--- [0]: RTC calibration never initiated
--- [1]: Coarse calibration not completed
--- [2]: Fine calibration not completed
--- [3]: Calibration completed in manual mode
--- [4]: Fine calibration in auto mode
--- [5]: Calibration failed: 0
)";

/// The report of a calibration that failed for the reason of that number.
std::string failedFor(int reason)
{
    return R"(PPS PPs Calibration: 5
--- [0]: RTC calibration never initiated
--- [1]: Coarse calibration not completed
--- [2]: Fine calibration not completed
--- [3]: Calibration completed in manual mode
--- [4]: Fine calibration in auto mode
--- [5]: Calibration failed: )" +
           std::to_string(reason) + R"(
------ [0]: No reason
------ [1]: Slave Link Loss
------ [2]: No response from master
------ [3]: Modulation change
------ [4]: Calibration coarse need to be completed first
------ [5]: Reserved
)";
}

/// A scenario, what is typed at its node, and what the operator sees.
struct Row
{
    std::string scenario;
    std::string script;
    std::string output;
    std::string errors; ///< without the numbers of source lines
    int status;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << row.scenario << ": " << row.script;
}

const std::vector<Row> Rows = {
    Row{"one-channel", "getBcmModemStatus 1\nsetXpicCable 2 on\n",
        R"(Modem status of radio channel 1
Lock:          locked
Symbol rate:   25000 kBd
Constellation: 4096 points
Level:         -43.02 dBm
SNIR:          44.02 dB
DPD:           running
XPIC:          not acquired
)",
        "kel-node: <stdin>:2: setXpicCable: argument 1 (channel): found 2, expected 1, for the node has one channel\n",
        2},
    Row{"one-channel", "getBcmModemStatus 2\n", "Data could not be retrieved!",
        "0:00:00.0 [KEL.KDC.KelDebugCmd] level 1: getBcmModemStatus failed: radio channel: found 2, expected 1\n"
        "kel-node: <stdin>:1: getBcmModemStatus: failed\n",
        1},
    Row{"one-channel", "xpicAcquireStart 1 0 0\n", "",
        traced("xpicAcquireStart", "acquisition: found one channel, expected the other polarisation on a second one") +
            "kel-node: <stdin>:1: xpicAcquireStart: failed\n",
        1},
    Row{"clear-sky", "getBcmModemStatus 1\ngetBcmModemStatus 2\n",
        R"(Modem status of radio channel 1
Lock:          locked
Symbol rate:   25000 kBd
Constellation: 4096 points
Level:         -43.02 dBm
SNIR:          43.91 dB
DPD:           running
XPIC:          acquired
Modem status of radio channel 2
Lock:          locked
Symbol rate:   25000 kBd
Constellation: 4096 points
Level:         -43.02 dBm
SNIR:          43.91 dB
DPD:           running
XPIC:          acquired
)",
        "", 0},
    Row{"pps-coarse-first", "calibratePps 1 1 0\ngetPpsCalibrationStatus 1\n", failedFor(4), "", 0},
    Row{"pps-link-loss",
        "calibratePps 1 2 0\nadvance 5\ngetPpsCalibrationStatus 1\nadvance 0.1\ngetPpsCalibrationStatus 1\n",
        CoarseRunning + failedFor(1), "", 0},
    Row{"pps-modulation-change",
        "calibratePps 1 2 0\nadvance 5\ngetPpsCalibrationStatus 1\nadvance 5\ngetPpsCalibrationStatus 1\n",
        CoarseRunning + failedFor(3), "", 0},
    Row{"pps-no-master",
        "calibratePps 2 0 0\nadvance 4.9\ngetPpsCalibrationStatus 2\nadvance 0.1\ngetPpsCalibrationStatus 2\n",
        CoarseRunning + failedFor(2), "", 0},
    Row{"rain-front", "advance 4min\ngetBcmModemStatus 1\ngetBcmModemStatus 2\n",
        R"(Modem status of radio channel 1
Lock:          locked
Symbol rate:   25000 kBd
Constellation: 4 points
Level:         -84.69 dBm
SNIR:          8.56 dB
DPD:           running
XPIC:          not acquired
Modem status of radio channel 2
Lock:          unlocked
Symbol rate:   25000 kBd
Constellation: 4 points
Level:         -94.93 dBm
SNIR:          -1.05 dB
DPD:           running
XPIC:          not acquired
)",
        "", 0},
    Row{"services-down", "listFaults\n",
        R"(criGetRadioChannelStatus channel=1 text="no answer from the DSP" from_call=3: seen 0, hit 0
criGetRadioChannelCapability channel=2 code=7 text="capability database locked": seen 0, hit 0
tiManageXpic text="XPIC manager restarts" calls=3: seen 0, hit 0
criGetCalibrationStatusDspPps text="PPS manager down": seen 0, hit 0
IDpdControllerSplit.start code=32772: seen 0, hit 0
ITiGetDspModemStatus.getDspModemStatus channel=2 text="modem driver gone" throws=true: seen 0, hit 0
)",
        "", 0},
    Row{"services-down", "getCtStatus 2\n", "Data could not be retrieved!",
        "0:00:00.0 [KEL.KDC.GetCtStatusDebugCmd] level 1: get failed: capability database locked\n", 0},
    Row{"services-down", "getXpicPreamble 1\n", "",
        traced("getXpicPreamble", "XPIC manager restarts") + "kel-node: <stdin>:1: getXpicPreamble: failed\n", 1},
    Row{"services-down", "getPpsCalibrationStatus 1\n", "Data could not be retrieved!",
        traced("getPpsCalibrationStatus", "getPpsCalibrationStatus(): failed: PPS manager down") +
            "kel-node: <stdin>:1: getPpsCalibrationStatus: failed\n",
        1},
    Row{"services-down", "startDpd 1\n", "",
        traced("startDpd", "startDpd(): failed to start dpd, EDPDResult = 32772") +
            "kel-node: <stdin>:1: startDpd: failed\n",
        1},
    Row{"services-down", "getBcmModemStatus 2\n", "",
        "kel-node: <stdin>:1: getBcmModemStatus: threw modem driver gone\n", 1},
    Row{"start-in-part", "startDpd 1\nstartDpd 2\n", "",
        traced("onModuleInit", "onModuleInit(): Error getting interface to IDpdControllerSplit_2") +
            "kel-node: <stdin>:2: startDpd: failed\n",
        1},
    Row{"start-no-board-support", "showLink\n", "",
        traced("onModuleInit", "onModuleInit(): failed to get interface toIRlbspKelApi") +
            "kel-node: module KelDebugCmd: onModuleInit() answered 0x8000, expected 0\n",
        3},
    Row{"start-no-dpd-controller", "showLink\n", "",
        traced("onModuleInit", "onModuleInit(): Error getting interface to IDpdControllerSplit_2") +
            "kel-node: module KelDebugCmd: onModuleInit() answered 0x8000, expected 0\n",
        3},
    Row{"start-registration-throws", "showLink\n", "",
        "kel-node: module KelDebugCmd: its constructor threw: registry is full\n", 3},
    Row{"start-wrong-board-support", "showLink\n", "",
        traced("onModuleInit", "onModuleInit(): failed to get interface toIRlbspKelApi") +
            "kel-node: module KelDebugCmd: onModuleInit() answered 0x8000, expected 0\n",
        3},
    Row{"trembling-level", "sample 1min 20s -\n",
        R"(time_s,distance_km,rain_mm_per_h,fade_dB,channel,tx_power_dBm,level_dBm,xpd_dB,snir_dB,modem,modulation,errored_blocks,dpd,xpic,pps_calibration,hop_length_time_ns
0.0,10.000,0.00,25.00,1,18.00,-68.02,40.00,25.92,locked,512QAM,0,adapted,Locked,never,33000
0.0,10.000,0.00,25.00,2,18.00,-68.02,40.00,25.92,locked,512QAM,0,adapted,Locked,never,33000
20.0,10.000,0.00,28.15,1,18.00,-71.17,40.00,22.80,locked,256QAM_STRONG,10,adapted,Locked,never,33000
20.0,10.000,0.00,28.15,2,18.00,-71.17,40.00,22.80,locked,256QAM_STRONG,10,adapted,Locked,never,33000
40.0,10.000,0.00,23.56,1,18.00,-66.58,40.00,27.34,locked,512QAM,16,adapted,Locked,never,33000
40.0,10.000,0.00,23.56,2,18.00,-66.58,40.00,27.34,locked,512QAM,16,adapted,Locked,never,33000
60.0,10.000,0.00,22.07,1,18.00,-65.09,40.00,28.80,locked,1024QAM,23,adapted,Locked,never,33000
60.0,10.000,0.00,22.07,2,18.00,-65.09,40.00,28.80,locked,1024QAM,23,adapted,Locked,never,33000
)",
        "", 0},
    Row{"xpic-cable-out", "getXpicStatus 1\nsetXpicCable 1 on\nadvance 10\ngetXpicStatus 1\n",
        R"(Modem XPIC Information:
--- XPD [.1dB]                 : 400
--- Slave carrier Offset [KHz] : -100.000000
--- Slave Sweep ongoing        : 1
--- Calibration Status         : 2
Modem XPIC Information:
--- XPD [.1dB]                 : 400
--- Slave carrier Offset [KHz] : 8.864000
--- Slave Sweep ongoing        : 0
--- Calibration Status         : 1
)",
        "", 0},
    Row{"xpic-not-started",
        "getXpicStatus 1\nxpicAcquireStart 1 0 0\nadvance 5.4\ngetXpicStatus 1\nadvance 0.1\ngetXpicStatus 1\n",
        R"(Modem XPIC Information:
--- XPD [.1dB]                 : 400
--- Slave carrier Offset [KHz] : 0.000000
--- Slave Sweep ongoing        : 0
--- Calibration Status         : 0
Modem XPIC Information:
--- XPD [.1dB]                 : 400
--- Slave carrier Offset [KHz] : 8.000000
--- Slave Sweep ongoing        : 1
--- Calibration Status         : 2
Modem XPIC Information:
--- XPD [.1dB]                 : 400
--- Slave carrier Offset [KHz] : 8.864000
--- Slave Sweep ongoing        : 0
--- Calibration Status         : 1
)",
        "", 0},
};

class ReadyScenariosTest : public ::testing::TestWithParam<Row>
{
};

TEST_P(ReadyScenariosTest, ShowTheOperatorWhatTheyAreFor)
{
    const Finished run = runScenario(GetParam().scenario, GetParam().script);
    EXPECT_EQ(GetParam().output, run.output);
    EXPECT_EQ(GetParam().errors, withoutSourceLines(run.errors));
    EXPECT_EQ(GetParam().status, run.status);
}

INSTANTIATE_TEST_SUITE_P(Each, ReadyScenariosTest, ::testing::ValuesIn(Rows));

TEST(ReadyScenariosTableTest, HasEveryScenarioOfTheProject)
{
    std::set<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(KEL_SOURCE_DIR "/scenarios"))
    {
        files.insert(entry.path().stem().string());
    }
    std::set<std::string> tested;
    for (const Row& row : Rows)
    {
        tested.insert(row.scenario);
    }
    EXPECT_EQ(files, tested);
}

TEST(ReadyScenariosTableTest, ServicesThatStopInTheMiddleGiveTwoGoodReports)
{
    const std::string report = runCommand("getCtStatus 1").output;
    const Finished run = runScenario("services-down", "getCtStatus 1\ngetCtStatus 1\ngetCtStatus 1\n");
    EXPECT_EQ(report + report + "Data could not be retrieved!", run.output);
    EXPECT_EQ("0:00:00.0 [KEL.KDC.GetCtStatusDebugCmd] level 1: get failed: no answer from the DSP\n", run.errors);
    EXPECT_EQ(0, run.status);
}

TEST(ReadyScenariosTableTest, ClearSkyIsTheNodeWithoutAScenario)
{
    const std::string everything = "showLink\ngetCtStatus 1\ngetCtStatus 2\ngetBcmModemStatus 1\n"
                                   "getPpsCalibrationStatus 1\ngetPpsHopLengthTime 1\ngetDpdCoefficients 1\n"
                                   "getXpicStatus 1\ngetXpicStatus 2\ncalibratePps 1 0 0\nadvance 10\nshowLink\n";
    EXPECT_EQ(runScript(everything).output, runScenario("clear-sky", everything).output);
}

} // namespace
