#include "module/memory/MemoryTest.h"
#include "private/util.h"

namespace util = kel::device::kelDebugCmd::util;
using allocation::Failing;

namespace
{

/// The texts that the library makes of the records, and its other functions.
class RecordMemoryTest : public MemoryTest, public ::testing::WithParamInterface<Failing>
{
protected:
    /// The response's text, or bad_alloc and the response as it was. Answers how many allocations could fail.
    static std::size_t failEachAllocationOf(kel_top_api::BaseResponse& response)
    {
        const std::string expected = response.printResponse();
        std::string text;
        const auto failures = failEachAllocation(
            GetParam(), [&] { text = response.printResponse(); },
            [&]
            {
                EXPECT_EQ("", text);
                EXPECT_EQ(expected, response.printResponse());
            });
        EXPECT_EQ(expected, text);
        return failures;
    }
};

TEST_P(RecordMemoryTest, ShortestTextFitsIntoTheStringItself)
{
    kel_top_api::BaseResponse response;
    EXPECT_EQ(0U, failEachAllocationOf(response));
}

TEST_P(RecordMemoryTest, TextOfAStandardResponseIsOneAllocation)
{
    EXPECT_EQ(1U, failEachAllocationOf(doubles::topApi().calibrateDspPps));
}

TEST_P(RecordMemoryTest, TextOfAnXpicResponseIsOneAllocation)
{
    EXPECT_EQ(1U, failEachAllocationOf(doubles::topApi().manageXpic));
}

TEST_P(RecordMemoryTest, TextOfAStatusResponseIsOneAllocation)
{
    EXPECT_EQ(1U, failEachAllocationOf(status()));
}

TEST_P(RecordMemoryTest, CapabilityResponse)
{
    EXPECT_LT(0U, failEachAllocationOf(capability()));
}

TEST_P(RecordMemoryTest, TableOfModulationsIsOneAllocationAndOneForItsLongestName)
{
    std::size_t rows = 0;
    EXPECT_EQ(2U, failEachAllocation(
                      GetParam(), [&] { rows = getModulationAndCodeVector().size(); }, [&] { EXPECT_EQ(0U, rows); }));
    EXPECT_EQ(43U, rows);
}

TEST_P(RecordMemoryTest, LevelWithALongUnit)
{
    std::string text;
    const std::string unit = " of something that takes long to name";
    EXPECT_LT(0U, failEachAllocation(
                      GetParam(), [&] { text = util::makeDecibelString(-7350, unit); }, [&] { EXPECT_EQ("", text); }));
    EXPECT_EQ("-73.5" + unit, text);
}

TEST_P(RecordMemoryTest, SearchForALongParameter)
{
    const std::string name = "a parameter with a long name = ";
    bool found = false;
    EXPECT_LT(0U, failEachAllocation(
                      GetParam(), [&] { found = util::validateParamValue(name + "3", name, "3"); },
                      [&] { EXPECT_FALSE(found); }));
    EXPECT_TRUE(found);
}

INSTANTIATE_TEST_SUITE_P(Allocations, RecordMemoryTest, ::testing::Values(Failing::Once, Failing::FromThenOn),
                         ::testing::PrintToStringParamName());

} // namespace
