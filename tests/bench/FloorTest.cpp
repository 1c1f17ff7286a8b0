#include "bench/Floor.h"

#include <limits>

#include "module/CtStatusTest.h"

// A floor that writes another text than the module would measure something else.

namespace
{

using doubles::topApi;

constexpr auto Lowest = std::numeric_limits<std::int32_t>::min();
constexpr auto Highest = std::numeric_limits<std::int32_t>::max();

class FloorTest : public CtStatusTest
{
protected:
    std::string ctReport()
    {
        bench::floor::ctReport(m_buffer, 1, status(), capability(), nearEnd.info);
        return text();
    }

    template <typename Response>
    std::string printed(const Response& response)
    {
        bench::floor::printed(m_buffer, response);
        return text();
    }

    std::string text() const
    {
        return fmt::to_string(m_buffer);
    }

    bench::floor::Buffer m_buffer;
};

TEST_F(FloorTest, WritesTheReportOfACarrierTermination)
{
    EXPECT_EQ(reportOf(1), ctReport());
    status().XpicIsStarted = false;
    for (const std::string lock : {"Down", "Testing"})
    {
        status().RadioChannelStatus = lock;
        EXPECT_EQ(reportOf(1), ctReport());
    }
}

TEST_F(FloorTest, WritesEachModulationAndCode)
{
    capability().AvailableMaxRFOutputPower.clear();
    for (std::uint32_t code = 0; code < 150; ++code)
    {
        capability().AvailableMaxRFOutputPower.push_back({code, static_cast<std::int32_t>(code) * 7 - 500});
    }
    EXPECT_EQ(reportOf(1), ctReport());
    EXPECT_EQ(capability().printResponse(), printed(capability()));
}

TEST_F(FloorTest, WritesLevelsOfAnySize)
{
    for (const std::int32_t level : {Lowest, -99'999'950, -1, 0, 5, 10, 99'999'949, 99'999'950, Highest})
    {
        status().ActualRFInputPower = status().ReportedRFOutputPower = status().ActualSNIR = level;
        capability().AvailableMinRFOutputPower = level;
        EXPECT_EQ(reportOf(1), ctReport());
    }
}

TEST_F(FloorTest, WritesTheStatusOfTheCanceller)
{
    for (const std::int32_t offset_Hz : {Lowest, -8'864, 0, 123'456, Highest})
    {
        topApi().manageXpic.SlaveCarrierOffset = offset_Hz;
        topApi().manageXpic.SlaveSweepOngoing = offset_Hz > 0;
        topApi().manageXpic.CalibrationStatus = 255;
        EXPECT_EQ(0, commands().getXpicStatus(1, report));
        bench::floor::xpicStatusReport(m_buffer, topApi().manageXpic);
        EXPECT_EQ(report, text());
    }
}

TEST_F(FloorTest, WritesTheReportsOfThePpsOutput)
{
    for (std::uint32_t number = 0; number < 8; ++number)
    {
        topApi().calibrationStatusDspPps.calibrationStatus = number;
        topApi().calibrationStatusDspPps.calibrationFailureReason = 7 - number;
        EXPECT_EQ(0, commands().getPpsCalibrationStatus(1, report));
        bench::floor::ppsCalibrationReport(m_buffer, topApi().calibrationStatusDspPps);
        EXPECT_EQ(report, text());
    }
    topApi().hopLengthTimeDspPps.hopLengthTime = std::numeric_limits<std::uint32_t>::max();
    EXPECT_EQ(0, commands().getPpsHopLengthTime(1, report));
    bench::floor::ppsHopLengthReport(m_buffer, topApi().hopLengthTimeDspPps);
    EXPECT_EQ(report, text());
}

TEST_F(FloorTest, WritesTheRecords)
{
    EXPECT_EQ(topApi().calibrateDspPps.printResponse(), printed(topApi().calibrateDspPps));
    EXPECT_EQ(topApi().hopLengthTimeDspPps.printResponse(), printed(topApi().hopLengthTimeDspPps));
    EXPECT_EQ(status().printResponse(), printed(status()));

    capability().DuplexType = "FDD";
    capability().TapsCapable = true;
    for (std::uint32_t code = 0; code < 12; ++code)
    {
        capability().AvailableRSECs.push_back(code);
    }
    EXPECT_EQ(capability().printResponse(), printed(capability()));

    auto& xpic = topApi().manageXpic;
    xpic.XpicControlBarOn = xpic.XpicTxEnable = true;
    xpic.AverageQ = Lowest;
    xpic.TxMessage = "sent";
    xpic.XpicState = "Locked";
    for (std::uint32_t mode = 0; mode < 6; ++mode)
    {
        xpic.XpicEnableExt = static_cast<kel_top_api::TiManageXpic::XpicEnableExtType>(mode);
        EXPECT_EQ(xpic.printResponse(), printed(xpic));
    }
}

} // namespace
