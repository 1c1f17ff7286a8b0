#include <limits>

#include "module/ModuleTest.h"
#include "module/NamedCommand.h"

using doubles::answer;
using doubles::bufferMessage;
using doubles::topApi;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Callback = IRlbspKelApi::KelDebugCmdCallback;

namespace
{

constexpr auto Lowest = std::numeric_limits<std::int32_t>::min();
constexpr auto Highest = std::numeric_limits<std::int32_t>::max();

/// What the three PPS configuration commands have in common.
class PpsFailureTest : public ModuleTest, public ::testing::WithParamInterface<NamedCommand>
{
protected:
    int run(RadioChannel channel = 1)
    {
        return GetParam().run(commands(), channel);
    }

    static void answerAll(std::int32_t resultCode, const std::string& resultText)
    {
        answer(topApi().calibrateDspPps, resultCode, resultText);
        answer(topApi().setOutputModeDspPps, resultCode, resultText);
        answer(topApi().setSourceDspPps, resultCode, resultText);
    }
};

TEST_P(PpsFailureTest, FailureIsTracedInThreePiecesAndEndedWithoutALineEnd)
{
    const std::string name = GetParam().name;
    answerAll(1, "DSP does not answer");
    EXPECT_EQ(1, run());
    ASSERT_THAT(messages(), ElementsAre(bufferMessage(name, "DSP does not answer")));
    EXPECT_EQ(name + "(): failed: DSP does not answer", messages()[0].text);
    EXPECT_THAT(messages()[0].data, ElementsAre(name, "(): ", "failed: DSP does not answer"));
    EXPECT_EQ("end", messages()[0].completion);
}

TEST_P(PpsFailureTest, EmptyTextLeavesTheTrailingBlank)
{
    answerAll(1, "");
    EXPECT_EQ(1, run());
    EXPECT_THAT(messages(), ElementsAre(bufferMessage(GetParam().name, "")));
}

TEST_P(PpsFailureTest, TextIsTracedAsItStands)
{
    answerAll(1, "50 %d of it\n\tis odd\n");
    EXPECT_EQ(1, run());
    EXPECT_THAT(messages(), ElementsAre(bufferMessage(GetParam().name, "50 %d of it\n\tis odd\n")));
}

TEST_P(PpsFailureTest, TextMayHoldZeroBytes)
{
    const std::string text("before\0after", 12);
    answerAll(1, text);
    EXPECT_EQ(1, run());
    EXPECT_THAT(messages(), ElementsAre(bufferMessage(GetParam().name, text)));
}

TEST_P(PpsFailureTest, EveryCodeAboveZeroIsAFailure)
{
    for (const std::int32_t code : {1, 0x7FFF, 0x8000, Highest})
    {
        doubles::trace().reset();
        answerAll(code, "refused");
        EXPECT_EQ(1, run()) << "code " << code;
        EXPECT_THAT(messages(), ElementsAre(bufferMessage(GetParam().name, "refused"))) << "code " << code;
    }
}

TEST_P(PpsFailureTest, ZeroAndEveryNegativeCodeAreSuccessAndTraceNothing)
{
    for (const std::int32_t code : {0, -1, -5, Lowest})
    {
        answerAll(code, "a hint");
        EXPECT_EQ(0, run()) << "code " << code;
    }
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_P(PpsFailureTest, SilentTraceKeepsTheResultAndFormatsNothing)
{
    silenceTrace();
    answerAll(1, "DSP does not answer");
    EXPECT_EQ(1, run());
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_EQ("", doubles::trace().discarded);
}

TEST_P(PpsFailureTest, FailureIsNotTriedAgain)
{
    answerAll(1, "DSP does not answer");
    EXPECT_EQ(1, run(2));
    EXPECT_THAT(calls(), SizeIs(1));
}

INSTANTIATE_TEST_SUITE_P(Commands, PpsFailureTest,
                         ::testing::Values(NamedCommand{"calibratePps", [](Callback& to, RadioChannel channel)
                                                        { return to.calibratePps(channel, 0, 0); }},
                                           NamedCommand{"setPpsOutputMode", [](Callback& to, RadioChannel channel)
                                                        { return to.setPpsOutputMode(channel, 0); }},
                                           NamedCommand{"setPpsSource", [](Callback& to, RadioChannel channel)
                                                        { return to.setPpsSource(channel, 0, 0); }}),
                         ::testing::PrintToStringParamName());

} // namespace
