#include <limits>

#include "module/ModuleTest.h"

using doubles::answer;
using doubles::topApi;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

constexpr auto Lowest = std::numeric_limits<int>::min();
constexpr auto Highest = std::numeric_limits<int>::max();

using PpsCommandsTest = ModuleTest;

TEST_F(PpsCommandsTest, KnownCalibrationModeIsSentUnchanged)
{
    for (const int mode : {0, 1, 2, 3})
    {
        doubles::calls().clear();
        EXPECT_EQ(0, commands().calibratePps(1, mode, 1234));
        EXPECT_THAT(calls(), ElementsAre("criCalibrateDspPps(radioChannel=1, calibrationMode=" + std::to_string(mode) +
                                         ", calibrationValue=1234)"));
    }
}

TEST_F(PpsCommandsTest, UnknownCalibrationModeFailsWithoutACallOrATrace)
{
    for (const int mode : {-1, 4, 5, 256, Lowest, Lowest + 3, Highest})
    {
        EXPECT_EQ(1, commands().calibratePps(1, mode, 1234)) << "mode " << mode;
    }
    EXPECT_THAT(calls(), IsEmpty());
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(PpsCommandsTest, CalibrationValueHasNoRange)
{
    EXPECT_EQ(0, commands().calibratePps(1, 0, 0));
    EXPECT_EQ(0, commands().calibratePps(2, 3, 65535));
    EXPECT_THAT(calls(), ElementsAre("criCalibrateDspPps(radioChannel=1, calibrationMode=0, calibrationValue=0)",
                                     "criCalibrateDspPps(radioChannel=2, calibrationMode=3, calibrationValue=65535)"));
}

TEST_F(PpsCommandsTest, KnownOutputModeIsSentUnchanged)
{
    for (const int mode : {0, 1, 2})
    {
        doubles::calls().clear();
        EXPECT_EQ(0, commands().setPpsOutputMode(2, mode));
        EXPECT_THAT(calls(),
                    ElementsAre("criSetOutputModeDspPps(radioChannel=2, outputMode=" + std::to_string(mode) + ")"));
    }
}

TEST_F(PpsCommandsTest, UnknownOutputModeFailsWithoutACallOrATrace)
{
    for (const int mode : {-1, 3, 4, 256, Lowest, Lowest + 2, Highest})
    {
        EXPECT_EQ(1, commands().setPpsOutputMode(1, mode)) << "mode " << mode;
    }
    EXPECT_THAT(calls(), IsEmpty());
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(PpsCommandsTest, KnownSourceIsSentUnchanged)
{
    for (const int source : {0, 1, 2})
    {
        doubles::calls().clear();
        EXPECT_EQ(0, commands().setPpsSource(1, source, 5));
        EXPECT_THAT(calls(), ElementsAre("criSetSourceDspPps(radioChannel=1, source=" + std::to_string(source) +
                                         ", sourceParameter=5)"));
    }
}

TEST_F(PpsCommandsTest, UnknownSourceFailsWithoutACallOrATrace)
{
    for (const int source : {-1, 3, 4, 256, Lowest, Lowest + 2, Highest})
    {
        EXPECT_EQ(1, commands().setPpsSource(1, source, 5)) << "source " << source;
    }
    EXPECT_THAT(calls(), IsEmpty());
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(PpsCommandsTest, SourceParameterHasNoRange)
{
    for (const int parameter : {Lowest, -7, 0, Highest})
    {
        doubles::calls().clear();
        EXPECT_EQ(0, commands().setPpsSource(2, 2, parameter));
        EXPECT_THAT(calls(), ElementsAre("criSetSourceDspPps(radioChannel=2, source=2, sourceParameter=" +
                                         std::to_string(parameter) + ")"));
    }
}

TEST_F(PpsCommandsTest, EachCommandAnswersForItsOwnCall)
{
    answer(topApi().calibrateDspPps, 1, "no calibration");
    EXPECT_EQ(1, commands().calibratePps(1, 0, 0));
    EXPECT_EQ(0, commands().setPpsOutputMode(1, 0));
    EXPECT_EQ(0, commands().setPpsSource(1, 0, 0));
}

} // namespace
