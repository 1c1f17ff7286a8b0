#include <limits>

#include "module/ModuleTest.h"

using doubles::answer;
using doubles::bufferMessage;
using doubles::topApi;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

constexpr auto Lowest = std::numeric_limits<std::int32_t>::min();
constexpr auto Highest = std::numeric_limits<std::int32_t>::max();
constexpr auto NotRetrieved = "Data could not be retrieved!";

/// The report without the legend of reasons, with these two numbers in their places.
std::string calibrationReport(int status, int reason)
{
    return "PPS PPs Calibration: " + std::to_string(status) + R"(
--- [0]: RTC calibration never initiated
--- [1]: Coarse calibration not completed
--- [2]: Fine calibration not completed
--- [3]: Calibration completed in manual mode
--- [4]: Fine calibration in auto mode
--- [5]: Calibration failed: )" +
           std::to_string(reason) + "\n";
}

constexpr auto ReasonLegend = R"(------ [0]: No reason
------ [1]: Slave Link Loss
------ [2]: No response from master
------ [3]: Modulation change
------ [4]: Calibration coarse need to be completed first
------ [5]: Reserved
)";

class PpsReportsTest : public ModuleTest
{
protected:
    std::string calibrationReportOf(std::uint32_t calibrationStatus, std::uint32_t calibrationFailureReason)
    {
        topApi().calibrationStatusDspPps.calibrationStatus = calibrationStatus;
        topApi().calibrationStatusDspPps.calibrationFailureReason = calibrationFailureReason;
        EXPECT_EQ(0, commands().getPpsCalibrationStatus(1, report));
        return report;
    }

    std::string hopLengthReportOf(std::uint32_t hopLengthTime)
    {
        topApi().hopLengthTimeDspPps.hopLengthTime = hopLengthTime;
        EXPECT_EQ(0, commands().getPpsHopLengthTime(1, report));
        return report;
    }
};

TEST_F(PpsReportsTest, QueriesCarryTheChannelAlone)
{
    EXPECT_EQ(0, commands().getPpsCalibrationStatus(2, report));
    EXPECT_EQ(0, commands().getPpsHopLengthTime(2, report));
    EXPECT_THAT(calls(), ElementsAre("criGetCalibrationStatusDspPps(radioChannel=2)",
                                     "criGetHopLengthTimeDspPps(radioChannel=2)"));
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(PpsReportsTest, FailedCalibrationExplainsItsReason)
{
    EXPECT_EQ(R"(PPS PPs Calibration: 5
--- [0]: RTC calibration never initiated
--- [1]: Coarse calibration not completed
--- [2]: Fine calibration not completed
--- [3]: Calibration completed in manual mode
--- [4]: Fine calibration in auto mode
--- [5]: Calibration failed: 1
------ [0]: No reason
------ [1]: Slave Link Loss
------ [2]: No response from master
------ [3]: Modulation change
------ [4]: Calibration coarse need to be completed first
------ [5]: Reserved
)",
              calibrationReportOf(5, 1));
}

TEST_F(PpsReportsTest, StatesOfTheApiAreNumberedAsInTheLegend)
{
    EXPECT_EQ(calibrationReport(0, 0), calibrationReportOf(0, 0));
    EXPECT_EQ(calibrationReport(1, 0), calibrationReportOf(1, 0));
    EXPECT_EQ(calibrationReport(2, 0), calibrationReportOf(2, 0));
    EXPECT_EQ(calibrationReport(5, 0) + ReasonLegend, calibrationReportOf(5, 0));
}

TEST_F(PpsReportsTest, AutoAndManualModeAreTheOtherWayRoundInTheLegend)
{
    EXPECT_EQ(calibrationReport(4, 0), calibrationReportOf(3, 0));
    EXPECT_EQ(calibrationReport(3, 0), calibrationReportOf(4, 0));
}

TEST_F(PpsReportsTest, UnknownStatesArePrintedAsFailedWithNoReasonToExplain)
{
    for (const std::uint32_t status : {6U, 7U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU})
    {
        EXPECT_EQ(calibrationReport(5, 2), calibrationReportOf(status, 2)) << "status " << status;
    }
}

TEST_F(PpsReportsTest, KnownReasonsArePrintedUnchangedWhateverTheStatus)
{
    for (const int reason : {0, 1, 2, 3, 4})
    {
        EXPECT_EQ(calibrationReport(0, reason), calibrationReportOf(0, static_cast<std::uint32_t>(reason)));
        EXPECT_EQ(calibrationReport(5, reason) + ReasonLegend,
                  calibrationReportOf(5, static_cast<std::uint32_t>(reason)));
    }
}

TEST_F(PpsReportsTest, EveryOtherReasonIsPrintedAsReserved)
{
    for (const std::uint32_t reason : {5U, 6U, 7U, 9U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU})
    {
        EXPECT_EQ(calibrationReport(5, 5) + ReasonLegend, calibrationReportOf(5, reason)) << "reason " << reason;
    }
}

TEST_F(PpsReportsTest, HopLengthTimeIsAnUnsignedNumberOfNanoseconds)
{
    EXPECT_EQ("PPS hop length time[nsec]: 0\n", hopLengthReportOf(0));
    EXPECT_EQ("PPS hop length time[nsec]: 1\n", hopLengthReportOf(1));
    EXPECT_EQ("PPS hop length time[nsec]: 2147483648\n", hopLengthReportOf(0x80000000U));
    EXPECT_EQ("PPS hop length time[nsec]: 4294967295\n", hopLengthReportOf(4294967295U));
}

TEST_F(PpsReportsTest, NegativeCodeIsASuccess)
{
    for (const std::int32_t code : {-1, Lowest})
    {
        answer(topApi().calibrationStatusDspPps, code, "a hint");
        answer(topApi().hopLengthTimeDspPps, code, "a hint");
        EXPECT_EQ(calibrationReport(0, 0), calibrationReportOf(0, 0));
        EXPECT_EQ("PPS hop length time[nsec]: 7\n", hopLengthReportOf(7));
    }
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(PpsReportsTest, FailedQueryIsTracedInThreePiecesAndNothingOfItIsReported)
{
    for (const std::int32_t code : {1, Highest})
    {
        doubles::trace().reset();
        answer(topApi().calibrationStatusDspPps, code, "no calibration");
        topApi().calibrationStatusDspPps.calibrationStatus = 5;
        report = "what was there before";
        EXPECT_EQ(1, commands().getPpsCalibrationStatus(1, report));
        EXPECT_EQ(NotRetrieved, report);

        answer(topApi().hopLengthTimeDspPps, code, "");
        topApi().hopLengthTimeDspPps.hopLengthTime = 7;
        report = "what was there before";
        EXPECT_EQ(1, commands().getPpsHopLengthTime(1, report));
        EXPECT_EQ(NotRetrieved, report);

        EXPECT_THAT(messages(), ElementsAre(bufferMessage("getPpsCalibrationStatus", "no calibration"),
                                            bufferMessage("getPpsHopLengthTime", "")));
    }
}

TEST_F(PpsReportsTest, SilentTraceKeepsResultAndReportAndFormatsNothing)
{
    silenceTrace();
    answer(topApi().calibrationStatusDspPps, 1, "no calibration");
    answer(topApi().hopLengthTimeDspPps, 1, "no hop");
    EXPECT_EQ(1, commands().getPpsCalibrationStatus(1, report));
    EXPECT_EQ(NotRetrieved, report);
    report = "what was there before";
    EXPECT_EQ(1, commands().getPpsHopLengthTime(1, report));
    EXPECT_EQ(NotRetrieved, report);
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_EQ("", doubles::trace().discarded);
}

} // namespace
