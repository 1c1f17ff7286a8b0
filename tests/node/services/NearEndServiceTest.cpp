#include <string>

#include <gtest/gtest.h>

#include "node/services/RadioChannelNearEnd.h"
#include "node/services/RecordText.h"
#include "node/services/ServiceTest.h"

namespace
{

class NearEndServiceTest : public ServiceTest
{
protected:
    std::string identity()
    {
        RadioChannelInfo info;
        const auto result = nearEnd.getRadioChannelInfo({channel}, &info);
        EXPECT_EQ(0, result.resultCode);
        EXPECT_EQ("", result.errorText);
        return contentOf(info);
    }

    node::services::RadioChannelNearEnd nearEnd{context};
};

TEST_P(NearEndServiceTest, AnswersTheIdentityOfTheNearEnd)
{
    EXPECT_EQ(std::to_string(channel) + " 0 1 4QAM_STRONG 4096QAM  0 0 0 0", identity());
}

TEST_P(NearEndServiceTest, TheModulationsAreThoseThatTheChannelMayUse)
{
    link.change(channel,
                [](auto& state)
                {
                    state.modem.lowest = 0;
                    state.modem.current = node::radio::indexOf(64, 1);
                    state.modem.highest = node::radio::indexOf(256, 2);
                });
    EXPECT_EQ(std::to_string(channel) + " 0 1 HALF_BPSK_STRONG 256QAM_LIGHT  0 0 0 0", identity());
}

TEST_P(NearEndServiceTest, TheMembersOfOthersStayAsTheyAre)
{
    RadioChannelInfo info{99, 7, 99, "low", "high", "text", 8, 9, 10, 11};
    EXPECT_EQ(0, nearEnd.getRadioChannelInfo({channel}, &info).resultCode);
    EXPECT_EQ(std::to_string(channel) + " 7 1 4QAM_STRONG 4096QAM text 8 9 10 11", contentOf(info));
}

INSTANTIATE_TEST_SUITE_P(EachChannel, NearEndServiceTest, ::testing::Values(1, 2));

} // namespace
