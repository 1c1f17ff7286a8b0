#include <stdexcept>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "kel_top_api/StandardResponse.h"
#include "node/services/RecordText.h"
#include "node/services/ServiceTest.h"

using node::services::boundContext;
using node::services::ServiceContext;
using node::services::TopApiBinding;

namespace
{

class TopApiTest : public ::testing::Test
{
protected:
    node::radio::RadioLink link;
    node::services::FaultPlan faults;
};

TEST_F(TopApiTest, IsBoundForAsLongAsABindingLives)
{
    EXPECT_EQ(nullptr, boundContext());
    {
        const TopApiBinding binding({link, faults});
        ASSERT_NE(nullptr, boundContext());
        EXPECT_EQ(&link, &boundContext()->link);
        EXPECT_EQ(&faults, &boundContext()->faults);
    }
    EXPECT_EQ(nullptr, boundContext());
}

TEST_F(TopApiTest, ABindingDoesNotNeedTheContextThatItWasMadeOf)
{
    const ServiceContext context{link, faults};
    const TopApiBinding binding(context);
    EXPECT_NE(&context, boundContext());
}

TEST_F(TopApiTest, ARefusalKeepsWhatElseTheResponseHolds)
{
    kel_top_api::StandardResponse response;
    response.opaqueWord = 7;
    response.additionalText = "more";
    node::services::refuse(response, "no");
    EXPECT_EQ("resultCode: 1, resultText: no, opaqueWord: 7, additionalText: more", wholeOf(response));
}

TEST_F(TopApiTest, AChannelThatTheLinkHasLeavesTheResponseAsItIs)
{
    kel_top_api::StandardResponse response;
    response.resultCode = 5;
    EXPECT_TRUE(node::services::checkChannel(link, 2, response));
    EXPECT_EQ(5, response.resultCode);
    EXPECT_FALSE(node::services::checkChannel(link, 3, response));
    EXPECT_EQ(1, response.resultCode);
}

TEST_F(TopApiTest, ASecondBindingIsRefusedAndTheFirstStays)
{
    const TopApiBinding binding({link, faults});
    const ServiceContext* const first = boundContext();
    EXPECT_THAT(
        [this] {
            const TopApiBinding second({link, faults});
        },
        ::testing::ThrowsMessage<std::logic_error>("top-level API: found another node, expected one at a time"));
    EXPECT_EQ(first, boundContext());
}

} // namespace
