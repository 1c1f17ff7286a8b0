#include "module/ModuleTest.h"

using doubles::answer;
using doubles::topApi;
using doubles::TraceMessage;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

/// The message of an XPIC command: the API's text alone, neither flushed nor ended.
TraceMessage bareMessage(const std::string& function, const std::string& text)
{
    return {doubles::KelDebugCmdChannel, 1, doubles::placeIn(function), text, "none", {}};
}

using XpicCommandsTest = ModuleTest;

TEST_F(XpicCommandsTest, UnmutingSendsFalse)
{
    EXPECT_EQ(0, commands().setXpicSlaveMute(1, 0));
    EXPECT_THAT(calls(), ElementsAre("tiManageXpic(RadioChannelID=1, SlaveMute=0)"));
}

TEST_F(XpicCommandsTest, EveryOtherMuteByteSendsTrue)
{
    for (const unsigned char mute : std::vector<unsigned char>{1, 2, 128, 200, 255})
    {
        doubles::calls().clear();
        EXPECT_EQ(0, commands().setXpicSlaveMute(2, mute));
        EXPECT_THAT(calls(), ElementsAre("tiManageXpic(RadioChannelID=2, SlaveMute=1)")) << "mute " << int{mute};
    }
}

TEST_F(XpicCommandsTest, FailedMuteTracesTheTextAloneAndEndsNoLine)
{
    answer(topApi().manageXpic, 1, "slave is busy");
    EXPECT_EQ(1, commands().setXpicSlaveMute(1, 1));
    EXPECT_THAT(messages(), ElementsAre(bareMessage("setXpicSlaveMute", "slave is busy")));
}

TEST_F(XpicCommandsTest, SilentTraceDropsTheTextAndKeepsTheResult)
{
    silenceTrace();
    answer(topApi().manageXpic, 1, "slave is busy");
    EXPECT_EQ(1, commands().setXpicSlaveMute(1, 1));
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_EQ("slave is busy", doubles::trace().discarded);
}

} // namespace
