#include <limits>

#include "module/ModuleTest.h"
#include "module/NamedCommand.h"

using doubles::lineMessage;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Callback = IRlbspKelApi::KelDebugCmdCallback;

namespace
{

constexpr auto Lowest = std::numeric_limits<std::int32_t>::min();
constexpr auto Highest = std::numeric_limits<std::int32_t>::max();

/// 20 bytes, no two alike.
DpdCoeffs someCoefficients()
{
    return {{0x00, 0x01, 0x7F, 0x80, 0xFF, 0x10, 0x11, 0x12, 0x13, 0x14,
             0x15, 0x16, 0x17, 0x18, 0x19, 0x1A, 0x1B, 0x1C, 0x1D, 0xFE}};
}

using DpdCommandsTest = ModuleTest;

TEST_F(DpdCommandsTest, StartHandsTheControllersOwnParameterBackToIt)
{
    for (const std::uint32_t parameter : {0U, 77U, 0x80000000U, 0xFFFFFFFFU})
    {
        doubles::calls().clear();
        dpd1->startParameter = parameter;
        EXPECT_EQ(0, commands().startDpd(1));
        EXPECT_THAT(calls(), ElementsAre("IDpdControllerSplit_1.getStartParameter()",
                                         "IDpdControllerSplit_1.start(" + std::to_string(parameter) + ")"));
    }
}

TEST_F(DpdCommandsTest, StopStopsTheController)
{
    EXPECT_EQ(0, commands().stopDpd(1));
    EXPECT_THAT(calls(), ElementsAre("IDpdControllerSplit_1.stop()"));
}

TEST_F(DpdCommandsTest, CoefficientsAreSetUnchanged)
{
    EXPECT_EQ(0, commands().setDpdCoefficients(1, someCoefficients()));
    EXPECT_THAT(calls(), ElementsAre("IDpdControllerSplit_1.setCoeffs(00017f80ff101112131415161718191a1b1c1dfe)"));
}

TEST_F(DpdCommandsTest, CoefficientsAreReadUnchanged)
{
    dpd1->coefficients = someCoefficients();
    DpdCoeffs coefficients;
    EXPECT_EQ(0, commands().getDpdCoefficients(1, &coefficients));
    EXPECT_THAT(calls(), ElementsAre("IDpdControllerSplit_1.getCoeffs()"));
    EXPECT_EQ(someCoefficients().bytes, coefficients.bytes);
}

TEST_F(DpdCommandsTest, FailedReadLeavesTheCoefficientsAsTheControllerLeftThem)
{
    dpd1->result = EDPDResult::Failure;
    dpd1->coefficients = someCoefficients();
    DpdCoeffs coefficients;
    EXPECT_EQ(1, commands().getDpdCoefficients(1, &coefficients));
    EXPECT_EQ(someCoefficients().bytes, coefficients.bytes);
}

TEST_F(DpdCommandsTest, FailedStartStillAskedForTheParameterOnce)
{
    dpd2->result = EDPDResult::Failure;
    dpd2->startParameter = 5;
    EXPECT_EQ(1, commands().startDpd(2));
    EXPECT_THAT(calls(), ElementsAre("IDpdControllerSplit_2.getStartParameter()", "IDpdControllerSplit_2.start(5)"));
}

struct DpdCommand : NamedCommand
{
    std::string failure;                 ///< what its trace says before the result
    std::vector<std::string> operations; ///< what it asks of the controller
};

/// What the four commands have in common.
class EveryDpdCommandTest : public ModuleTest, public ::testing::WithParamInterface<DpdCommand>
{
protected:
    int run(RadioChannel channel = 1)
    {
        return GetParam().run(commands(), channel);
    }

    static std::string failureLine(std::int32_t result)
    {
        return GetParam().failure + std::to_string(result) + "\n";
    }

    static std::vector<std::string> operationsOf(const std::string& controller)
    {
        std::vector<std::string> operations = GetParam().operations;
        for (std::string& operation : operations)
        {
            operation.insert(0, controller + ".");
        }
        return operations;
    }
};

TEST_P(EveryDpdCommandTest, ResultsBelow0x8000AreSuccessNegativeOnesToo)
{
    for (const std::int32_t result : {0, 1, 0x7FFF, -1, -0x8000, Lowest})
    {
        dpd1->result = static_cast<EDPDResult>(result);
        EXPECT_EQ(0, run()) << "result " << result;
    }
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_EQ("", doubles::trace().discarded);
}

TEST_P(EveryDpdCommandTest, ResultsFrom0x8000OnAreFailuresAndTracedAsDecimals)
{
    for (const std::int32_t result : {0x8000, 0x8001, 0x10000, Highest})
    {
        doubles::trace().reset();
        dpd1->result = static_cast<EDPDResult>(result);
        EXPECT_EQ(1, run()) << "result " << result;
        EXPECT_THAT(messages(), ElementsAre(lineMessage(GetParam().name, failureLine(result))));
    }
}

TEST_P(EveryDpdCommandTest, SilentTraceDropsTheLineAndKeepsTheResult)
{
    silenceTrace();
    dpd1->result = EDPDResult::Failure;
    EXPECT_EQ(1, run());
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_EQ(failureLine(0x8000), doubles::trace().discarded);
}

TEST_P(EveryDpdCommandTest, EachChannelUsesItsOwnController)
{
    dpd1->result = EDPDResult::Failure;
    EXPECT_EQ(1, run(1));
    EXPECT_EQ(operationsOf("IDpdControllerSplit_1"), calls());
    doubles::calls().clear();
    EXPECT_EQ(0, run(2));
    EXPECT_EQ(operationsOf("IDpdControllerSplit_2"), calls());
}

TEST_P(EveryDpdCommandTest, ChannelWithoutAControllerFailsWithoutACallOrATrace)
{
    ASSERT_EQ(0, start(1));
    doubles::calls().clear();
    EXPECT_EQ(1, run(2));
    EXPECT_THAT(calls(), IsEmpty());
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_EQ("", doubles::trace().discarded);
}

const std::vector<DpdCommand> DpdCommands = {
    {{"startDpd", [](Callback& to, RadioChannel channel) { return to.startDpd(channel); }},
     "startDpd(): failed to start dpd, EDPDResult = ",
     {"getStartParameter()", "start(0)"}},
    {{"stopDpd", [](Callback& to, RadioChannel channel) { return to.stopDpd(channel); }},
     "stopDpd(): failed to stop dpd, EDPDResult = ",
     {"stop()"}},
    {{"setDpdCoefficients", [](Callback& to, RadioChannel channel) { return to.setDpdCoefficients(channel, {}); }},
     "setDpdCoefficients(): failed to set dpd coefficients, EDPDResult = ",
     {"setCoeffs(0000000000000000000000000000000000000000)"}},
    {{"getDpdCoefficients",
      [](Callback& to, RadioChannel channel)
      {
          DpdCoeffs coefficients;
          return to.getDpdCoefficients(channel, &coefficients);
      }},
     "getDpdCoefficients(): failed to get dpd coefficients, EDPDResult = ",
     {"getCoeffs()"}},
};

INSTANTIATE_TEST_SUITE_P(Commands, EveryDpdCommandTest, ::testing::ValuesIn(DpdCommands),
                         ::testing::PrintToStringParamName());

} // namespace
