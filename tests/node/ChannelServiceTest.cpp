#include <cstdint>
#include <string>

#include <gtest/gtest.h>

#include "kel_top_api/CriGetRadioChannelCapability.h"
#include "kel_top_api/CriGetRadioChannelStatus.h"
#include "node/ServiceTest.h"
#include "node/services/RadioChannelNearEnd.h"

using kel_top_api::criGetRadioChannelCapability;
using kel_top_api::criGetRadioChannelStatus;

namespace
{

using ChannelServiceTest = ServiceTest;

TEST_P(ChannelServiceTest, AnswersTheStatusOfTheLinkInClearSky)
{
    auto response = criGetRadioChannelStatus({channel});
    expectDone(response);
    EXPECT_EQ("TXActualStatus: On, RadioChannelStatus: Up, ActualModulation: 4096QAM, ActualTxModulation: 4096QAM, "
              "ActualRxModulation:4096QAM, ActualRFInputPower: -4302, ReportedRFOutputPower: 1800, ClockStatus: 0, "
              "ActualSNIR: 4391, ErroredBlocks: 0, BackgroundBlocks: 0, TxFrequency: 17727500, "
              "RxFrequency: 18737500, KelState: Enabled\n",
              response.printResponse());
    EXPECT_TRUE(response.XpicIsStarted);
    EXPECT_EQ(400, response.ActualXpi);
    EXPECT_EQ("Locked", response.XpicState);
}

TEST_P(ChannelServiceTest, TheStatusFollowsPredistortion)
{
    link.change(channel, [](auto& state) { state.dpd.running = false; });
    EXPECT_EQ(3488, criGetRadioChannelStatus({channel}).ActualSNIR);
    EXPECT_EQ(4391, criGetRadioChannelStatus({otherChannel}).ActualSNIR);
}

TEST_P(ChannelServiceTest, TheStatusTellsThatTheSlaveIsMuted)
{
    link.change(channel, [](auto& state) { state.xpic.slaveMuted = true; });
    const auto response = criGetRadioChannelStatus({channel});
    EXPECT_EQ("Muted", response.XpicState);
    EXPECT_TRUE(response.XpicIsStarted);
    EXPECT_EQ(3855, response.ActualSNIR);
    EXPECT_EQ("Locked", criGetRadioChannelStatus({otherChannel}).XpicState);
}

TEST_P(ChannelServiceTest, TheStatusTellsThatTheCancellerIsNotAcquired)
{
    link.change(channel, [](auto& state) { state.xpic.acquired = false; });
    const auto response = criGetRadioChannelStatus({channel});
    EXPECT_EQ("Unlocked", response.XpicState);
    EXPECT_FALSE(response.XpicIsStarted);
    EXPECT_EQ(3855, response.ActualSNIR);
}

TEST_P(ChannelServiceTest, TheStatusDoesNotDependOnTheFlagOfOthers)
{
    EXPECT_EQ(criGetRadioChannelStatus({channel, false}).printResponse(),
              criGetRadioChannelStatus({channel, true}).printResponse());
}

/// Each of the 42 modulations and codes with its highest power in hundredths of a dBm.
const std::string MaxPowerItems = "Modulation:HALF_BPSK_STRONG Pmax:2420\tModulation:HALF_BPSK Pmax:2400\t"
                                  "Modulation:HALF_BPSK_LIGHT Pmax:2380\tModulation:BPSK_STRONG Pmax:2420\t"
                                  "Modulation:BPSK Pmax:2400\tModulation:BPSK_LIGHT Pmax:2380\t"
                                  "Modulation:4QAM_STRONG Pmax:2420\tModulation:4QAM Pmax:2400\t"
                                  "Modulation:4QAM_LIGHT Pmax:2380\tModulation:16QAM_STRONG Pmax:2300\t"
                                  "Modulation:16QAM Pmax:2280\tModulation:16QAM_LIGHT Pmax:2260\t"
                                  "Modulation:32QAM_STRONG Pmax:2240\tModulation:32QAM Pmax:2220\t"
                                  "Modulation:32QAM_LIGHT Pmax:2200\tModulation:64QAM_STRONG Pmax:2180\t"
                                  "Modulation:64QAM Pmax:2160\tModulation:64QAM_LIGHT Pmax:2140\t"
                                  "Modulation:128QAM_STRONG Pmax:2120\tModulation:128QAM Pmax:2100\t"
                                  "Modulation:128QAM_LIGHT Pmax:2080\tModulation:256QAM_STRONG Pmax:2060\t"
                                  "Modulation:256QAM Pmax:2040\tModulation:256QAM_LIGHT Pmax:2020\t"
                                  "Modulation:512QAM_STRONG Pmax:2000\tModulation:512QAM Pmax:1980\t"
                                  "Modulation:512QAM_LIGHT Pmax:1960\tModulation:1024QAM_STRONG Pmax:1940\t"
                                  "Modulation:1024QAM Pmax:1920\tModulation:1024QAM_LIGHT Pmax:1900\t"
                                  "Modulation:2048QAM_STRONG Pmax:1880\tModulation:2048QAM Pmax:1860\t"
                                  "Modulation:2048QAM_LIGHT Pmax:1840\tModulation:4096QAM_STRONG Pmax:1820\t"
                                  "Modulation:4096QAM Pmax:1800\tModulation:4096QAM_LIGHT Pmax:1780\t"
                                  "Modulation:8192QAM_STRONG Pmax:1760\tModulation:8192QAM Pmax:1740\t"
                                  "Modulation:8192QAM_LIGHT Pmax:1720\tModulation:16384QAM_STRONG Pmax:1700\t"
                                  "Modulation:16384QAM Pmax:1680\tModulation:16384QAM_LIGHT Pmax:1660\t";

TEST_P(ChannelServiceTest, AnswersTheCapabilityOfTheRadio)
{
    auto response = criGetRadioChannelCapability({channel});
    expectDone(response);
    EXPECT_EQ(42U, response.AvailableMaxRFOutputPower.size());
    EXPECT_EQ("NumberOfChannels: 2, MinTemp: -33, MaxTemp: 55, AvailableMinRFOutputPower: -200, "
              "AvailableMaxRFOutputPower: " +
                  MaxPowerItems +
                  ", MinTXFrequency: 17727500, MaxTXFrequency: 18662500, MinRXFrequency: 18737500, "
                  "MaxRXFrequency: 19672500, FrequencyStepSize: 250, MinTXFrequencyStep: 0, "
                  "MaxTXFrequencyStep: 3740, MinRXFrequencyStep: 0, MaxRXFrequencyStep: 3740, "
                  "TXBaseFrequency: 17727500, RXBaseFrequency: 18737500, FrequencyBand: 18, FrequencySubBand: 1, "
                  "DuplexType: FDD, AvailableRSECs: 2\t4L\t4H\t5B\t6B\t5LB\t5HB\t6LB\t6HB\t7B\t\n"
                  ", TapsCapable: 1, RfLoopAvailable: 1",
              response.printResponse());
}

TEST_P(ChannelServiceTest, TheCapabilityDoesNotDependOnTheRequestsOtherMembers)
{
    EXPECT_EQ(criGetRadioChannelCapability({channel}).printResponse(),
              criGetRadioChannelCapability({channel, 7, 31, 122, 5, 6, 8}).printResponse());
}

TEST_P(ChannelServiceTest, AnswersTheIdentityOfTheNearEnd)
{
    node::services::RadioChannelNearEnd nearEnd(link);
    RadioChannelInfo info;
    const auto result = nearEnd.getRadioChannelInfo({channel}, &info);
    EXPECT_EQ(0, result.resultCode);
    EXPECT_EQ("", result.errorText);
    EXPECT_EQ(static_cast<std::int32_t>(channel), info.radioChannelId);
    EXPECT_EQ(1, info.radioFrameId);
    EXPECT_EQ("4QAM_STRONG", info.minModulationAndCode);
    EXPECT_EQ("4096QAM", info.maxModulationAndCode);
    EXPECT_EQ(0U, info.flag2);
    EXPECT_EQ("", info.text6);
    EXPECT_EQ(0U, info.number7);
    EXPECT_EQ(0U, info.number8);
    EXPECT_EQ(0U, info.number9);
    EXPECT_EQ(0U, info.number10);
}

INSTANTIATE_TEST_SUITE_P(EachChannel, ChannelServiceTest, ::testing::Values(1, 2));

} // namespace
