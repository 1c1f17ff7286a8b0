#include <cmath>
#include <limits>
#include <ostream>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "node/plot/Axis.h"
#include "node/plot/SmallRun.h"

using node::plot::Axis;
using node::plot::axisOf;
using node::plot::ModulationAxis;
using node::plot::modulationAxisOf;
using node::plot::namedOn;
using node::plot::roundStep;
using node::plot::Sample;
using node::plot::TimeAxis;
using node::plot::timeAxisOf;
using ::testing::ElementsAre;

namespace
{

constexpr double Infinity = std::numeric_limits<double>::infinity();

node::plot::Run runOfLevels(const std::vector<double>& levels_dBm)
{
    node::plot::Run run{"", small_run::Modulations, {}, {{}}};
    for (const double level_dBm : levels_dBm)
    {
        run.times_s.push_back(static_cast<double>(run.times_s.size()));
        run.channels.front().push_back({level_dBm, 0, 0, true});
    }
    return run;
}

std::vector<double> axisOfLevels(const std::vector<double>& levels_dBm, int steps = 10)
{
    const Axis axis = axisOf(runOfLevels(levels_dBm), &Sample::level_dBm, steps);
    return {axis.low, axis.high, axis.step};
}

TEST(AxisTest, StepsAreTheFirstRoundOnesThatReach)
{
    EXPECT_EQ(1, roundStep(0, 1));
    EXPECT_EQ(1, roundStep(10, 10));
    EXPECT_EQ(2, roundStep(10.01, 10));
    EXPECT_EQ(2, roundStep(20, 10));
    EXPECT_EQ(5, roundStep(20.01, 10));
    EXPECT_EQ(5, roundStep(50, 10));
    EXPECT_EQ(10, roundStep(50.01, 10));
    EXPECT_EQ(10, roundStep(100, 10));
    EXPECT_EQ(20, roundStep(100.01, 10));
    EXPECT_EQ(2000, roundStep(2000, 1));
}

TEST(AxisTest, NoValueLiesOnTheFrame)
{
    EXPECT_THAT(axisOfLevels({-85, -43}), ElementsAre(-86, -42, 5));
    EXPECT_THAT(axisOfLevels({-85.01, -42.99}), ElementsAre(-87, -41, 5));
    EXPECT_THAT(axisOfLevels({-84.99, -43.01}), ElementsAre(-86, -42, 5));
}

TEST(AxisTest, AFlatLineHasAnAxis)
{
    EXPECT_THAT(axisOfLevels({-43, -43}), ElementsAre(-44, -42, 1));
    EXPECT_THAT(axisOfLevels({-43.02}), ElementsAre(-45, -42, 1));
}

TEST(AxisTest, WhatIsNoNumberDoesNotCount)
{
    EXPECT_THAT(axisOfLevels({-Infinity, -50, std::nan(""), -48, Infinity}), ElementsAre(-51, -47, 1));
    EXPECT_THAT(axisOfLevels({-Infinity}), ElementsAre(-1, 1, 1));
    EXPECT_THAT(axisOfLevels({}), ElementsAre(-1, 1, 1));
}

TEST(AxisTest, AllChannelsCountAndTheirQuantityAlone)
{
    const Axis axis = axisOf(small_run::rain(), &Sample::snir_dB, 5);
    EXPECT_THAT((std::vector{axis.low, axis.high, axis.step}), ElementsAre(-4, 21, 5));
    auto louder = small_run::rain();
    louder.channels[1][2].snir_dB = 40;
    EXPECT_EQ(41, axisOf(louder, &Sample::snir_dB, 5).high);
}

struct Times
{
    std::vector<double> times_s;
    TimeAxis axis;
};

std::ostream& operator<<(std::ostream& out, const Times& times)
{
    return out << times.axis.name << " from " << times.axis.first_s << " to " << times.axis.last_s;
}

class TimeAxisTest : public ::testing::TestWithParam<Times>
{
};

TEST_P(TimeAxisTest, TheUnitGoesWithTheLength)
{
    const TimeAxis axis = timeAxisOf(small_run::always({}, GetParam().times_s));
    EXPECT_EQ(GetParam().axis.first_s, axis.first_s);
    EXPECT_EQ(GetParam().axis.last_s, axis.last_s);
    EXPECT_EQ(GetParam().axis.unit_s, axis.unit_s);
    EXPECT_EQ(GetParam().axis.name, axis.name);
}

INSTANTIATE_TEST_SUITE_P(Lengths, TimeAxisTest,
                         ::testing::Values(Times{{}, {0, 1, 1, "Time (s)"}}, Times{{7}, {7, 8, 1, "Time (s)"}},
                                           Times{{0, 0.1}, {0, 0.1, 1, "Time (s)"}},
                                           Times{{0, 600}, {0, 600, 1, "Time (s)"}},
                                           Times{{0, 600.1}, {0, 600.1, 60, "Time (min)"}},
                                           Times{{1000, 1600}, {1000, 1600, 1, "Time (s)"}},
                                           Times{{0, 36000}, {0, 36000, 60, "Time (min)"}},
                                           Times{{0, 36000.1}, {0, 36000.1, 3600, "Time (h)"}}));

/// A run of 42 modulations, at these of which something was received.
node::plot::Run runAt(const std::vector<std::size_t>& modulations)
{
    node::plot::Run run{"", std::vector<std::string>(42, "QAM"), {}, {{}}};
    for (const std::size_t modulation : modulations)
    {
        run.times_s.push_back(0);
        run.channels.front().push_back({0, 0, modulation, true});
    }
    return run;
}

std::vector<std::size_t> modulationAxis(const node::plot::Run& run, std::size_t rows)
{
    const ModulationAxis axis = modulationAxisOf(run, rows);
    return {axis.lowest, axis.end, axis.namesApart};
}

TEST(ModulationAxisTest, OneMoreModulationIsShownOnEitherSide)
{
    EXPECT_THAT(modulationAxis(runAt({12, 7, 34}), 50), ElementsAre(6, 36, 1));
    EXPECT_THAT(modulationAxis(runAt({1, 40}), 50), ElementsAre(0, 42, 1));
    EXPECT_THAT(modulationAxis(runAt({0, 41}), 50), ElementsAre(0, 42, 1));
    EXPECT_THAT(modulationAxis(runAt({20}), 50), ElementsAre(19, 22, 1));
}

TEST(ModulationAxisTest, ModulationsWithoutLockDoNotCount)
{
    auto run = runAt({12, 7, 34});
    run.channels.front()[1].locked = false;
    EXPECT_THAT(modulationAxis(run, 50), ElementsAre(11, 36, 1));
}

TEST(ModulationAxisTest, WithoutAnyLockAllModulationsAreShown)
{
    auto run = runAt({12});
    run.channels.front()[0].locked = false;
    EXPECT_THAT(modulationAxis(run, 50), ElementsAre(0, 42, 1));
    EXPECT_THAT(modulationAxis(runAt({}), 50), ElementsAre(0, 42, 1));
}

TEST(ModulationAxisTest, NamesHaveARowEach)
{
    const auto run = runAt({6, 34}); // 31 of them are shown
    EXPECT_THAT(modulationAxis(run, 31), ElementsAre(5, 36, 1));
    EXPECT_THAT(modulationAxis(run, 30), ElementsAre(5, 36, 3));
    EXPECT_THAT(modulationAxis(run, 11), ElementsAre(5, 36, 3));
    EXPECT_THAT(modulationAxis(run, 10), ElementsAre(5, 36, 6));
    EXPECT_THAT(modulationAxis(run, 6), ElementsAre(5, 36, 6));
    EXPECT_THAT(modulationAxis(run, 5), ElementsAre(5, 36, 9));
}

TEST(ModulationAxisTest, FewerNamesAreTheMiddleOnesOfThree)
{
    EXPECT_THAT(namedOn({3, 6, 1}), ElementsAre(3, 4, 5));
    EXPECT_THAT(namedOn({3, 11, 3}), ElementsAre(4, 7, 10));
    EXPECT_THAT(namedOn({0, 13, 6}), ElementsAre(1, 7));
}

} // namespace
