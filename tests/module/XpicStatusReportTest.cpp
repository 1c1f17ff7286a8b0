#include <limits>

#include "module/ModuleTest.h"

using doubles::answer;
using doubles::topApi;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

constexpr auto Lowest = std::numeric_limits<std::int32_t>::min();
constexpr auto Highest = std::numeric_limits<std::int32_t>::max();

class XpicStatusReportTest : public ModuleTest
{
protected:
    /// The report of a canceller in these conditions.
    std::string reportOf(std::int32_t xpd, std::int32_t slaveCarrierOffset, bool slaveSweepOngoing,
                         std::uint8_t calibrationStatus)
    {
        auto& response = topApi().manageXpic;
        response.Xpd = xpd;
        response.SlaveCarrierOffset = slaveCarrierOffset;
        response.SlaveSweepOngoing = slaveSweepOngoing;
        response.CalibrationStatus = calibrationStatus;
        EXPECT_EQ(0, commands().getXpicStatus(1, report));
        return report;
    }

    /// What the report shows as the offset of the slave's carrier.
    std::string offsetOf(std::int32_t slaveCarrierOffset)
    {
        const std::string text = reportOf(0, slaveCarrierOffset, false, 0);
        const std::string label = "--- Slave carrier Offset [KHz] : ";
        const auto start = text.find(label) + label.size();
        return text.substr(start, text.find('\n', start) - start);
    }
};

TEST_F(XpicStatusReportTest, RequestAsksForTheStatusAlone)
{
    EXPECT_EQ(0, commands().getXpicStatus(2, report));
    EXPECT_THAT(calls(), ElementsAre("tiManageXpic(RadioChannelID=2, GetStatus=1)"));
}

TEST_F(XpicStatusReportTest, FiveLinesReplaceTheReport)
{
    EXPECT_EQ(R"(Modem XPIC Information:
--- XPD [.1dB]                 : -15
--- Slave carrier Offset [KHz] : -2.500000
--- Slave Sweep ongoing        : 1
--- Calibration Status         : 200
)",
              reportOf(-15, -2500, true, 200));
}

TEST_F(XpicStatusReportTest, LowestNumbersAreShownInFull)
{
    EXPECT_EQ(R"(Modem XPIC Information:
--- XPD [.1dB]                 : -2147483648
--- Slave carrier Offset [KHz] : -2147483.750000
--- Slave Sweep ongoing        : 0
--- Calibration Status         : 0
)",
              reportOf(Lowest, Lowest, false, 0));
}

TEST_F(XpicStatusReportTest, HighestNumbersAreShownInFull)
{
    EXPECT_EQ(R"(Modem XPIC Information:
--- XPD [.1dB]                 : 2147483647
--- Slave carrier Offset [KHz] : 2147483.750000
--- Slave Sweep ongoing        : 1
--- Calibration Status         : 255
)",
              reportOf(Highest, Highest, true, 255));
}

TEST_F(XpicStatusReportTest, OffsetIsDividedInSinglePrecisionAndShowsItsRounding)
{
    EXPECT_EQ("123.456001", offsetOf(123456));
    EXPECT_EQ("-123.456001", offsetOf(-123456));
    EXPECT_EQ("16777.216797", offsetOf(16777217));
}

TEST_F(XpicStatusReportTest, OffsetIsRoundedToSinglePrecisionBeforeTheDivisionToo)
{
    EXPECT_EQ("16777.220703", offsetOf(16777219)); // not 16777.218750
    EXPECT_EQ("123466.773438", offsetOf(123466778));
}

TEST_F(XpicStatusReportTest, OffsetHasSixDecimals)
{
    EXPECT_EQ("0.000000", offsetOf(0));
    EXPECT_EQ("0.001000", offsetOf(1));
    EXPECT_EQ("-0.001000", offsetOf(-1));
    EXPECT_EQ("0.999000", offsetOf(999));
    EXPECT_EQ("1.000000", offsetOf(1000));
    EXPECT_EQ("-2.500000", offsetOf(-2500));
}

TEST_F(XpicStatusReportTest, NegativeCodeIsASuccess)
{
    answer(topApi().manageXpic, -1, "a hint");
    EXPECT_EQ(R"(Modem XPIC Information:
--- XPD [.1dB]                 : 0
--- Slave carrier Offset [KHz] : 0.000000
--- Slave Sweep ongoing        : 0
--- Calibration Status         : 0
)",
              reportOf(0, 0, false, 0));

    answer(topApi().manageXpic, Lowest, "a hint");
    EXPECT_EQ(0, commands().getXpicStatus(1, report));
}

TEST_F(XpicStatusReportTest, FailureTextIsTheReportAsItStands)
{
    for (const std::int32_t code : {1, 3, Highest})
    {
        for (const std::string text : {"no canceller", "one line\nand another\n", ""})
        {
            report = "what was there before";
            answer(topApi().manageXpic, code, text);
            EXPECT_EQ(1, commands().getXpicStatus(1, report));
            EXPECT_EQ(text, report);
        }
    }
}

TEST_F(XpicStatusReportTest, NothingIsTracedOnEitherPath)
{
    EXPECT_EQ(0, commands().getXpicStatus(1, report));
    answer(topApi().manageXpic, 1, "no canceller");
    EXPECT_EQ(1, commands().getXpicStatus(1, report));
    silenceTrace();
    EXPECT_EQ(1, commands().getXpicStatus(1, report));
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_EQ("", doubles::trace().discarded);
}

} // namespace
