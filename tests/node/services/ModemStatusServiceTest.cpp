#include <cstdint>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/services/ModemStatus.h"
#include "node/services/ServiceTest.h"
#include "platform/ResponseText.h"

using node::radio::Channel;
using ::testing::Each;
using ::testing::ElementsAre;

namespace
{

class ModemStatusServiceTest : public ServiceTest
{
protected:
    /// The text of the channel's full status.
    std::string text()
    {
        DspModemStatus status;
        status.request = 2;
        const auto result = modem.getDspModemStatus(channel, &status);
        EXPECT_EQ(0, result.resultCode);
        EXPECT_EQ("", result.errorText);
        return modem.toString(status);
    }

    std::string heading = "Modem status of radio channel " + std::to_string(channel) + "\n";
    node::services::ModemStatus modem{context};
};

constexpr const char* ClearSky = "Lock:          locked\n"
                                 "Symbol rate:   25000 kBd\n"
                                 "Constellation: 4096 points\n"
                                 "Level:         -43.02 dBm\n"
                                 "SNIR:          43.91 dB\n"
                                 "DPD:           running\n"
                                 "XPIC:          acquired\n";

TEST_P(ModemStatusServiceTest, TellsTheStatusOfTheLinkInClearSky)
{
    EXPECT_EQ(heading + ClearSky, text());
}

TEST_P(ModemStatusServiceTest, TellsThatPredistortionAndCancellerAreOff)
{
    link.change(channel,
                [](Channel& state)
                {
                    state.dpd.stop();
                    state.xpic.state = node::radio::XpicState::Idle;
                });
    EXPECT_EQ(heading + "Lock:          locked\n"
                        "Symbol rate:   25000 kBd\n"
                        "Constellation: 4096 points\n"
                        "Level:         -43.02 dBm\n"
                        "SNIR:          33.72 dB\n"
                        "DPD:           stopped\n"
                        "XPIC:          not acquired\n",
              text());
}

TEST_P(ModemStatusServiceTest, TellsThatTheLockIsLost)
{
    link.turnFade(60.0);
    EXPECT_EQ(heading + "Lock:          unlocked\n"
                        "Symbol rate:   25000 kBd\n"
                        "Constellation: 4 points\n"
                        "Level:         -103.02 dBm\n"
                        "SNIR:          -9.03 dB\n"
                        "DPD:           running\n"
                        "XPIC:          not acquired\n",
              text());
}

TEST_P(ModemStatusServiceTest, AMutedCancellerIsStillAcquired)
{
    link.change(channel, [](Channel& state) { state.xpic.slaveMuted = true; });
    EXPECT_EQ(heading + replaced(ClearSky, "SNIR:          ", "43.91", "38.55"), text());
}

TEST_P(ModemStatusServiceTest, TheSymbolRateIsTheHops)
{
    node::radio::LinkSetup setup;
    setup.hop.symbolRate_Bd = 6'250'900.0;
    node::radio::RadioLink otherLink(setup);
    node::services::ModemStatus otherModem({otherLink, faults});
    DspModemStatus status;
    status.request = 2;
    EXPECT_EQ(0, otherModem.getDspModemStatus(channel, &status).resultCode);
    EXPECT_EQ(6251U, status.content[2]);
}

TEST_P(ModemStatusServiceTest, TheTextDoesNotDependOnTheProcessesLocale)
{
    const GroupingLocale locale;
    EXPECT_EQ(heading + ClearSky, text());
}

TEST_P(ModemStatusServiceTest, FillsEveryWordOfTheRecord)
{
    DspModemStatus status;
    status.request = 2;
    status.content.fill(0xA5A5A5A5U);
    EXPECT_EQ(0, modem.getDspModemStatus(channel, &status).resultCode);
    EXPECT_EQ(2U, status.request);
    EXPECT_THAT(status.content,
                ElementsAre(channel, 1, 25000, 4096, static_cast<std::uint32_t>(-4302), 4391, 1, 1, 0, 0, 0));
}

TEST_P(ModemStatusServiceTest, EveryOtherRequestIsRefused)
{
    for (const std::uint32_t request : {0U, 1U, 3U, 0xFFFFFFFFU})
    {
        DspModemStatus status;
        status.request = request;
        status.content.fill(7);
        const auto result = modem.getDspModemStatus(channel, &status);
        EXPECT_EQ(0x8000, result.resultCode);
        EXPECT_EQ("request: found " + std::to_string(request) + ", expected 2", result.errorText);
        EXPECT_THAT(status.content, Each(7));
    }
}

TEST_P(ModemStatusServiceTest, NegativeAndFractionalDecibelsAreWrittenWithTwoDecimals)
{
    DspModemStatus status;
    status.content = {channel, 2, 1, 2, static_cast<std::uint32_t>(-5), static_cast<std::uint32_t>(-100), 2, 0};
    EXPECT_EQ(heading + "Lock:          locked\n"
                        "Symbol rate:   1 kBd\n"
                        "Constellation: 2 points\n"
                        "Level:         -0.05 dBm\n"
                        "SNIR:          -1.00 dB\n"
                        "DPD:           running\n"
                        "XPIC:          not acquired\n",
              modem.toString(status));
}

INSTANTIATE_TEST_SUITE_P(EachChannel, ModemStatusServiceTest, ::testing::Values(1, 2));

} // namespace
