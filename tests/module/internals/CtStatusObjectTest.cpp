#include <memory>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doubles/CallLog.h"
#include "doubles/RecordingServices.h"
#include "doubles/RecordingTopApi.h"
#include "doubles/RecordingTrace.h"
#include "private/GetCtStatusDebugCmd.h"

// The library hides the class of its report object; this program compiles it once more, for itself.

using kel::device::kelDebugCmd::GetCtStatusDebugCmd;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

namespace
{

class CtStatusObjectTest : public ::testing::Test
{
protected:
    CtStatusObjectTest()
    {
        doubles::topApi() = {};
        doubles::trace().reset();
        doubles::calls().clear();
    }

    doubles::RecordingNearEnd nearEnd;
};

/// A report object that counts how often it was destroyed.
class CountedObject : public GetCtStatusDebugCmd
{
public:
    CountedObject(ITiManageRadioChannelNearEnd& radioChannelNearEnd, int& destroyed)
        : GetCtStatusDebugCmd(radioChannelNearEnd), m_destroyed(destroyed)
    {
    }

    ~CountedObject() override
    {
        ++m_destroyed;
    }

private:
    int& m_destroyed;
};

TEST_F(CtStatusObjectTest, ItsTraceChannelIsCreatedAtLevelThree)
{
    EXPECT_THAT(doubles::trace().created, ElementsAre(Pair("KEL.KDC.GetCtStatusDebugCmd", 3)));
}

TEST_F(CtStatusObjectTest, ConstructingAndDestroyingItAsksNothingOfAnyone)
{
    {
        const GetCtStatusDebugCmd object(nearEnd);
    }
    EXPECT_THAT(doubles::calls(), IsEmpty());
    EXPECT_THAT(doubles::trace().messages, IsEmpty());
}

TEST_F(CtStatusObjectTest, OwningPointerToTheBaseDestroysTheWholeObjectOnce)
{
    int destroyed = 0;
    std::unique_ptr<GetCtStatusDebugCmd> owner = std::make_unique<CountedObject>(nearEnd, destroyed);
    EXPECT_EQ(0, destroyed);
    owner.reset();
    EXPECT_EQ(1, destroyed);
    EXPECT_THAT(doubles::calls(), IsEmpty());
}

TEST_F(CtStatusObjectTest, EachObjectAsksItsOwnNearEnd)
{
    doubles::RecordingNearEnd other;
    nearEnd.info.radioFrameId = 1;
    other.info.radioFrameId = 2;
    GetCtStatusDebugCmd first(nearEnd);
    GetCtStatusDebugCmd second(other);
    std::string report;
    first.get(1, report);
    EXPECT_THAT(report, ::testing::HasSubstr("Radio Frame Id:           1\n"));
    second.get(1, report);
    EXPECT_THAT(report, ::testing::HasSubstr("Radio Frame Id:           2\n"));
}

TEST_F(CtStatusObjectTest, FailureReplacesTheReportAndIsTraced)
{
    doubles::answer(doubles::topApi().radioChannelStatus, 1, "channel is missing");
    GetCtStatusDebugCmd object(nearEnd);
    std::string report = "what was there before";
    object.get(1, report);
    EXPECT_EQ("Data could not be retrieved!", report);
    EXPECT_THAT(doubles::trace().messages, ElementsAre(doubles::placelessMessage(doubles::GetCtStatusChannel,
                                                                                 "get failed: channel is missing\n")));
}

TEST_F(CtStatusObjectTest, LabelsEndInTheColumnOfTheValues)
{
    using Ct = GetCtStatusDebugCmd;
    const std::pair<const std::string&, const char*> labels[] = {
        {Ct::TxActualStatusName, "Tx Actual Status:         "},
        {Ct::RadioChannelStatusName, "DSP Lock:                 "},
        {Ct::TxModulationAndCodeStringName, "Actual Tx Modulation:     "},
        {Ct::RxModulationAndCodeStringName, "Actual Rx Modulation:     "},
        {Ct::ActualRfInputPowerName, "Actual Rf Input Power:    "},
        {Ct::ReportedRfOutputPowerName, "Reported Rf Output Power: "},
        {Ct::MseName, "Actual SNIR:              "},
        {Ct::SelectedTxFrequencyName, "Tx Frequency:             "},
        {Ct::SelectedRxFrequencyName, "Rx Frequency:             "},
        {Ct::XpicIsStartedName, "XPIC Started:             "},
        {Ct::ActualXpiName, "Actual XPI:               "},
        {Ct::XpicStateName, "XPIC State:               "},
        {Ct::MinTxFrequencyName, "Min Tx Frequency:         "},
        {Ct::MaxTxFrequencyName, "Max Tx Frequency:         "},
        {Ct::MinRxFrequencyName, "Min Rx Frequency:         "},
        {Ct::MaxRxFrequencyName, "Max Rx Frequency:         "},
        {Ct::FrequencyStepSizeName, "Frequency Step Size:      "},
        {Ct::AvailableMinOutputPowerName, "Available Min Output Pwr: "},
        {Ct::AvailableMaxOutputPowerName, "Available Max Output Pwr: "},
        {Ct::RadioChannelId, "Radio Channel Id:         "},
        {Ct::RadioFrameIdName, "Radio Frame Id:           "},
        {Ct::MinModulationAndCodeStringName, "Min Modulation and Code:  "},
        {Ct::MaxModulationAndCodeStringName, "Max Modulation and Code:  "},
        {Ct::TxFrequencyName, "Tx Frequency:             "},
        {Ct::RxFrequencyName, "Rx Frequency:             "},
    };
    EXPECT_EQ(25U, std::size(labels));
    for (const auto& [label, text] : labels)
    {
        EXPECT_EQ(text, label);
        EXPECT_EQ(26U, label.size()) << text;
    }
}

} // namespace
