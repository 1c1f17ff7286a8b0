#include <string>

#include <gtest/gtest.h>

#include "kel_top_api/CriGetRadioChannelStatus.h"
#include "kel_top_api/TiManageXpic.h"
#include "node/services/RecordText.h"
#include "node/services/ServiceTest.h"

using kel_top_api::criGetRadioChannelStatus;
using kel_top_api::TiManageXpic;

namespace
{

/// A link of one channel: no other polarisation, and nothing to cancel.
class OneChannelServiceTest : public ::testing::Test, protected ServiceBench
{
protected:
    OneChannelServiceTest() : ServiceBench(oneChannel())
    {
        command.RadioChannelID = 1;
    }

    static TiManageXpic::Response withoutACanceller()
    {
        TiManageXpic::Response response;
        response.RadioChannelID = 1;
        response.TxMessage = "Preamble 0";
        response.RxMessage = "No signal";
        response.XpicState = "Idle";
        response.SlaveInternalAgc = 600;
        response.SlaveExternalAgc = 300;
        response.XpicCableConnected = true;
        response.XpicTxEnable = true;
        response.SlaveDiffGain = 670;
        response.Xpd = 400;
        return response;
    }

    TiManageXpic::Command command;
};

TEST_F(OneChannelServiceTest, TheStatusKnowsNoCancellerAndNoInterference)
{
    const auto response = criGetRadioChannelStatus({1});
    EXPECT_FALSE(response.XpicIsStarted);
    EXPECT_EQ(999, response.ActualXpi);
    EXPECT_EQ("Idle", response.XpicState);
    EXPECT_EQ(4402, response.ActualSNIR);
}

TEST_F(OneChannelServiceTest, TheCancellerIsNotEnabled)
{
    EXPECT_EQ(wholeOf(withoutACanceller()), wholeOf(tiManageXpic(command)));
}

TEST_F(OneChannelServiceTest, AnAcquisitionIsRefused)
{
    command.AcquireStart = true;
    auto expected = withoutACanceller();
    expected.resultCode = 1;
    expected.resultText = "acquisition: found one channel, expected the other polarisation on a second one";
    EXPECT_EQ(wholeOf(expected), wholeOf(tiManageXpic(command)));
    command.AcquireStart = false;
    EXPECT_EQ(wholeOf(withoutACanceller()), wholeOf(tiManageXpic(command)));
}

TEST_F(OneChannelServiceTest, APreambleCanBeChosenAllTheSame)
{
    command.Preamble = TiManageXpic::PreambleType::Preamble3;
    auto expected = withoutACanceller();
    expected.XpicPreamble = TiManageXpic::PreambleType::Preamble3;
    expected.TxMessage = "Preamble 3";
    EXPECT_EQ(wholeOf(expected), wholeOf(tiManageXpic(command)));
}

} // namespace
