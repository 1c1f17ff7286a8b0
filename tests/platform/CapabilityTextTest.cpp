#include <cstdint>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "kel_top_api/CriGetRadioChannelCapability.h"
#include "platform/Fresh.h"
#include "platform/ResponseText.h"

namespace
{

using Capability = kel_top_api::CriGetRadioChannelCapability::Response;

constexpr auto Lowest = std::numeric_limits<std::int32_t>::min();
constexpr auto Highest = std::numeric_limits<std::int32_t>::max();
constexpr auto HighestUnsigned = std::numeric_limits<std::uint32_t>::max();

constexpr const char* NewCapabilityText =
    "NumberOfChannels: 0, MinTemp: 0, MaxTemp: 0, AvailableMinRFOutputPower: 0, AvailableMaxRFOutputPower: , "
    "MinTXFrequency: 0, MaxTXFrequency: 0, MinRXFrequency: 0, MaxRXFrequency: 0, FrequencyStepSize: 0, "
    "MinTXFrequencyStep: 0, MaxTXFrequencyStep: 0, MinRXFrequencyStep: 0, MaxRXFrequencyStep: 0, "
    "TXBaseFrequency: 0, RXBaseFrequency: 0, FrequencyBand: 0, FrequencySubBand: 0, DuplexType: , "
    "AvailableRSECs: \n"
    ", TapsCapable: 0, RfLoopAvailable: 0";

TEST(CapabilityTextTest, EveryPrintedMember)
{
    Capability capability;
    capability.NumberOfChannels = 1;
    capability.MinTemp = -33;
    capability.MaxTemp = 55;
    capability.AvailableMinRFOutputPower = -1000;
    capability.AvailableMaxRFOutputPower = {{41, 2000}, {13, -150}};
    capability.MinTXFrequency = 17700000;
    capability.MaxTXFrequency = 18140000;
    capability.MinRXFrequency = 18710000;
    capability.MaxRXFrequency = 19150000;
    capability.FrequencyStepSize = 250;
    capability.MinTXFrequencyStep = 11;
    capability.MaxTXFrequencyStep = 12;
    capability.MinRXFrequencyStep = 13;
    capability.MaxRXFrequencyStep = 14;
    capability.TXBaseFrequency = 17685000;
    capability.RXBaseFrequency = 18695000;
    capability.FrequencyBand = 18;
    capability.FrequencySubBand = 21;
    capability.DuplexType = "FDD";
    capability.AvailableRSECs = {3, 1, 10, 0};
    capability.TapsCapable = true;
    EXPECT_EQ("NumberOfChannels: 1, MinTemp: -33, MaxTemp: 55, AvailableMinRFOutputPower: -1000, "
              "AvailableMaxRFOutputPower: Modulation:16QAM Pmax:2000\tModulation:UNDEFINED Pmax:-150\t, "
              "MinTXFrequency: 17700000, MaxTXFrequency: 18140000, MinRXFrequency: 18710000, MaxRXFrequency: 19150000, "
              "FrequencyStepSize: 250, MinTXFrequencyStep: 11, MaxTXFrequencyStep: 12, MinRXFrequencyStep: 13, "
              "MaxRXFrequencyStep: 14, TXBaseFrequency: 17685000, RXBaseFrequency: 18695000, FrequencyBand: 18, "
              "FrequencySubBand: 21, DuplexType: FDD, AvailableRSECs: 5B\t4L\tUNDEFINED\t2\t\n"
              ", TapsCapable: 1, RfLoopAvailable: 0",
              capability.printResponse());
}

TEST(CapabilityTextTest, ANewResponseHasEmptyLists)
{
    EXPECT_EQ(NewCapabilityText, Fresh<Capability>()->printResponse());
}

TEST(CapabilityTextTest, EachFlagIsPrintedInItsOwnPlace)
{
    Capability taps;
    taps.TapsCapable = true;
    EXPECT_EQ(replaced(NewCapabilityText, ", TapsCapable: ", "0", "1"), taps.printResponse());
    Capability loop;
    loop.RfLoopAvailable = true;
    EXPECT_EQ(replaced(NewCapabilityText, ", RfLoopAvailable: ", "0", "1"), loop.printResponse());
}

TEST(CapabilityTextTest, FrequenciesAreNeverNegative)
{
    using Number = std::uint32_t Capability::*;
    const std::vector<std::pair<Number, const char*>> numbers = {
        {&Capability::NumberOfChannels, "NumberOfChannels: "},
        {&Capability::MinTXFrequency, ", MinTXFrequency: "},
        {&Capability::MaxTXFrequency, ", MaxTXFrequency: "},
        {&Capability::MinRXFrequency, ", MinRXFrequency: "},
        {&Capability::MaxRXFrequency, ", MaxRXFrequency: "},
        {&Capability::FrequencyStepSize, ", FrequencyStepSize: "},
        {&Capability::MinTXFrequencyStep, ", MinTXFrequencyStep: "},
        {&Capability::MaxTXFrequencyStep, ", MaxTXFrequencyStep: "},
        {&Capability::MinRXFrequencyStep, ", MinRXFrequencyStep: "},
        {&Capability::MaxRXFrequencyStep, ", MaxRXFrequencyStep: "},
        {&Capability::TXBaseFrequency, ", TXBaseFrequency: "},
        {&Capability::RXBaseFrequency, ", RXBaseFrequency: "},
        {&Capability::FrequencyBand, ", FrequencyBand: "},
        {&Capability::FrequencySubBand, ", FrequencySubBand: "},
    };
    for (const auto& [number, label] : numbers)
    {
        Capability capability;
        capability.*number = 0x80000000U;
        EXPECT_EQ(replaced(NewCapabilityText, label, "0", "2147483648"), capability.printResponse());
        capability.*number = HighestUnsigned;
        EXPECT_EQ(replaced(NewCapabilityText, label, "0", "4294967295"), capability.printResponse());
    }
}

TEST(CapabilityTextTest, TemperaturesAndLowestPowerAreSigned)
{
    const std::vector<std::pair<std::int32_t Capability::*, const char*>> numbers = {
        {&Capability::MinTemp, ", MinTemp: "},
        {&Capability::MaxTemp, ", MaxTemp: "},
        {&Capability::AvailableMinRFOutputPower, ", AvailableMinRFOutputPower: "},
    };
    for (const auto& [number, label] : numbers)
    {
        Capability capability;
        capability.*number = Lowest;
        EXPECT_EQ(replaced(NewCapabilityText, label, "0", "-2147483648"), capability.printResponse());
    }
}

TEST(CapabilityTextTest, MaximumPowersAreSignedAndNamedByTheTable)
{
    Capability capability;
    capability.AvailableMaxRFOutputPower = {{143, Lowest}, {142, Highest}, {10, 0}, {HighestUnsigned, -1}, {10, 1}};
    EXPECT_EQ(replaced(NewCapabilityText, ", AvailableMaxRFOutputPower: ", "",
                       "Modulation:UNDEFINED Pmax:-2147483648\tModulation:16384QAM_LIGHT Pmax:2147483647\t"
                       "Modulation:HALF_BPSK_STRONG Pmax:0\tModulation:UNDEFINED Pmax:-1\t"
                       "Modulation:HALF_BPSK_STRONG Pmax:1\t"),
              capability.printResponse());
}

TEST(CapabilityTextTest, EquipmentClassesAreNamed)
{
    const std::vector<std::pair<std::uint32_t, const char*>> names = {
        {0, "2"},   {1, "4L"},  {2, "4H"},  {3, "5B"}, {4, "6B"},         {5, "5LB"},
        {6, "5HB"}, {7, "6LB"}, {8, "6HB"}, {9, "7B"}, {10, "UNDEFINED"}, {HighestUnsigned, "UNDEFINED"},
    };
    for (const auto& [code, name] : names)
    {
        Capability capability;
        capability.AvailableRSECs = {code};
        EXPECT_EQ(replaced(NewCapabilityText, ", AvailableRSECs: ", "", std::string(name) + "\t"),
                  capability.printResponse())
            << code;
    }
}

TEST(CapabilityTextTest, TheOutcomeOfTheCallIsLeftOut)
{
    Capability capability;
    capability.opaqueWord = 77;
    capability.resultCode = 88;
    capability.resultText = "refused";
    EXPECT_EQ(NewCapabilityText, capability.printResponse());
}

} // namespace
