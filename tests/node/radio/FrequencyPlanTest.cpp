#include <cstdint>
#include <ostream>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/radio/FrequencyPlan.h"

using node::radio::findFrequencyPlan;
using node::radio::FrequencyPlan;
using node::radio::frequencyPlans;
using ::testing::ElementsAre;

namespace
{

struct PlanRow
{
    const char* name;
    std::uint32_t band_GHz;
    std::uint32_t number;
    std::uint32_t low_kHz;
    std::uint32_t high_kHz;
};

std::ostream& operator<<(std::ostream& out, const PlanRow& row)
{
    return out << row.name << ", number " << row.number;
}

class FrequencyPlanTest : public ::testing::TestWithParam<PlanRow>
{
};

TEST_P(FrequencyPlanTest, PairsFrequenciesAsTheRecommendationDoes)
{
    const PlanRow& row = GetParam();
    const FrequencyPlan* const plan = findFrequencyPlan(row.name);
    ASSERT_NE(nullptr, plan);
    EXPECT_EQ(row.name, plan->name);
    EXPECT_EQ(row.band_GHz, plan->band_GHz);
    EXPECT_EQ(row.low_kHz, plan->low_kHz(row.number));
    EXPECT_EQ(row.high_kHz, plan->high_kHz(row.number));
}

INSTANTIATE_TEST_SUITE_P(FirstSecondAndLast, FrequencyPlanTest,
                         ::testing::Values(PlanRow{"13 GHz", 13, 1, 12'765'000, 13'031'000},
                                           PlanRow{"13 GHz", 13, 2, 12'793'000, 13'059'000},
                                           PlanRow{"13 GHz", 13, 8, 12'961'000, 13'227'000},
                                           PlanRow{"18 GHz", 18, 1, 17'727'500, 18'737'500},
                                           PlanRow{"18 GHz", 18, 2, 17'755'000, 18'765'000},
                                           PlanRow{"18 GHz", 18, 35, 18'662'500, 19'672'500},
                                           PlanRow{"23 GHz", 23, 1, 21'238'000, 22'470'000},
                                           PlanRow{"23 GHz", 23, 2, 21'266'000, 22'498'000},
                                           PlanRow{"23 GHz", 23, 40, 22'330'000, 23'562'000}));

TEST(FrequencyPlansTest, AnUnknownNameHasNoPlan)
{
    EXPECT_EQ(nullptr, findFrequencyPlan(""));
    EXPECT_EQ(nullptr, findFrequencyPlan("18"));
    EXPECT_EQ(nullptr, findFrequencyPlan("18 GHz "));
}

TEST(FrequencyPlansTest, PlansStandInTheOrderOfTheirBandsWithTheirNumberOfFrequencies)
{
    std::vector<std::string_view> names;
    std::vector<std::uint32_t> channels;
    for (const FrequencyPlan& plan : frequencyPlans())
    {
        names.push_back(plan.name);
        channels.push_back(plan.channels);
    }
    EXPECT_THAT(names, ElementsAre("13 GHz", "18 GHz", "23 GHz"));
    EXPECT_THAT(channels, ElementsAre(8, 35, 40));
}

} // namespace
