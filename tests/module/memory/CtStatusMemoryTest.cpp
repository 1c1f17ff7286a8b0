#include "module/memory/MemoryTest.h"

using allocation::Failing;

namespace
{

/// The report with the most text and three queries, each of which can be the one that fails.
class CtStatusMemoryTest : public MemoryTest, public ::testing::WithParamInterface<Failing>
{
protected:
    /// Answers how many allocations could fail.
    std::size_t failEachAllocationOfTheReport()
    {
        return failEachAllocation(
            GetParam(), [this] { commands().getCtStatus(1, report); },
            [this] { EXPECT_EQ("what was there before", report); });
    }
};

TEST_P(CtStatusMemoryTest, ReportIsCompleteOrAsItWas)
{
    const std::string expected = reportOf(1);
    report = "what was there before";
    EXPECT_LT(10U, failEachAllocationOfTheReport());
    EXPECT_EQ(expected, report);
}

TEST_P(CtStatusMemoryTest, RefusedCapabilityIsReportedOrTheReportIsAsItWas)
{
    doubles::answer(capability(), 1, "no capability of this channel");
    EXPECT_LT(10U, failEachAllocationOfTheReport());
    EXPECT_EQ("Data could not be retrieved!", report);
}

TEST_P(CtStatusMemoryTest, RefusedIdentityIsReportedOrTheReportIsAsItWas)
{
    nearEnd.result = {0x8000, "near end is away for a while"};
    EXPECT_LT(10U, failEachAllocationOfTheReport());
    EXPECT_EQ("Data could not be retrieved!", report);
}

INSTANTIATE_TEST_SUITE_P(Allocations, CtStatusMemoryTest, ::testing::Values(Failing::Once, Failing::FromThenOn),
                         ::testing::PrintToStringParamName());

} // namespace
