#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/report/FieldText.h"
#include "node/startup/Node.h"

using node::report::Field;
using node::report::fieldsOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

/// The reports of the module on a node whose link is as it starts.
class ReportFieldsTest : public ::testing::Test
{
protected:
    using Commands = IRlbspKelApi::KelDebugCmdCallback;

    std::string reportOf(int (Commands::*command)(RadioChannel, std::string&))
    {
        std::string report;
        EXPECT_EQ(0, (node.commands()->*command)(1, report));
        return report;
    }

    node::startup::Node node;
};

TEST_F(ReportFieldsTest, ModemStatus)
{
    constexpr auto Report = R"(Modem status of radio channel 1
Lock:          locked
Symbol rate:   25000 kBd
Constellation: 4096 points
Level:         -43.02 dBm
SNIR:          43.91 dB
DPD:           running
XPIC:          acquired
)";
    EXPECT_EQ(Report, reportOf(&Commands::getBcmModemStatus));
    EXPECT_THAT(fieldsOf(Report), ElementsAre(Field{"", "Lock", "locked"}, Field{"", "Symbol rate", 25000, "kBd"},
                                              Field{"", "Constellation", 4096, "points"},
                                              Field{"", "Level", -43.02, "dBm"}, Field{"", "SNIR", 43.91, "dB"},
                                              Field{"", "DPD", "running"}, Field{"", "XPIC", "acquired"}));
}

TEST_F(ReportFieldsTest, XpicStatus)
{
    constexpr auto Report = R"(Modem XPIC Information:
--- XPD [.1dB]                 : 400
--- Slave carrier Offset [KHz] : 8.864000
--- Slave Sweep ongoing        : 0
--- Calibration Status         : 1
)";
    EXPECT_EQ(Report, reportOf(&Commands::getXpicStatus));
    EXPECT_THAT(fieldsOf(Report), ElementsAre(Field{"Modem XPIC Information", "XPD", 400, "0.1 dB"},
                                              Field{"Modem XPIC Information", "Slave carrier Offset", 8.864, "kHz"},
                                              Field{"Modem XPIC Information", "Slave Sweep ongoing", 0},
                                              Field{"Modem XPIC Information", "Calibration Status", 1}));
}

TEST_F(ReportFieldsTest, PpsHopLengthTime)
{
    constexpr auto Report = "PPS hop length time[nsec]: 33000\n";
    EXPECT_EQ(Report, reportOf(&Commands::getPpsHopLengthTime));
    EXPECT_THAT(fieldsOf(Report), ElementsAre(Field{"", "PPS hop length time", 33000, "ns"}));
}

TEST_F(ReportFieldsTest, PpsCalibrationStatusWithoutTheMeaningsOfItsNumbers)
{
    constexpr auto Report = R"(PPS PPs Calibration: 0
--- [0]: RTC calibration never initiated
--- [1]: Coarse calibration not completed
--- [2]: Fine calibration not completed
--- [3]: Calibration completed in manual mode
--- [4]: Fine calibration in auto mode
--- [5]: Calibration failed: 0
)";
    EXPECT_EQ(Report, reportOf(&Commands::getPpsCalibrationStatus));
    EXPECT_THAT(fieldsOf(Report), ElementsAre(Field{"", "PPS PPs Calibration", 0},
                                              Field{"PPS PPs Calibration", "Calibration failed", 0}));
}

TEST_F(ReportFieldsTest, FailedPpsCalibrationHasAReason)
{
    constexpr auto Report = R"(PPS PPs Calibration: 5
--- [0]: RTC calibration never initiated
--- [1]: Coarse calibration not completed
--- [2]: Fine calibration not completed
--- [3]: Calibration completed in manual mode
--- [4]: Fine calibration in auto mode
--- [5]: Calibration failed: 4
------ [0]: No reason
------ [1]: Slave Link Loss
------ [2]: No response from master
------ [3]: Modulation change
------ [4]: Calibration coarse need to be completed first
------ [5]: Reserved
)";
    constexpr int Fine = 1; // refused before a coarse one
    EXPECT_EQ(0, node.commands()->calibratePps(1, Fine, 0));
    EXPECT_EQ(Report, reportOf(&Commands::getPpsCalibrationStatus));
    EXPECT_THAT(fieldsOf(Report), ElementsAre(Field{"", "PPS PPs Calibration", 5},
                                              Field{"PPS PPs Calibration", "Calibration failed", 4}));
}

TEST_F(ReportFieldsTest, ReportThatCouldNotBeMadeTellsNothing)
{
    EXPECT_THAT(fieldsOf("Data could not be retrieved!"), IsEmpty());
}

} // namespace
