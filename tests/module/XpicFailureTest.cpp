#include <limits>

#include "module/ModuleTest.h"
#include "module/NamedCommand.h"

using doubles::answer;
using doubles::topApi;
using doubles::TraceMessage;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Callback = IRlbspKelApi::KelDebugCmdCallback;

namespace
{

constexpr auto Lowest = std::numeric_limits<std::int32_t>::min();
constexpr auto Highest = std::numeric_limits<std::int32_t>::max();

/// The message of an XPIC command: the API's text alone, neither flushed nor ended.
TraceMessage bareMessage(const std::string& function, const std::string& text)
{
    return {doubles::KelDebugCmdChannel, 1, doubles::placeIn(function), text, "none", {}};
}

/// What the four XPIC control commands have in common.
class XpicFailureTest : public ModuleTest, public ::testing::WithParamInterface<NamedCommand>
{
protected:
    int run(RadioChannel channel = 1)
    {
        return GetParam().run(commands(), channel);
    }

    static TraceMessage message(const std::string& text)
    {
        return bareMessage(GetParam().name, text);
    }
};

TEST_P(XpicFailureTest, FailureTracesTheTextAloneAndEndsNoLine)
{
    answer(topApi().manageXpic, 1, "slave is busy");
    EXPECT_EQ(1, run());
    EXPECT_THAT(messages(), ElementsAre(message("slave is busy")));
}

TEST_P(XpicFailureTest, TextWithALineEndIsTracedAsItStands)
{
    answer(topApi().manageXpic, 1, "first line\nsecond line\n");
    EXPECT_EQ(1, run());
    EXPECT_THAT(messages(), ElementsAre(message("first line\nsecond line\n")));
}

TEST_P(XpicFailureTest, EmptyTextIsTracedAsAnEmptyMessage)
{
    answer(topApi().manageXpic, 1, "");
    EXPECT_EQ(1, run());
    EXPECT_THAT(messages(), ElementsAre(message("")));
}

TEST_P(XpicFailureTest, EveryCodeAboveZeroIsAFailure)
{
    for (const std::int32_t code : {1, 0x7FFF, 0x8000, Highest})
    {
        doubles::trace().reset();
        answer(topApi().manageXpic, code, "refused");
        EXPECT_EQ(1, run()) << "code " << code;
        EXPECT_THAT(messages(), ElementsAre(message("refused"))) << "code " << code;
    }
}

TEST_P(XpicFailureTest, ZeroAndEveryNegativeCodeAreSuccessAndTraceNothing)
{
    for (const std::int32_t code : {0, -1, Lowest})
    {
        answer(topApi().manageXpic, code, "a hint");
        EXPECT_EQ(0, run()) << "code " << code;
    }
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_EQ("", doubles::trace().discarded);
}

TEST_P(XpicFailureTest, SilentTraceDropsTheTextAndKeepsTheResult)
{
    silenceTrace();
    answer(topApi().manageXpic, 1, "slave is busy");
    EXPECT_EQ(1, run());
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_EQ("slave is busy", doubles::trace().discarded);
}

TEST_P(XpicFailureTest, FailureIsNotTriedAgain)
{
    answer(topApi().manageXpic, 1, "slave is busy");
    EXPECT_EQ(1, run(2));
    EXPECT_THAT(calls(), SizeIs(1));
}

INSTANTIATE_TEST_SUITE_P(Commands, XpicFailureTest,
                         ::testing::Values(NamedCommand{"setXpicSlaveMute", [](Callback& to, RadioChannel channel)
                                                        { return to.setXpicSlaveMute(channel, 1); }},
                                           NamedCommand{"setXpicPreamble", [](Callback& to, RadioChannel channel)
                                                        { return to.setXpicPreamble(channel, 1); }},
                                           NamedCommand{"getXpicPreamble",
                                                        [](Callback& to, RadioChannel channel)
                                                        {
                                                            unsigned char preamble = 0;
                                                            return to.getXpicPreamble(channel, &preamble);
                                                        }},
                                           NamedCommand{"xpicAcquireStart", [](Callback& to, RadioChannel channel)
                                                        { return to.xpicAcquireStart(channel, 1, 1); }}),
                         ::testing::PrintToStringParamName());

} // namespace
