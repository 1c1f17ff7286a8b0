#include <ostream>

#include <gtest/gtest.h>

#include "node/radio/Xpic.h"

using node::radio::Xpic;
using node::radio::XpicAcquireMode;
using node::radio::XpicState;
using node::radio::XpicSurroundings;
using enum XpicState;
using enum XpicAcquireMode;

namespace
{

constexpr double Carrier_Hz = 8863.75;
constexpr XpicSurroundings Complete{true, true, true, Carrier_Hz};

Xpic started(XpicAcquireMode mode, bool retries, double lastCarrier_Hz = 0)
{
    Xpic xpic;
    xpic.state = Idle;
    xpic.mode = mode;
    xpic.retries = retries;
    xpic.lastCarrier_Hz = lastCarrier_Hz;
    xpic.startAcquisition();
    return xpic;
}

void acquireFor(Xpic& xpic, int ticks, const XpicSurroundings& surroundings)
{
    for (int tick = 0; tick < ticks; ++tick)
    {
        xpic.acquire(surroundings);
    }
}

/// How long the acquisition takes, to whichever end.
int ticksToTheEnd(Xpic& xpic, const XpicSurroundings& surroundings)
{
    constexpr int Longest = 1000;
    int ticks = 0;
    for (; ticks < Longest && xpic.state == Acquiring; ++ticks)
    {
        xpic.acquire(surroundings);
    }
    return ticks;
}

struct Row
{
    XpicAcquireMode mode;
    double lastCarrier_Hz;
    double carrier_Hz;
    int ticks;
    XpicState end;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << "mode " << static_cast<int>(row.mode) << ", last " << row.lastCarrier_Hz << " Hz, carrier "
               << row.carrier_Hz << " Hz";
}

class XpicAcquisitionTimeTest : public ::testing::TestWithParam<Row>
{
};

TEST_P(XpicAcquisitionTimeTest, EndsInItsStateAtItsTick)
{
    Xpic xpic = started(GetParam().mode, false, GetParam().lastCarrier_Hz);
    EXPECT_EQ(GetParam().ticks, ticksToTheEnd(xpic, {true, true, true, GetParam().carrier_Hz}));
    EXPECT_EQ(GetParam().end, xpic.state);
    const bool found = GetParam().end == Acquired;
    EXPECT_EQ(found ? GetParam().carrier_Hz : GetParam().lastCarrier_Hz, xpic.lastCarrier_Hz);
    if (found)
    {
        EXPECT_EQ(GetParam().carrier_Hz, xpic.position_Hz);
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(AcrossTheReach, XpicAcquisitionTimeTest, ::testing::Values(
    Row{FullSweep,   0,       Carrier_Hz,  55,  Acquired},
    Row{FullSweep,   0,       -Carrier_Hz, 46,  Acquired},
    Row{FullSweep,   0,       0,           50,  Acquired},
    Row{FullSweep,   50'000,  0,           50,  Acquired},
    Row{FullSweep,   0,       0.5,         51,  Acquired},
    Row{FullSweep,   0,       -98'000,     1,   Acquired},
    Row{FullSweep,   0,       -97'999.5,   2,   Acquired},
    Row{FullSweep,   0,       -100'000,    1,   Acquired},
    Row{FullSweep,   0,       -100'000.5,  100, Failed},
    Row{FullSweep,   0,       100'000,     100, Acquired},
    Row{FullSweep,   0,       100'000.5,   100, Failed},
    Row{NarrowSweep, 8863.75, Carrier_Hz,  10,  Acquired},
    Row{NarrowSweep, 0,       Carrier_Hz,  15,  Acquired},
    Row{NarrowSweep, 5000,    24'000,      20,  Acquired},
    Row{NarrowSweep, 0,       -20'000,     1,   Acquired},
    Row{NarrowSweep, 0,       -20'000.5,   20,  Failed},
    Row{NarrowSweep, 0,       20'000,      20,  Acquired},
    Row{NarrowSweep, 0,       20'000.5,    20,  Failed},
    Row{Direct,      8863.75, Carrier_Hz,  10,  Acquired},
    Row{Direct,      8000,    9000,        10,  Acquired},
    Row{Direct,      8000,    9000.5,      10,  Failed},
    Row{Direct,      8000,    7000,        10,  Acquired},
    Row{Direct,      8000,    6999.5,      10,  Failed}));
// clang-format on

TEST(XpicAcquisitionTest, ASweepGoesUpTwoKilohertzATick)
{
    Xpic xpic = started(FullSweep, true);
    EXPECT_EQ(-100'000, xpic.position_Hz);
    acquireFor(xpic, 3, Complete);
    EXPECT_EQ(-94'000, xpic.position_Hz);
    xpic = started(NarrowSweep, true, 3000);
    EXPECT_EQ(-17'000, xpic.position_Hz);
    acquireFor(xpic, 3, Complete);
    EXPECT_EQ(-11'000, xpic.position_Hz);
}

TEST(XpicAcquisitionTest, WithoutASweepThePositionStaysAtTheLastCarrier)
{
    Xpic xpic = started(Direct, true, 8000);
    EXPECT_EQ(8000, xpic.position_Hz);
    acquireFor(xpic, 9, Complete);
    EXPECT_EQ(8000, xpic.position_Hz);
}

struct Round
{
    XpicAcquireMode mode;
    int found; ///< after how many ticks
    int round; ///< how many ticks until it begins anew
};

std::ostream& operator<<(std::ostream& out, const Round& row)
{
    return out << "mode " << static_cast<int>(row.mode);
}

class XpicRoundTest : public ::testing::TestWithParam<Round>
{
protected:
    Xpic xpic = started(GetParam().mode, true, 8000);
};

TEST_P(XpicRoundTest, WithRetriesAnAcquisitionBeginsAnewWhenItFoundNothing)
{
    const double beginning_Hz = xpic.position_Hz;
    acquireFor(xpic, 3 * GetParam().round, {});
    EXPECT_EQ(Acquiring, xpic.state);
    EXPECT_EQ(beginning_Hz, xpic.position_Hz);
    EXPECT_EQ(GetParam().found, ticksToTheEnd(xpic, Complete));
    EXPECT_EQ(Acquired, xpic.state);
}

TEST_P(XpicRoundTest, WhatComesTooLateIsFoundInTheNextRound)
{
    acquireFor(xpic, GetParam().found, {});
    EXPECT_EQ(GetParam().round, ticksToTheEnd(xpic, Complete));
    EXPECT_EQ(Acquired, xpic.state);
}

TEST_P(XpicRoundTest, WhatIsThereAtTheCarrierAloneIsFound)
{
    acquireFor(xpic, GetParam().found - 1, {});
    xpic.acquire(Complete);
    EXPECT_EQ(Acquired, xpic.state);
}

TEST_P(XpicRoundTest, AStartWhileItRunsBeginsAnew)
{
    acquireFor(xpic, GetParam().found - 1, Complete);
    xpic.startAcquisition();
    EXPECT_EQ(GetParam().found, ticksToTheEnd(xpic, Complete));
}

TEST_P(XpicRoundTest, WithAMutedSlaveNothingIsFound)
{
    xpic.slaveMuted = true;
    acquireFor(xpic, 2 * GetParam().round, Complete);
    EXPECT_EQ(Acquiring, xpic.state);
    xpic.slaveMuted = false;
    EXPECT_EQ(GetParam().found, ticksToTheEnd(xpic, Complete));
    EXPECT_EQ(Acquired, xpic.state);
}

TEST_P(XpicRoundTest, WithAnythingMissingNothingIsFound)
{
    xpic.retries = false;
    for (XpicSurroundings surroundings :
         {XpicSurroundings{false, true, true, Carrier_Hz}, XpicSurroundings{true, false, true, Carrier_Hz},
          XpicSurroundings{true, true, false, Carrier_Hz}})
    {
        xpic.startAcquisition();
        EXPECT_EQ(GetParam().round, ticksToTheEnd(xpic, surroundings));
        EXPECT_EQ(Failed, xpic.state);
    }
}

INSTANTIATE_TEST_SUITE_P(EachMode, XpicRoundTest,
                         ::testing::Values(Round{FullSweep, 55, 100}, Round{NarrowSweep, 11, 20},
                                           Round{Direct, 10, 10}));

TEST(XpicAcquisitionTest, AfterALossItReacquiresInTheModeOfTheLastAcquisition)
{
    Xpic xpic = started(NarrowSweep, true, 0);
    EXPECT_EQ(15, ticksToTheEnd(xpic, Complete));
    EXPECT_TRUE(xpic.fall({}));
    EXPECT_EQ(Acquiring, xpic.state);
    EXPECT_EQ(Carrier_Hz - 20'000, xpic.position_Hz);
    EXPECT_EQ(10, ticksToTheEnd(xpic, Complete));
}

TEST(XpicAcquisitionTest, AMutedSlavePausesTheCancellingAndKeepsWhatWasAcquired)
{
    Xpic xpic;
    xpic.slaveMuted = true;
    EXPECT_FALSE(xpic.fall(Complete));
    EXPECT_FALSE(xpic.cancels());
    xpic.slaveMuted = false;
    EXPECT_EQ(Acquired, xpic.state);
    EXPECT_TRUE(xpic.cancels());
}

TEST(XpicAcquisitionTest, ANarrowSweepAboutAnyCarrierTakesTwoSeconds)
{
    constexpr int Carriers = 3000;
    for (int i = 0; i < Carriers; ++i)
    {
        const double carrier_Hz = -100e3 + i * 66.6667; // few of them are exact in binary
        SCOPED_TRACE(carrier_Hz);
        Xpic xpic = started(NarrowSweep, false, carrier_Hz);
        EXPECT_EQ(20, ticksToTheEnd(xpic, {}));
        EXPECT_EQ(Failed, xpic.state);
    }
}

} // namespace
