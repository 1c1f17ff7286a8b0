#include <string>

#include <gtest/gtest.h>

#include "endtoend/Program.h"
#include "platform/ResponseText.h"

namespace
{

const std::string ReportOfChannel1 = R"(
=====================================
CT info channel 1
-------------------------------------

Tx Actual Status:         On
DSP Lock:                 Locked
Actual Tx Modulation:     4096QAM
Actual Rx Modulation:     4096QAM
Actual Rf Input Power:    -43.02 dBm
Reported Rf Output Power: 18 dBm
Actual SNIR:              43.91 dB
Tx Frequency:             17727500 kHz
Rx Frequency:             18737500 kHz
XPIC Started:             true
Actual XPI:               400
XPIC State:               Locked
Min Tx Frequency:         17727500 kHz
Max Tx Frequency:         18662500 kHz
Min Rx Frequency:         18737500 kHz
Max Rx Frequency:         19672500 kHz
Frequency Step Size:      250 kHz
Available Min Output Pwr: -2 dBm
Available Max Output Pwr:)"
                                     " " // a blank that editors would trim
                                     R"(
            HALF_BPSK_STRONG24.2 dBm
            HALF_BPSK     24 dBm
            HALF_BPSK_LIGHT23.8 dBm
            BPSK_STRONG   24.2 dBm
            BPSK          24 dBm
            BPSK_LIGHT    23.8 dBm
            4QAM_STRONG   24.2 dBm
            4QAM          24 dBm
            4QAM_LIGHT    23.8 dBm
            16QAM_STRONG  23 dBm
            16QAM         22.8 dBm
            16QAM_LIGHT   22.6 dBm
            32QAM_STRONG  22.4 dBm
            32QAM         22.2 dBm
            32QAM_LIGHT   22 dBm
            64QAM_STRONG  21.8 dBm
            64QAM         21.6 dBm
            64QAM_LIGHT   21.4 dBm
            128QAM_STRONG 21.2 dBm
            128QAM        21 dBm
            128QAM_LIGHT  20.8 dBm
            256QAM_STRONG 20.6 dBm
            256QAM        20.4 dBm
            256QAM_LIGHT  20.2 dBm
            512QAM_STRONG 20 dBm
            512QAM        19.8 dBm
            512QAM_LIGHT  19.6 dBm
            1024QAM_STRONG19.4 dBm
            1024QAM       19.2 dBm
            1024QAM_LIGHT 19 dBm
            2048QAM_STRONG18.8 dBm
            2048QAM       18.6 dBm
            2048QAM_LIGHT 18.4 dBm
            4096QAM_STRONG18.2 dBm
            4096QAM       18 dBm
            4096QAM_LIGHT 17.8 dBm
            8192QAM_STRONG17.6 dBm
            8192QAM       17.4 dBm
            8192QAM_LIGHT 17.2 dBm
            16384QAM_STRONG17 dBm
            16384QAM      16.8 dBm
            16384QAM_LIGHT16.6 dBm

Radio Channel Id:         1
Radio Frame Id:           1
Min Modulation and Code:  4QAM_STRONG
Max Modulation and Code:  4096QAM
)";

TEST(CtReportTest, IsPrintedWhole)
{
    const Finished run = runCommand("getCtStatus 1");
    EXPECT_EQ(ReportOfChannel1, run.output);
    EXPECT_EQ("", run.errors);
    EXPECT_EQ(0, run.status);
}

TEST(CtReportTest, OfTheOtherChannelDiffersInItsNumberAlone)
{
    auto expected = replaced(ReportOfChannel1, "CT info channel ", "1", "2");
    expected = replaced(expected, "Radio Channel Id:         ", "1", "2");
    EXPECT_EQ(expected, runCommand("getCtStatus 2").output);
}

TEST(CtReportTest, TellsWhatWasSwitchedOff)
{
    const Finished run = runScript("stopDpd 1\nsetXpicSlaveMute 1 1\ngetCtStatus 1\n");
    auto expected = replaced(ReportOfChannel1, "Actual SNIR:              ", "43.91", "33.72");
    expected = replaced(expected, "XPIC State:               ", "Locked", "Muted");
    EXPECT_EQ(expected, run.output);
    EXPECT_EQ("", run.errors);
    EXPECT_EQ(0, run.status);
}

} // namespace
