#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "kel_top_api/CriGetRadioChannelCapability.h"
#include "node/services/RecordText.h"
#include "node/services/ServiceTest.h"
#include "platform/ResponseText.h"

using kel_top_api::criGetRadioChannelCapability;
using node::radio::LinkSetup;

namespace
{

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

const std::string Before = "NumberOfChannels: 2, MinTemp: -33, MaxTemp: 55, AvailableMinRFOutputPower: -200, "
                           "AvailableMaxRFOutputPower: " +
                           MaxPowerItems;
const std::string After = ", FrequencySubBand: 1, DuplexType: FDD, AvailableRSECs: "
                          "2\t4L\t4H\t5B\t6B\t5LB\t5HB\t6LB\t6HB\t7B\t\n"
                          ", TapsCapable: 1, RfLoopAvailable: 1";

const std::string Frequencies18 = ", MinTXFrequency: 17727500, MaxTXFrequency: 18662500, MinRXFrequency: 18737500, "
                                  "MaxRXFrequency: 19672500, FrequencyStepSize: 250, MinTXFrequencyStep: 0, "
                                  "MaxTXFrequencyStep: 3740, MinRXFrequencyStep: 0, MaxRXFrequencyStep: 3740, "
                                  "TXBaseFrequency: 17727500, RXBaseFrequency: 18737500, FrequencyBand: 18";

using CapabilityServiceTest = ServiceTest;

TEST_P(CapabilityServiceTest, AnswersTheCapabilityOfTheRadio)
{
    auto response = criGetRadioChannelCapability({channel});
    expectDone(response);
    EXPECT_EQ(42U, response.AvailableMaxRFOutputPower.size());
    EXPECT_EQ(Before + Frequencies18 + After, response.printResponse());
}

TEST_P(CapabilityServiceTest, TheCapabilityDoesNotDependOnTheRequestsOtherMembers)
{
    EXPECT_EQ(wholeOf(criGetRadioChannelCapability({channel})),
              wholeOf(criGetRadioChannelCapability({channel, 7, 31, 122, 5, 6, 8})));
}

TEST_P(CapabilityServiceTest, TheCapabilityDoesNotDependOnTheLinksState)
{
    const auto before = wholeOf(criGetRadioChannelCapability({channel}));
    link.change(channel, [](auto& state) { state.transmitter.on = false; });
    link.turnRain(100.0);
    EXPECT_EQ(before, wholeOf(criGetRadioChannelCapability({channel})));
}

INSTANTIATE_TEST_SUITE_P(EachChannel, CapabilityServiceTest, ::testing::Values(1, 2));

TEST(CapabilityTest, TheHighestPowersFollowTheTransmittersPeakPower)
{
    LinkSetup setup;
    setup.hop.peakPower_dBm = 30.005;
    const ServiceBench bench(setup);
    const auto powers = criGetRadioChannelCapability({1}).AvailableMaxRFOutputPower;
    ASSERT_EQ(42U, powers.size());
    EXPECT_EQ(10U, powers.front().modulationAndCode);
    EXPECT_EQ(3001, powers.front().power);
    EXPECT_EQ(142U, powers.back().modulationAndCode);
    EXPECT_EQ(2241, powers.back().power);
}

TEST(CapabilityTest, TheNumberOfChannelsIsTheLinks)
{
    const ServiceBench bench(oneChannel());
    auto response = criGetRadioChannelCapability({1});
    EXPECT_EQ(replaced(Before + Frequencies18 + After, "NumberOfChannels: ", "2", "1"), response.printResponse());
}

TEST(CapabilityTest, TheChannelOfThePlanThatIsUsedDoesNotChangeTheRange)
{
    LinkSetup setup;
    setup.hop.frequencyNumber = 35;
    const ServiceBench bench(setup);
    EXPECT_EQ(Before + Frequencies18 + After, criGetRadioChannelCapability({1}).printResponse());
}

struct PlanRow
{
    std::string plan;
    std::string frequencies;
};

std::ostream& operator<<(std::ostream& out, const PlanRow& row)
{
    return out << row.plan;
}

class CapabilityPlanTest : public ::testing::TestWithParam<PlanRow>
{
};

TEST_P(CapabilityPlanTest, TheFrequenciesAreThoseOfThePlan)
{
    LinkSetup setup;
    setup.hop.plan = node::radio::findFrequencyPlan(GetParam().plan);
    const ServiceBench bench(setup);
    auto response = criGetRadioChannelCapability({2});
    EXPECT_EQ(Before + GetParam().frequencies + After, response.printResponse());
}

INSTANTIATE_TEST_SUITE_P(
    EachPlan, CapabilityPlanTest,
    ::testing::Values(PlanRow{"13 GHz",
                              ", MinTXFrequency: 12765000, MaxTXFrequency: 12961000, MinRXFrequency: 13031000, "
                              "MaxRXFrequency: 13227000, FrequencyStepSize: 250, MinTXFrequencyStep: 0, "
                              "MaxTXFrequencyStep: 784, MinRXFrequencyStep: 0, MaxRXFrequencyStep: 784, "
                              "TXBaseFrequency: 12765000, RXBaseFrequency: 13031000, FrequencyBand: 13"},
                      PlanRow{"18 GHz", Frequencies18},
                      PlanRow{"23 GHz",
                              ", MinTXFrequency: 21238000, MaxTXFrequency: 22330000, MinRXFrequency: 22470000, "
                              "MaxRXFrequency: 23562000, FrequencyStepSize: 250, MinTXFrequencyStep: 0, "
                              "MaxTXFrequencyStep: 4368, MinRXFrequencyStep: 0, MaxRXFrequencyStep: 4368, "
                              "TXBaseFrequency: 21238000, RXBaseFrequency: 22470000, FrequencyBand: 23"}));

} // namespace
