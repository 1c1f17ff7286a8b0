#pragma once

#include "module/ModuleTest.h"

/// The module with channels in good health: what the three queries of the carrier-termination report answer.
class CtStatusTest : public ModuleTest
{
protected:
    CtStatusTest()
    {
        status().TXActualStatus = "On";
        status().RadioChannelStatus = "Up";
        status().ActualModulation = "not shown";
        status().ActualTxModulation = "4096QAM_LIGHT";
        status().ActualRxModulation = "2048QAM";
        status().ActualRFInputPower = -4512;
        status().ReportedRFOutputPower = 1850;
        status().ClockStatus = 97001;
        status().ActualSNIR = 4125;
        status().ErroredBlocks = 97002;
        status().BackgroundBlocks = 97003;
        status().TxFrequency = 18700000;
        status().RxFrequency = 19710000;
        status().KelState = "not shown";
        status().XpicIsStarted = true;
        status().ActualXpi = 253;
        status().XpicState = "Locked on master";

        capability().MinTXFrequency = 17700000;
        capability().MaxTXFrequency = 18140000;
        capability().MinRXFrequency = 18710000;
        capability().MaxRXFrequency = 19150000;
        capability().FrequencyStepSize = 250;
        capability().AvailableMinRFOutputPower = -1050;
        capability().AvailableMaxRFOutputPower = {{31, 2400}, {41, 2350}, {122, 1905}};

        nearEnd.info.radioChannelId = 11;
        nearEnd.info.radioFrameId = 22;
        nearEnd.info.minModulationAndCode = "4QAM_STRONG";
        nearEnd.info.maxModulationAndCode = "4096QAM";
        nearEnd.info.text6 = "not shown";
    }

    static kel_top_api::CriGetRadioChannelStatus::Response& status()
    {
        return doubles::topApi().radioChannelStatus;
    }

    static kel_top_api::CriGetRadioChannelCapability::Response& capability()
    {
        return doubles::topApi().radioChannelCapability;
    }

    std::string reportOf(RadioChannel channel)
    {
        report = "what was there before";
        EXPECT_EQ(0, commands().getCtStatus(channel, report));
        return report;
    }

    static constexpr auto StatusQuery = "criGetRadioChannelStatus(radioChannel=1, flag2=0)";
    static constexpr auto CapabilityQuery =
        "criGetRadioChannelCapability(radioChannel=1, number2=0, modulationAndCode3=143, modulationAndCode4=143, "
        "number5=1000, number6=0, number7=0)";
    static constexpr auto IdentityQuery = "ITiManageRadioChannelNearEnd.getRadioChannelInfo(1)";
};
