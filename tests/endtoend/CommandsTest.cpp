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

class CommandsTest : public ::testing::TestWithParam<Row>
{
};

TEST_P(CommandsTest, IsDoneAndPrintsWhatItReports)
{
    const Finished run = runCommand(GetParam().command);
    EXPECT_EQ(GetParam().output, run.output);
    EXPECT_EQ("", run.errors);
    EXPECT_EQ(0, run.status);
}

INSTANTIATE_TEST_SUITE_P(EveryDebugCommand, CommandsTest,
                         ::testing::Values(Row{"getBcmModemStatus 1", R"(Modem status of radio channel 1
Lock:          locked
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
                                           Row{"getPpsHopLengthTime 1", "PPS hop length time[nsec]: 33000\n"},
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

INSTANTIATE_TEST_SUITE_P(
    EveryOtherCommand, CommandsTest,
    ::testing::Values(
        Row{"showLink", R"(Time:            0:00:00.0
Distance:        10 km
Rain:            0.00 mm/h
Fade:            0.00 dB

                 Channel 1         Channel 2
Polarisation:    vertical          horizontal
Tx frequency:    17727500 kHz      17727500 kHz
Rx frequency:    18737500 kHz      18737500 kHz
Transmitter:     on                on
Tx power:        18.00 dBm         18.00 dBm
Rx level:        -43.02 dBm        -43.02 dBm
XPD:             40.00 dB          40.00 dB
XPI:             40.00 dB          40.00 dB
SNIR:            43.91 dB          43.91 dB
Modem:           locked            locked
Modulation:      4096QAM           4096QAM
Errored blocks:  0                 0
DPD:             adapted           adapted
DPD floor:       45.00 dB          45.00 dB
XPIC:            Locked            Locked
XPIC mode:       full sweep        full sweep
XPIC option:     3                 3
XPIC slave:      open              open
XPIC cable:      on                on
XPIC preamble:   0                 0
Slave offset:    8864 Hz           -8864 Hz
PPS calibration: never             never
PPS failure:     none              none
PPS master:      answers           answers
PPS source:      0 (0)             0 (0)
PPS output mode: 0                 0
Hop length time: 33000 ns          33000 ns
)"},
        Row{"advance 1h", ""}, Row{"setRain 250 10min", ""}, Row{"setFade 0", ""}, Row{"setDistance 0.1", ""},
        Row{"setTransmitter 2 off", ""}, Row{"setXpicCable 1 off", ""}, Row{"setPpsMaster 1 on", ""},
        Row{"sample 0.1 1 -",
            R"(time_s,distance_km,rain_mm_per_h,fade_dB,channel,tx_power_dBm,level_dBm,xpd_dB,snir_dB,modem,modulation,errored_blocks,dpd,xpic,pps_calibration,hop_length_time_ns
0.0,10.000,0.00,0.00,1,18.00,-43.02,40.00,43.91,locked,4096QAM,0,adapted,Locked,never,33000
0.0,10.000,0.00,0.00,2,18.00,-43.02,40.00,43.91,locked,4096QAM,0,adapted,Locked,never,33000
0.1,10.000,0.00,0.00,1,18.00,-43.02,40.00,43.91,locked,4096QAM,0,adapted,Locked,never,33000
0.1,10.000,0.00,0.00,2,18.00,-43.02,40.00,43.91,locked,4096QAM,0,adapted,Locked,never,33000
)"},
        Row{"loadScenario one-channel", ""}, Row{"addFault tiManageXpic", ""}, Row{"listFaults", ""},
        Row{"clearFaults", ""}, Row{"setTraceLevel * 0", ""},
        Row{"listTraceLevels", R"(KEL.KDC.GetCtStatusDebugCmd      3
KEL.KDC.KelDebugCmd              3
)"}));

} // namespace
