#include <new>

#include "node/services/FaultOf.h"
#include "node/startup/StartUpTest.h"

using node::startup::Node;
using ::testing::IsEmpty;

namespace
{

/// Nodes that keep running when a module refuses its initialisation.
class FailedModulesTest : public NodeStartUpTest
{
protected:
    FailedModulesTest()
    {
        configuration.runsWithFailedModules = true;
    }

    /// What stopping the predistortion of both channels answers.
    static std::pair<int, int> stopBoth(Node& node)
    {
        return {node.commands()->stopDpd(1), node.commands()->stopDpd(2)};
    }

    Configuration configuration;
};

TEST_F(FailedModulesTest, WithoutItsBoardSupportANodeRunsWithoutCommands)
{
    configuration.broker = {{"IRlbspKelApi", Entry::Absent}};
    Node node(configuration);
    EXPECT_EQ(nullptr, node.commands());
    EXPECT_EQ(1U, modules().size());
    EXPECT_EQ(0, kel_top_api::criGetHopLengthTimeDspPps({1}).resultCode);
    expectComplaint("failed to get interface toIRlbspKelApi");
}

TEST_F(FailedModulesTest, WithoutTheFirstControllerTheCommandsOfBothFailSilently)
{
    configuration.broker = {{"IDpdControllerSplit_1", Entry::OtherType}};
    Node node(configuration);
    ASSERT_NE(nullptr, node.commands());
    expectComplaint("Error getting interface to IDpdControllerSplit_1");
    EXPECT_EQ(std::pair(1, 1), stopBoth(node));
    EXPECT_EQ(1, node.commands()->startDpd(1));
    EXPECT_EQ(1, node.commands()->setDpdCoefficients(1, {{1}}));
    DpdCoeffs coefficients{{99}};
    EXPECT_EQ(1, node.commands()->getDpdCoefficients(1, &coefficients));
    EXPECT_EQ((DpdCoeffs{{99}}.bytes), coefficients.bytes);
    EXPECT_EQ(1U, recorder.messages.size());
    EXPECT_TRUE(node.link().snapshot(1).state.dpd.running);
    EXPECT_TRUE(node.link().snapshot(2).state.dpd.running);
}

TEST_F(FailedModulesTest, WithoutTheSecondControllerTheCommandsOfTheFirstWork)
{
    configuration.broker = {{"IDpdControllerSplit_2", Entry::Empty}};
    Node node(configuration);
    expectComplaint("Error getting interface to IDpdControllerSplit_2");
    EXPECT_EQ(std::pair(0, 1), stopBoth(node));
    EXPECT_FALSE(node.link().snapshot(1).state.dpd.running);
    EXPECT_EQ(1U, recorder.messages.size());
}

TEST_F(FailedModulesTest, TheOtherCommandsWork)
{
    configuration.broker = {{"IDpdControllerSplit_1", Entry::Absent}};
    Node node(configuration);
    std::string report;
    EXPECT_EQ(0, node.commands()->getCtStatus(2, report));
    EXPECT_THAT(report, ::testing::StartsWith("\n=====================================\nCT info channel 2\n"));
    EXPECT_EQ(0, node.commands()->setXpicSlaveMute(1, 1));
}

TEST_F(FailedModulesTest, TheModulesAfterOneThatRefusesAreInitialised)
{
    {
        OtherModule refusing("Fan", 17);
        OtherModule last("Alarm");
        Node node(configuration);
        EXPECT_EQ(1, refusing.initialisations);
        EXPECT_EQ(1, last.initialisations);
        EXPECT_NE(nullptr, node.commands());
    }
    expectNothingThere();
}

TEST_F(FailedModulesTest, AModuleThatThrowsStillKeepsTheNodeFromStarting)
{
    configuration.faults = {FaultOf("IRlbspKelApi.installDebugCmdCallback").throwing()};
    EXPECT_EQ("module KelDebugCmd: onModuleInit() threw: planned fault", failure(configuration));
    configuration.faults = {FaultOf("CModuleManager.RegisterModule").throwing()};
    EXPECT_EQ("module KelDebugCmd: its constructor threw: planned fault", failure(configuration));
    expectNothingThere();
}

TEST_F(FailedModulesTest, AHealthyNodeIsNoDifferent)
{
    Node node(configuration);
    EXPECT_EQ(std::pair(0, 0), stopBoth(node));
    EXPECT_THAT(recorder.messages, IsEmpty());
}

} // namespace
