#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "endtoend/Program.h"

namespace
{

/// A command that is typed, and what it prints.
struct Row
{
    std::string command;
    std::string output;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << row.command;
}

class OperationsTest : public ::testing::TestWithParam<Row>
{
};

TEST_P(OperationsTest, IsDoneAndPrintsWhatItReports)
{
    const Finished run = runCommand(GetParam().command);
    EXPECT_EQ(GetParam().output, run.output);
    EXPECT_EQ("", run.errors);
    EXPECT_EQ(0, run.status);
}

INSTANTIATE_TEST_SUITE_P(EveryOperation, OperationsTest,
                         ::testing::Values(Row{"getBcmModemStatus 1", R"(Modem status of radio channel 1
Symbol rate:   25000 kBd
Constellation: 4096 points
Level:         -43.02 dBm
SNIR:          43.91 dB
DPD:           running
XPIC:          acquired
)"},
                                           Row{"getPpsCalibrationStatus 2", R"(PPS PPs Calibration: 0
--- [0]: RTC calibration never initiated
--- [1]: Coarse calibration not completed
--- [2]: Fine calibration not completed
--- [3]: Calibration completed in manual mode
--- [4]: Fine calibration in auto mode
--- [5]: Calibration failed: 0
)"},
                                           Row{"getPpsHopLengthTime 1", "PPS hop length time[nsec]: 33367\n"},
                                           Row{"calibratePps 1 3 65535", ""}, Row{"setPpsSource 2 2 -2147483648", ""},
                                           Row{"setPpsOutputMode 1 0x2", ""}, Row{"startDpd 1", ""},
                                           Row{"stopDpd 2", ""},
                                           Row{"setDpdCoefficients 1 000102030405060708090A0B0C0D0E0F10111213", ""},
                                           Row{"getDpdCoefficients 2", "0000000000000000000000000000000000000000\n"},
                                           Row{"setXpicSlaveMute 1 255", ""}, Row{"xpicAcquireStart 2 2 3", ""},
                                           Row{"getXpicPreamble 1", "0\n"}, Row{"setXpicPreamble 2 3", ""},
                                           Row{"getXpicStatus 1", R"(Modem XPIC Information:
--- XPD [.1dB]                 : 400
--- Slave carrier Offset [KHz] : 8.864000
--- Slave Sweep ongoing        : 0
--- Calibration Status         : 1
)"},
                                           Row{"getXpicStatus 2", R"(Modem XPIC Information:
--- XPD [.1dB]                 : 400
--- Slave carrier Offset [KHz] : -8.864000
--- Slave Sweep ongoing        : 0
--- Calibration Status         : 1
)"}));

} // namespace
