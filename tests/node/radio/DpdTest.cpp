#include <ostream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/radio/Dpd.h"

using node::radio::Dpd;
using ::testing::Each;

namespace
{

Dpd stopped()
{
    Dpd dpd;
    dpd.stop();
    return dpd;
}

void adaptFor(Dpd& dpd, int ticks)
{
    for (int tick = 0; tick < ticks; ++tick)
    {
        dpd.adapt();
    }
}

struct Row
{
    int ticks;
    double floor_dB;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << row.ticks << " ticks";
}

class DpdAdaptationTest : public ::testing::TestWithParam<Row>
{
};

TEST_P(DpdAdaptationTest, RaisesTheFloorFrom35To45dBInTenSeconds)
{
    Dpd dpd = stopped();
    dpd.start();
    adaptFor(dpd, GetParam().ticks);
    EXPECT_DOUBLE_EQ(GetParam().floor_dB, dpd.floor_dB());
}

INSTANTIATE_TEST_SUITE_P(TickByTick, DpdAdaptationTest,
                         ::testing::Values(Row{0, 35.0}, Row{1, 35.1}, Row{50, 40.0}, Row{99, 44.9}, Row{100, 45.0},
                                           Row{101, 45.0}, Row{250, 45.0}));

TEST(DpdTest, RunsAdaptedFromTheBeginning)
{
    const Dpd dpd;
    EXPECT_TRUE(dpd.running);
    EXPECT_EQ(45.0, dpd.floor_dB());
    EXPECT_THAT(dpd.coefficients, Each(0));
}

TEST(DpdTest, StoppedItHasNoEffectAtOnceAndDoesNotAdapt)
{
    Dpd dpd = stopped();
    EXPECT_FALSE(dpd.running);
    EXPECT_EQ(35.0, dpd.floor_dB());
    adaptFor(dpd, 10);
    EXPECT_EQ(35.0, dpd.floor_dB());
}

TEST(DpdTest, StartedAgainItAdaptsFromTheBeginning)
{
    Dpd dpd = stopped();
    dpd.start();
    EXPECT_TRUE(dpd.running);
    adaptFor(dpd, 70);
    dpd.stop();
    dpd.start();
    adaptFor(dpd, 10);
    EXPECT_DOUBLE_EQ(36.0, dpd.floor_dB());
}

TEST(DpdTest, AStartWhileItRunsLeavesItsAdaptationAlone)
{
    Dpd dpd = stopped();
    dpd.start();
    adaptFor(dpd, 30);
    dpd.start();
    EXPECT_DOUBLE_EQ(38.0, dpd.floor_dB());
}

TEST(DpdTest, CoefficientsStayAsTheyWereWritten)
{
    Dpd dpd;
    dpd.coefficients.fill(7);
    dpd.stop();
    dpd.start();
    dpd.adapt();
    EXPECT_THAT(dpd.coefficients, Each(7));
}

} // namespace
