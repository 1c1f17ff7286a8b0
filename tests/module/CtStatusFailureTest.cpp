#include <limits>

#include "module/CtStatusTest.h"

using doubles::answer;
using doubles::placelessMessage;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

namespace
{

constexpr auto Lowest = std::numeric_limits<std::int32_t>::min();
constexpr auto Highest = std::numeric_limits<std::int32_t>::max();
constexpr auto NotRetrieved = "Data could not be retrieved!";

class CtStatusFailureTest : public CtStatusTest
{
protected:
    static auto theMessage(const std::string& text)
    {
        return ElementsAre(placelessMessage(doubles::GetCtStatusChannel, text));
    }
};

TEST_F(CtStatusFailureTest, FailedStatusQueryIsTheLast)
{
    answer(status(), 1, "channel is missing");
    EXPECT_EQ(NotRetrieved, reportOf(1));
    EXPECT_THAT(calls(), ElementsAre(StatusQuery));
    EXPECT_THAT(messages(), theMessage("get failed: channel is missing\n"));
}

TEST_F(CtStatusFailureTest, FailedCapabilityQueryDiscardsTheStatus)
{
    answer(capability(), 1, "no capability");
    EXPECT_EQ(NotRetrieved, reportOf(1));
    EXPECT_THAT(calls(), ElementsAre(StatusQuery, CapabilityQuery));
    EXPECT_THAT(messages(), theMessage("get failed: no capability\n"));
}

TEST_F(CtStatusFailureTest, FailedIdentityQueryDiscardsAll)
{
    nearEnd.result = {0x8000, "near end is away"};
    EXPECT_EQ(NotRetrieved, reportOf(1));
    EXPECT_THAT(calls(), ElementsAre(StatusQuery, CapabilityQuery, IdentityQuery));
    EXPECT_THAT(messages(), theMessage("get failed: near end is away\n"));
}

TEST_F(CtStatusFailureTest, EmptyTextLeavesTheTrailingBlank)
{
    answer(status(), 1, "");
    EXPECT_EQ(NotRetrieved, reportOf(1));
    EXPECT_THAT(messages(), theMessage("get failed: \n"));
}

TEST_F(CtStatusFailureTest, QueriesOfTheTopApiFailAboveZero)
{
    for (auto* const response : std::initializer_list<kel_top_api::BaseResponse*>{&status(), &capability()})
    {
        for (const std::int32_t code : {1, 0x7FFF, 0x8000, Highest})
        {
            answer(*response, code, "refused");
            EXPECT_EQ(NotRetrieved, reportOf(1)) << "code " << code;
        }
        for (const std::int32_t code : {0, -1, Lowest})
        {
            answer(*response, code, "a hint");
            EXPECT_THAT(reportOf(1), HasSubstr("\nMax Modulation and Code:  4096QAM\n")) << "code " << code;
        }
    }
}

TEST_F(CtStatusFailureTest, QueryOfTheNearEndFailsFrom0x8000On)
{
    for (const std::int32_t code : {0x8000, 0x8001, Highest})
    {
        nearEnd.result = {code, "refused"};
        EXPECT_EQ(NotRetrieved, reportOf(1)) << "code " << code;
    }
    for (const std::int32_t code : {0, 1, 0x7FFF, -1, -0x8000, Lowest})
    {
        nearEnd.result = {code, "a hint"};
        EXPECT_THAT(reportOf(1), HasSubstr("\nMax Modulation and Code:  4096QAM\n")) << "code " << code;
    }
}

TEST_F(CtStatusFailureTest, SilentTraceDropsTheLineAndKeepsTheReport)
{
    silenceTrace();
    answer(status(), 1, "channel is missing");
    EXPECT_EQ(NotRetrieved, reportOf(1));
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_EQ("get failed: channel is missing\n", doubles::trace().discarded);
}

TEST_F(CtStatusFailureTest, OneChannelsTraceIsSilencedWithoutTheOthers)
{
    doubles::trace().levels[doubles::KelDebugCmdChannel] = 0;
    answer(status(), 1, "channel is missing");
    EXPECT_EQ(NotRetrieved, reportOf(1));
    EXPECT_THAT(messages(), theMessage("get failed: channel is missing\n"));
}

TEST_F(CtStatusFailureTest, NextCallStartsFromNothing)
{
    answer(status(), 1, "channel is missing");
    EXPECT_EQ(NotRetrieved, reportOf(1));
    answer(status(), 0, "");
    EXPECT_THAT(reportOf(1), ::testing::StartsWith("\n=====================================\nCT info channel 1\n"));
}

} // namespace
