#include <iterator>
#include <ostream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/scenario/ScenarioText.h"
#include "support/Portrait.h"

using scenario_text::parse;
using scenario_text::refusal;
using ::testing::ElementsAre;
using ::testing::SizeIs;

namespace
{

/// A call of the platform, and what a fault may give it.
struct CallRow
{
    std::string call;
    bool hasChannel;
    bool answersCode;
    bool answersText;
};

std::ostream& operator<<(std::ostream& stream, const CallRow& row)
{
    return stream << row.call;
}

const CallRow CallRows[] = {
    {"criCalibrateDspPps", true, true, true},
    {"criGetCalibrationStatusDspPps", true, true, true},
    {"criGetHopLengthTimeDspPps", true, true, true},
    {"criGetRadioChannelCapability", true, true, true},
    {"criGetRadioChannelStatus", true, true, true},
    {"criSetOutputModeDspPps", true, true, true},
    {"criSetSourceDspPps", true, true, true},
    {"tiManageXpic", true, true, true},
    {"IDpdControllerSplit.start", true, true, false},
    {"IDpdControllerSplit.stop", true, true, false},
    {"IDpdControllerSplit.getStartParameter", true, true, false},
    {"IDpdControllerSplit.getCoeffs", true, true, false},
    {"IDpdControllerSplit.setCoeffs", true, true, false},
    {"ITiGetDspModemStatus.getDspModemStatus", true, true, true},
    {"ITiGetDspModemStatus.toString", true, false, true},
    {"ITiManageRadioChannelNearEnd.getRadioChannelInfo", true, true, true},
    {"IRlbspKelApi.installDebugCmdCallback", false, false, false},
    {"CModuleManager.RegisterModule", false, false, false},
};

class FaultCheckTest : public ::testing::TestWithParam<CallRow>
{
protected:
    /// What a fault for the call is refused with; `lines` follow its call in line 3.
    std::string refusalWith(const std::string& lines) const
    {
        return refusal("[[fault]]\ncall = \"" + GetParam().call + "\"\n" + lines);
    }

    bool answersNothing() const
    {
        return !GetParam().answersCode && !GetParam().answersText;
    }
};

TEST_P(FaultCheckTest, ACallThatAnswersNothingMustThrow)
{
    const std::string expected = ", expected true: " + GetParam().call + " answers nothing";
    EXPECT_EQ(answersNothing() ? "link.toml:1:1: fault[1].throws: found false" + expected : "", refusalWith(""));
    EXPECT_EQ(answersNothing() ? "link.toml:3:10: fault[1].throws: found false" + expected : "",
              refusalWith("throws = false\n"));
    EXPECT_EQ("", refusalWith("throws = true\n"));
}

TEST_P(FaultCheckTest, AChannelIsForCallsAboutAChannel)
{
    const std::string lines = "channel = 2\nthrows = true\n";
    EXPECT_EQ(GetParam().hasChannel ? ""
                                    : "link.toml:3:11: fault[1].channel: found 2, expected no channel: " +
                                          GetParam().call + " is about none",
              refusalWith(lines));
}

TEST_P(FaultCheckTest, ACodeIsForCallsThatAnswerOne)
{
    EXPECT_EQ(GetParam().answersCode
                  ? ""
                  : "link.toml:3:8: fault[1].code: found -3, expected no code: " + GetParam().call + " answers none",
              refusalWith("code = -3\n"));
}

TEST_P(FaultCheckTest, ATextIsForCallsThatAnswerOneOrThrow)
{
    EXPECT_EQ(GetParam().answersText ? ""
                                     : "link.toml:3:8: fault[1].text: found \"no\\nway\", expected no text: " +
                                           GetParam().call + " answers none",
              refusalWith("text = \"no\\nway\"\n"));
    EXPECT_EQ("", refusalWith("text = \"no way\"\nthrows = true\n"));
}

TEST_P(FaultCheckTest, ACodeIsNotForCallsThatThrow)
{
    EXPECT_EQ("link.toml:4:8: fault[1].code: found 5, expected no code: a call that throws answers nothing",
              refusalWith("throws = true\ncode = 5\n"));
}

INSTANTIATE_TEST_SUITE_P(EveryCall, FaultCheckTest, ::testing::ValuesIn(CallRows));

TEST(FaultTableTest, EveryCallOfThePlatformHasARow)
{
    ASSERT_THAT(node::services::platformCalls(), SizeIs(std::size(CallRows)));
    for (std::size_t i = 0; i < std::size(CallRows); ++i)
    {
        EXPECT_EQ(CallRows[i].call, node::services::platformCalls()[i].name);
    }
}

TEST(FaultTableTest, EveryCallIsFoundByItsName)
{
    for (const CallRow& row : CallRows)
    {
        const auto faults = parse("[[fault]]\ncall = \"" + row.call + "\"\nthrows = true\n").configuration.faults;
        ASSERT_THAT(faults, SizeIs(1));
        EXPECT_EQ(row.call, faults[0].call->name);
    }
}

TEST(FaultTableTest, ACallThatIsSpeltAlikeIsSuggested)
{
    EXPECT_EQ("link.toml:2:8: fault[1].call: found \"IDpdControllerSplit.stat\", expected a call of the platform, "
              "such as \"tiManageXpic\" (did you mean IDpdControllerSplit.start?)",
              refusal("[[fault]]\ncall = \"IDpdControllerSplit.stat\"\n"));
    EXPECT_EQ("link.toml:2:8: fault[1].call: found \"restart\", expected a call of the platform, such as "
              "\"tiManageXpic\"",
              refusal("[[fault]]\ncall = \"restart\"\n"));
}

TEST(FaultTableTest, TheCallMustBeThere)
{
    EXPECT_EQ("link.toml:1:1: fault[1].call: found no call, expected the key \"call\"",
              refusal("[[fault]]\nchannel = 1\n"));
    EXPECT_EQ("link.toml:3:1: fault[2].call: found no call, expected the key \"call\"",
              refusal("[[fault]]\ncall = \"tiManageXpic\"\n[[fault]]\n"));
}

TEST(FaultTableTest, KeysMayStandInAnyOrder)
{
    EXPECT_EQ("", refusal("[[fault]]\ntext = \"x\"\nchannel = 2\ncode = 0\ncall = \"tiManageXpic\"\n"));
    EXPECT_EQ("link.toml:2:11: fault[1].channel: found 1, expected no channel: CModuleManager.RegisterModule is about "
              "none",
              refusal("[[fault]]\nchannel = 1\nthrows = true\ncall = \"CModuleManager.RegisterModule\"\n"));
}

TEST(FaultTableTest, FaultsAreKeptInTheOrderOfTheFileWithAllTheirKeys)
{
    const auto changes = portrait::changes({}, parse("[[fault]]\n"
                                                     "call = \"tiManageXpic\"\n"
                                                     "channel = 2\n"
                                                     "code = -2147483648\n"
                                                     "text = \" a = b \"\n"
                                                     "from_call = 3\n"
                                                     "calls = 4294967295\n"
                                                     "[[fault]]\n"
                                                     "call = \"CModuleManager.RegisterModule\"\n"
                                                     "throws = true\n"));
    EXPECT_THAT(changes,
                ElementsAre("fault[1].call = \"tiManageXpic\"", "fault[1].channel = 2", "fault[1].code = -2147483648",
                            "fault[1].text = \" a = b \"", "fault[1].throws = false", "fault[1].from_call = 3",
                            "fault[1].calls = 4294967295", "fault[2].call = \"CModuleManager.RegisterModule\"",
                            "fault[2].channel = none", "fault[2].code = none", "fault[2].text = none",
                            "fault[2].throws = true", "fault[2].from_call = 1", "fault[2].calls = none"));
}

} // namespace
