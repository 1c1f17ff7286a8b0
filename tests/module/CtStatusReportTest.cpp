#include <limits>

#include "module/CtStatusTest.h"

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

namespace
{

constexpr auto Lowest = std::numeric_limits<std::int32_t>::min();
constexpr auto Highest = std::numeric_limits<std::int32_t>::max();

using CtStatusReportTest = CtStatusTest;

TEST_F(CtStatusReportTest, ThreeQueriesMakeTheReport)
{
    reportOf(1);
    EXPECT_THAT(calls(), ElementsAre(StatusQuery, CapabilityQuery, IdentityQuery));
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(CtStatusReportTest, EveryLineOfAChannelWithXpic)
{
    // The raw text is interrupted where a line ends in a blank, which an editor would take away.
    EXPECT_EQ(R"(
=====================================
CT info channel 1
-------------------------------------

Tx Actual Status:         On
DSP Lock:                 Locked
Actual Tx Modulation:     4096QAM_LIGHT
Actual Rx Modulation:     2048QAM
Actual Rf Input Power:    -45.12 dBm
Reported Rf Output Power: 18.5 dBm
Actual SNIR:              41.25 dB
Tx Frequency:             18700000 kHz
Rx Frequency:             19710000 kHz
XPIC Started:             true
Actual XPI:               253
XPIC State:               Locked on master
Min Tx Frequency:         17700000 kHz
Max Tx Frequency:         18140000 kHz
Min Rx Frequency:         18710000 kHz
Max Rx Frequency:         19150000 kHz
Frequency Step Size:      250 kHz
Available Min Output Pwr: -10.5 dBm
Available Max Output Pwr:)"
              " \n"
              R"(            4QAM          24 dBm
            16QAM         23.5 dBm
            4096QAM_LIGHT 19.05 dBm

Radio Channel Id:         11
Radio Frame Id:           22
Min Modulation and Code:  4QAM_STRONG
Max Modulation and Code:  4096QAM
)",
              reportOf(1));
}

TEST_F(CtStatusReportTest, EveryLineOfAChannelWithoutXpic)
{
    status().XpicIsStarted = false;
    status().RadioChannelStatus = "Down";
    capability().AvailableMaxRFOutputPower.clear();
    EXPECT_EQ(R"(
=====================================
CT info channel 2
-------------------------------------

Tx Actual Status:         On
DSP Lock:                 Unlocked
Actual Tx Modulation:     4096QAM_LIGHT
Actual Rx Modulation:     2048QAM
Actual Rf Input Power:    -45.12 dBm
Reported Rf Output Power: 18.5 dBm
Actual SNIR:              41.25 dB
Tx Frequency:             18700000 kHz
Rx Frequency:             19710000 kHz
XPIC Started:             false
Min Tx Frequency:         17700000 kHz
Max Tx Frequency:         18140000 kHz
Min Rx Frequency:         18710000 kHz
Max Rx Frequency:         19150000 kHz
Frequency Step Size:      250 kHz
Available Min Output Pwr: -10.5 dBm
Available Max Output Pwr:)"
              " \n"
              R"(
Radio Channel Id:         11
Radio Frame Id:           22
Min Modulation and Code:  4QAM_STRONG
Max Modulation and Code:  4096QAM
)",
              reportOf(2));
}

TEST_F(CtStatusReportTest, TextsAreShownAsReceivedEmptyOnesToo)
{
    status().TXActualStatus = "";
    status().ActualTxModulation = "two\nlines";
    status().ActualRxModulation = "";
    status().XpicState = "";
    nearEnd.info.minModulationAndCode = "";
    nearEnd.info.maxModulationAndCode = "anything";
    const std::string text = reportOf(1);
    EXPECT_THAT(text, HasSubstr("\n\nTx Actual Status:         \nDSP Lock:"));
    EXPECT_THAT(text, HasSubstr("\nActual Tx Modulation:     two\nlines\nActual Rx Modulation:     \nActual Rf"));
    EXPECT_THAT(text, HasSubstr("\nXPIC State:               \nMin Tx"));
    EXPECT_THAT(text, HasSubstr("\nMin Modulation and Code:  \nMax Modulation and Code:  anything\n"));
}

TEST_F(CtStatusReportTest, OnlyUpAndDownAreTranslatedToALock)
{
    const std::pair<const char*, const char*> rows[] = {
        {"Up", "Locked"}, {"Down", "Unlocked"}, {"up", "up"},         {"DOWN", "DOWN"},
        {"", ""},         {"Up ", "Up "},       {"Upside", "Upside"}, {"Locked", "Locked"},
    };
    for (const auto& [received, shown] : rows)
    {
        status().RadioChannelStatus = received;
        EXPECT_THAT(reportOf(1), HasSubstr("\nDSP Lock:                 " + std::string(shown) + "\nActual Tx"));
    }
}

TEST_F(CtStatusReportTest, FrequenciesOfTheStatusAreSignedThoseOfTheCapabilityUnsigned)
{
    status().TxFrequency = -1;
    status().RxFrequency = Lowest;
    capability().MinTXFrequency = 0;
    capability().MaxTXFrequency = 0x7FFFFFFF;
    capability().MinRXFrequency = 0x80000000;
    capability().MaxRXFrequency = 4294967295;
    capability().FrequencyStepSize = 4294967295;
    const std::string text = reportOf(1);
    EXPECT_THAT(text, HasSubstr("\nTx Frequency:             -1 kHz\nRx Frequency:             -2147483648 kHz\n"));
    EXPECT_THAT(text, HasSubstr(R"(
Min Tx Frequency:         0 kHz
Max Tx Frequency:         2147483647 kHz
Min Rx Frequency:         2147483648 kHz
Max Rx Frequency:         4294967295 kHz
Frequency Step Size:      4294967295 kHz
)"));
}

TEST_F(CtStatusReportTest, SignedNumbersAreShownInFull)
{
    status().ActualXpi = Lowest;
    nearEnd.info.radioChannelId = Lowest;
    nearEnd.info.radioFrameId = Highest;
    const std::string text = reportOf(1);
    EXPECT_THAT(text, HasSubstr("\nActual XPI:               -2147483648\n"));
    EXPECT_THAT(text, HasSubstr("\nRadio Channel Id:         -2147483648\nRadio Frame Id:           2147483647\n"));
}

TEST_F(CtStatusReportTest, LevelsHaveSixDigitsAtMost)
{
    status().ActualRFInputPower = Lowest;
    status().ReportedRFOutputPower = 0;
    status().ActualSNIR = 99999950;
    capability().AvailableMinRFOutputPower = 1234567;
    const std::string text = reportOf(1);
    EXPECT_THAT(text, HasSubstr("\nActual Rf Input Power:    -2.14748e+07 dBm\nReported Rf Output Power: 0 dBm\n"));
    EXPECT_THAT(text, HasSubstr("\nActual SNIR:              1e+06 dB\n"));
    EXPECT_THAT(text, HasSubstr("\nAvailable Min Output Pwr: 12345.7 dBm\n"));
}

TEST_F(CtStatusReportTest, NothingElseOfTheResponsesIsShown)
{
    EXPECT_THAT(reportOf(1), Not(HasSubstr("not shown")));
    EXPECT_THAT(reportOf(1), Not(HasSubstr("9700")));
}

} // namespace
