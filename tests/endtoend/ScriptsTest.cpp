#include <string>

#include <gtest/gtest.h>

#include "endtoend/Program.h"

namespace
{

void expectOutput(const std::string& output, const std::string& lines)
{
    const Finished run = runScript(lines);
    EXPECT_EQ(output, run.output);
    EXPECT_EQ("", run.errors);
    EXPECT_EQ(0, run.status);
}

TEST(ScriptsTest, AnEmptyOneDoesNothing)
{
    expectOutput("", "");
}

TEST(ScriptsTest, ReadBackThePreambleOfTheChannelThatTheySet)
{
    expectOutput("2\n", "setXpicPreamble 1 2\ngetXpicPreamble 1\n");
    expectOutput("0\n3\n", "setXpicPreamble 2 3\ngetXpicPreamble 1\ngetXpicPreamble 2\n");
}

TEST(ScriptsTest, ReadBackTheCoefficientsOfTheChannelThatTheySet)
{
    expectOutput("000102030405060708090a0b0c0d0e0ff0f1f2ff\n"
                 "0000000000000000000000000000000000000000\n",
                 "setDpdCoefficients 2 000102030405060708090A0B0C0D0E0FF0F1F2FF\n"
                 "getDpdCoefficients 2\n"
                 "getDpdCoefficients 1\n");
}

TEST(ScriptsTest, SeeACalibrationThatFailedAndItsReason)
{
    expectOutput(R"(PPS PPs Calibration: 5
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
)",
                 "calibratePps 1 1 0\ngetPpsCalibrationStatus 1\n");
}

TEST(ScriptsTest, SeeACalibrationThatIsKeptByItself)
{
    expectOutput(R"(PPS PPs Calibration: 4
--- [0]: RTC calibration never initiated
--- [1]: Coarse calibration not completed
--- [2]: Fine calibration not completed
--- [3]: Calibration completed in manual mode
--- [4]: Fine calibration in auto mode
--- [5]: Calibration failed: 0
)",
                 "calibratePps 2 2 0\nadvance 40\ngetPpsCalibrationStatus 2\n");
}

TEST(ScriptsTest, SeePredistortionStoppedAndStarted)
{
    const auto status = [](const std::string& snir_dB, const std::string& dpd)
    {
        return "Modem status of radio channel 2\n"
               "Lock:          locked\n"
               "Symbol rate:   25000 kBd\n"
               "Constellation: 4096 points\n"
               "Level:         -43.02 dBm\n"
               "SNIR:          " +
               snir_dB +
               " dB\n"
               "DPD:           " +
               dpd +
               "\n"
               "XPIC:          acquired\n";
    };
    expectOutput(status("34.88", "stopped") + status("34.88", "running") + status("43.91", "running"),
                 "stopDpd 2\ngetBcmModemStatus 2\nstartDpd 2\ngetBcmModemStatus 2\nadvance 10\ngetBcmModemStatus 2\n");
}

TEST(ScriptsTest, MayHoldCommentsEmptyLinesAndAnExit)
{
    expectOutput("0\n", "# what follows reads a preamble\n\n  getXpicPreamble\t1\r\nexit\nnonsense\n");
}

TEST(ScriptsTest, MayQuoteWordsWithBlanks)
{
    expectOutput("tiManageXpic text=\"out of order\": seen 0, hit 0\n",
                 "addFault tiManageXpic text=\"out of order\"\n\"listFaults\"\n");
}

TEST(ScriptsTest, EndAtAnOpenQuotationMark)
{
    const Finished run = runScript("getXpicPreamble 1\nhelp \"showLink\ngetXpicPreamble 2\n");
    EXPECT_EQ("0\n", run.output);
    EXPECT_EQ("kel-node: <stdin>:2: line: found a quotation mark alone, expected another one that closes it\n",
              run.errors);
    EXPECT_EQ(2, run.status);
}

TEST(ScriptsTest, NeedNoLastLineEnd)
{
    expectOutput("0\n", "getXpicPreamble 1");
}

TEST(ScriptsTest, EndAtALineThatIsNotUnderstood)
{
    const Finished run = runScript("getXpicPreamble 1\n# comment\ngetXpicPreamble 3\ngetXpicPreamble 2\n");
    EXPECT_EQ("0\n", run.output);
    EXPECT_EQ("kel-node: <stdin>:3: getXpicPreamble: argument 1 (channel): found \"3\", expected a whole number from 1 "
              "to 2\n",
              run.errors);
    EXPECT_EQ(2, run.status);
}

TEST(ScriptsTest, StartFromAFreshNode)
{
    expectOutput("", "setXpicPreamble 1 2\n");
    expectOutput("0\n", "getXpicPreamble 1\n");
}

} // namespace
