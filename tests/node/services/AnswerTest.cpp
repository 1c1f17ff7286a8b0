#include <gtest/gtest.h>

#include "node/services/Answer.h"
#include "node/services/ServiceTest.h"

using node::radio::Xpic;
using node::radio::XpicState;
using node::services::hundredths;
using node::services::optionOf;
using node::services::setOption;
using node::services::stateOf;
using node::services::tenths;
using node::services::unknownChannel;

namespace
{

TEST(AnswerTest, DecibelsAreRoundedToTheNearestAndHalvesAwayFrom0)
{
    EXPECT_EQ(-4302, hundredths(-43.0249));
    EXPECT_EQ(-4303, hundredths(-43.0251));
    EXPECT_EQ(13, hundredths(0.125));
    EXPECT_EQ(-13, hundredths(-0.125));
    EXPECT_EQ(0, hundredths(-0.004));
    EXPECT_EQ(999, tenths(99.9));
    EXPECT_EQ(3, tenths(0.25));
    EXPECT_EQ(-3, tenths(-0.25));
    EXPECT_EQ(-880, tenths(-88.04));
}

TEST(AnswerTest, AMutedSlaveShowsInAnAcquiredCancellerAlone)
{
    Xpic xpic;
    EXPECT_EQ("Locked", stateOf(xpic));
    xpic.slaveMuted = true;
    EXPECT_EQ("Muted", stateOf(xpic));
    xpic.state = XpicState::Idle;
    EXPECT_EQ("Idle", stateOf(xpic));
    xpic.state = XpicState::Acquiring;
    EXPECT_EQ("Acquiring", stateOf(xpic));
    xpic.state = XpicState::Failed;
    EXPECT_EQ("Failed", stateOf(xpic));
    xpic.state = XpicState::Lost;
    EXPECT_EQ("Lost", stateOf(xpic));
}

TEST(AnswerTest, ARefusalNamesTheChannelsThatTheLinkHas)
{
    EXPECT_EQ("radio channel: found 7, expected 1 or 2", unknownChannel(7, node::radio::RadioLink()));
    EXPECT_EQ("radio channel: found 7, expected 1", unknownChannel(7, node::radio::RadioLink(oneChannel())));
}

TEST(AnswerTest, TheOptionsOfAnAcquisitionAreOneNumber)
{
    for (const std::uint32_t option : {0U, 1U, 2U, 3U})
    {
        Xpic xpic;
        setOption(xpic, option);
        EXPECT_EQ(option == 1 || option == 3, xpic.retries) << option;
        EXPECT_EQ(option == 2 || option == 3, xpic.reacquires) << option;
        EXPECT_EQ(option, optionOf(xpic));
    }
}

} // namespace
