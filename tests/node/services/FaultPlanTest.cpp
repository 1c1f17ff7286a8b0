#include <cstdint>
#include <optional>
#include <ostream>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/services/FaultOf.h"

using node::services::FaultPlan;
using node::services::findPlatformCall;
using node::services::PlannedException;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace
{

constexpr auto Xpic = "tiManageXpic";
constexpr auto Stop = "IDpdControllerSplit.stop";

class FaultPlanTest : public ::testing::Test
{
protected:
    /// What calls answer, one letter each: the first of the planned text, '.' for none, '!' for an exception.
    std::string answers(int calls, const std::string& call = Xpic, RadioChannel channel = 1)
    {
        std::string letters;
        for (int i = 0; i < calls; ++i)
        {
            try
            {
                const auto planned = faults.pass(call, channel);
                letters += planned ? planned->text.substr(0, 1) : ".";
            }
            catch (const PlannedException&)
            {
                letters += '!';
            }
        }
        return letters;
    }

    void expectCounts(std::size_t place, std::uint64_t seen, std::uint64_t hits) const
    {
        const auto planned = faults.list().at(place);
        EXPECT_EQ(seen, planned.seen) << "fault " << place;
        EXPECT_EQ(hits, planned.hits) << "fault " << place;
    }

    FaultPlan faults;
};

TEST_F(FaultPlanTest, WithoutAFaultEveryCallDoesAsAlways)
{
    EXPECT_EQ("...", answers(3));
    EXPECT_THAT(faults.list(), IsEmpty());
}

TEST_F(FaultPlanTest, AFaultHitsItsCallAndNoOther)
{
    faults.add(FaultOf(Xpic));
    EXPECT_EQ("...", answers(3, Stop));
    expectCounts(0, 0, 0);
    EXPECT_EQ("ppp", answers(3));
    expectCounts(0, 3, 3);
}

TEST_F(FaultPlanTest, AFaultOfOneChannelHitsNoOther)
{
    faults.add(FaultOf(Xpic).onChannel(2));
    EXPECT_EQ(".", answers(1, Xpic, 0));
    EXPECT_EQ("..", answers(2, Xpic, 1));
    expectCounts(0, 0, 0);
    EXPECT_EQ("pp", answers(2, Xpic, 2));
    expectCounts(0, 2, 2);
}

TEST_F(FaultPlanTest, AFaultWithoutAChannelHitsAllOfThem)
{
    faults.add(FaultOf(Xpic));
    EXPECT_EQ("p", answers(1, Xpic, 0));
    EXPECT_EQ("p", answers(1, Xpic, 2));
    EXPECT_EQ("p", answers(1, Xpic, 0xFFFFFFFFU));
}

TEST_F(FaultPlanTest, AFaultThatThrowsCarriesItsText)
{
    faults.add(FaultOf(Xpic).withCode(7).withText("no memory card").throwing().times(1));
    try
    {
        faults.pass("tiManageXpic", 1);
        ADD_FAILURE() << "nothing was thrown";
    }
    catch (const PlannedException& thrown)
    {
        EXPECT_STREQ("no memory card", thrown.what());
    }
    EXPECT_EQ("..", answers(2));
    expectCounts(0, 3, 1);
}

TEST_F(FaultPlanTest, OfSeveralFaultsTheFirstPlannedAnswersAndAllCountTheCall)
{
    faults.add(FaultOf(Xpic).withText("a").from(2).times(2));
    faults.add(FaultOf(Xpic).withText("b").from(3).times(2));
    faults.add(FaultOf(Xpic).withText("c").throwing().times(2));
    faults.add(FaultOf(Stop).withText("d"));
    EXPECT_EQ("!aabb!..", answers(8));
    expectCounts(0, 8, 2);
    expectCounts(1, 8, 2);
    expectCounts(2, 8, 2);
    expectCounts(3, 0, 0);
}

TEST_F(FaultPlanTest, AFaultOfTheOtherChannelDoesNotStandInTheWay)
{
    faults.add(FaultOf(Xpic).onChannel(1).withText("a"));
    faults.add(FaultOf(Xpic).withText("b"));
    EXPECT_EQ("b", answers(1, Xpic, 2));
    EXPECT_EQ("a", answers(1, Xpic, 1));
    expectCounts(0, 1, 1);
    expectCounts(1, 2, 1);
}

TEST_F(FaultPlanTest, CallsAreCountedFromWhereTheFaultWasPlanned)
{
    faults.add(FaultOf(Xpic).withText("a").from(3).times(1));
    EXPECT_EQ("..", answers(2));
    faults.add(FaultOf(Xpic).withText("b").from(3).times(1));
    EXPECT_EQ("a.b.", answers(4));
}

TEST_F(FaultPlanTest, TheListHasEveryFaultAsItWasPlanned)
{
    faults.add(FaultOf(Stop).onChannel(2).withCode(-1).withText("").throwing().from(4).times(5));
    faults.add(FaultOf(Xpic));
    const auto list = faults.list();
    ASSERT_THAT(list, SizeIs(2));
    EXPECT_EQ(findPlatformCall(Stop), list[0].fault.call);
    EXPECT_EQ(2U, list[0].fault.channel);
    EXPECT_EQ(-1, list[0].fault.code);
    EXPECT_EQ("", list[0].fault.text);
    EXPECT_TRUE(list[0].fault.throws);
    EXPECT_EQ(4U, list[0].fault.fromCall);
    EXPECT_EQ(5U, list[0].fault.calls);
    EXPECT_EQ(findPlatformCall(Xpic), list[1].fault.call);
    EXPECT_EQ(std::nullopt, list[1].fault.channel);
    EXPECT_EQ(std::nullopt, list[1].fault.code);
    EXPECT_EQ(std::nullopt, list[1].fault.text);
    EXPECT_FALSE(list[1].fault.throws);
    EXPECT_EQ(1U, list[1].fault.fromCall);
    EXPECT_EQ(std::nullopt, list[1].fault.calls);
    expectCounts(0, 0, 0);
    expectCounts(1, 0, 0);
}

TEST_F(FaultPlanTest, AClearedPlanHitsNothingAndForgetsItsCounts)
{
    faults.add(FaultOf(Xpic).times(2));
    EXPECT_EQ("p", answers(1));
    faults.clear();
    EXPECT_THAT(faults.list(), IsEmpty());
    EXPECT_EQ("..", answers(2));
    faults.add(FaultOf(Xpic).times(2));
    EXPECT_EQ("pp.", answers(3));
    expectCounts(0, 3, 2);
}

/// Which of the calls a fault hits.
struct SpanRow
{
    std::uint64_t fromCall;
    std::optional<std::uint64_t> calls;
    std::string answers;
    std::uint64_t hits;
};

std::ostream& operator<<(std::ostream& out, const SpanRow& row)
{
    return out << "from call " << row.fromCall << ", " << (row.calls ? std::to_string(*row.calls) : "all");
}

class FaultSpanTest : public FaultPlanTest, public ::testing::WithParamInterface<SpanRow>
{
};

TEST_P(FaultSpanTest, HitsItsCallsAndCountsAll)
{
    faults.add(FaultOf(Xpic).from(GetParam().fromCall).times(GetParam().calls));
    EXPECT_EQ(GetParam().answers, answers(5));
    expectCounts(0, 5, GetParam().hits);
}

INSTANTIATE_TEST_SUITE_P(EachSpan, FaultSpanTest,
                         ::testing::Values(SpanRow{1, std::nullopt, "ppppp", 5}, SpanRow{1, 1, "p....", 1},
                                           SpanRow{1, 0, ".....", 0}, SpanRow{2, std::nullopt, ".pppp", 4},
                                           SpanRow{2, 2, ".pp..", 2}, SpanRow{5, 9, "....p", 1},
                                           SpanRow{6, std::nullopt, ".....", 0}, SpanRow{0, 1, "p....", 1},
                                           SpanRow{UINT64_MAX, UINT64_MAX, ".....", 0},
                                           SpanRow{1, UINT64_MAX, "ppppp", 5}));

} // namespace
