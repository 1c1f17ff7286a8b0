#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "node/scenario/FaultKeys.h"
#include "node/scenario/ScenarioText.h"

using node::scenario::typedFault;

namespace
{

using Words = std::vector<std::string>;

std::string refusalOf(const Words& words)
{
    return scenario_text::refusalOf([&] { typedFault(words, "addFault"); });
}

TEST(TypedFaultTest, ACallAloneHasTheDefaults)
{
    const auto fault = typedFault({"tiManageXpic"}, "addFault");
    EXPECT_EQ(node::services::findPlatformCall("tiManageXpic"), fault.call);
    EXPECT_EQ(std::nullopt, fault.channel);
    EXPECT_EQ(std::nullopt, fault.code);
    EXPECT_EQ(std::nullopt, fault.text);
    EXPECT_FALSE(fault.throws);
    EXPECT_EQ(1U, fault.fromCall);
    EXPECT_EQ(std::nullopt, fault.calls);
}

TEST(TypedFaultTest, EveryKeyIsRead)
{
    const auto fault = typedFault({"ITiGetDspModemStatus.getDspModemStatus", "calls=4294967295", "from_call=2",
                                   "channel=1", "code=-7", "text=busy", "throws=false"},
                                  "addFault");
    EXPECT_EQ(node::services::findPlatformCall("ITiGetDspModemStatus.getDspModemStatus"), fault.call);
    EXPECT_EQ(1U, fault.channel);
    EXPECT_EQ(-7, fault.code);
    EXPECT_EQ("busy", fault.text);
    EXPECT_FALSE(fault.throws);
    EXPECT_EQ(2U, fault.fromCall);
    EXPECT_EQ(4294967295U, fault.calls);
}

TEST(TypedFaultTest, ACallMayThrow)
{
    const auto fault = typedFault({"tiManageXpic", "throws=true", "text=out of order"}, "addFault");
    EXPECT_TRUE(fault.throws);
    EXPECT_EQ("out of order", fault.text);
}

TEST(TypedFaultTest, ATextIsTakenAsItIs)
{
    for (const std::string text :
         {"", " ", "two words", " blanks around ", "a=b", "=", "==", "true", "0x10", "text=x", "\"quoted\"", "ä\n"})
    {
        EXPECT_EQ(text, typedFault({"tiManageXpic", "text=" + text}, "addFault").text) << '"' << text << '"';
    }
}

TEST(TypedFaultTest, NumbersAreDecimalOrHexadecimal)
{
    struct CodeRow
    {
        std::string word;
        std::int32_t code;
    };
    for (const CodeRow& row : {CodeRow{"0", 0}, CodeRow{"0x8000", 32768}, CodeRow{"0X8001", 32769}, CodeRow{"-0x1", -1},
                               CodeRow{"2147483647", 2147483647}, CodeRow{"0x7fffffff", 2147483647},
                               CodeRow{"-2147483648", -2147483648}, CodeRow{"-0x80000000", -2147483648}})
    {
        EXPECT_EQ(row.code, typedFault({"tiManageXpic", "code=" + row.word}, "addFault").code) << row.word;
    }
    EXPECT_EQ(2U, typedFault({"tiManageXpic", "channel=0x2"}, "addFault").channel);
}

/// Words that are refused, and the error.
struct RefusedRow
{
    Words words;
    std::string error;
};

std::ostream& operator<<(std::ostream& stream, const RefusedRow& row)
{
    for (const std::string& word : row.words)
    {
        stream << '[' << word << ']';
    }
    return stream;
}

class RefusedFaultTest : public ::testing::TestWithParam<RefusedRow>
{
};

TEST_P(RefusedFaultTest, SaysWhereAndWhatAndWhy)
{
    EXPECT_EQ(GetParam().error, refusalOf(GetParam().words));
}

const std::string KeyValue = R"(, expected KEY=VALUE, each key once, as "help addFault" lists them)";
const std::string ACall = R"(, expected a call of the platform, such as "tiManageXpic")";
const std::string ACode = ", expected a whole number from -2147483648 to 2147483647";
const std::string ACount = ", expected a whole number from 1 to 4294967295";
const std::string AChannel = ", expected a whole number from 1 to 2";
const std::string AFlag = ", expected true or false";

const RefusedRow CallRows[] = {
    {{""}, R"(addFault: call: found "")" + ACall},
    {{"channel=1"}, R"(addFault: call: found "channel=1")" + ACall},
    {{"call=tiManageXpic"}, R"(addFault: call: found "call=tiManageXpic")" + ACall + " (did you mean tiManageXpic?)"},
    {{"TIManageXpic"}, R"(addFault: call: found "TIManageXpic")" + ACall + " (did you mean tiManageXpic?)"},
    {{"tiManageXpic "}, R"(addFault: call: found "tiManageXpic ")" + ACall + " (did you mean tiManageXpic?)"},
};
INSTANTIATE_TEST_SUITE_P(Calls, RefusedFaultTest, ::testing::ValuesIn(CallRows));

const RefusedRow KeyRows[] = {
    {{"tiManageXpic", "colour=1"}, R"(addFault: argument 2: found "colour=1")" + KeyValue},
    {{"tiManageXpic", "chanel=1"}, R"(addFault: argument 2: found "chanel=1")" + KeyValue + " (did you mean channel?)"},
    {{"tiManageXpic", "channel=1", "CODE=1"},
     R"(addFault: argument 3: found "CODE=1")" + KeyValue + " (did you mean code?)"},
    {{"tiManageXpic", "=1"}, R"(addFault: argument 2: found "=1")" + KeyValue},
    {{"tiManageXpic", "code"}, R"(addFault: argument 2: found "code")" + KeyValue + " (did you mean code?)"},
    {{"tiManageXpic", "code=1", "calls=2", "code=1"}, R"(addFault: argument 4: found "code=1")" + KeyValue},
    {{"tiManageXpic", "call=tiManageXpic"},
     R"(addFault: argument 2: found "call=tiManageXpic")" + KeyValue + " (did you mean calls?)"},
    {{"tiManageXpic", ""}, R"(addFault: argument 2: found "")" + KeyValue},
    {{"tiManageXpic", "a\nb"}, R"(addFault: argument 2: found "a\nb")" + KeyValue},
    {{"tiManageXpic", "tiManageXpic"}, R"(addFault: argument 2: found "tiManageXpic")" + KeyValue},
};
INSTANTIATE_TEST_SUITE_P(Keys, RefusedFaultTest, ::testing::ValuesIn(KeyRows));

const RefusedRow ValueRows[] = {
    {{"tiManageXpic", "channel=0"}, R"(addFault: channel: found "0")" + AChannel},
    {{"tiManageXpic", "channel=3"}, R"(addFault: channel: found "3")" + AChannel},
    {{"tiManageXpic", "channel="}, R"(addFault: channel: found "")" + AChannel},
    {{"tiManageXpic", "channel=1.0"}, R"(addFault: channel: found "1.0")" + AChannel},
    {{"tiManageXpic", "channel= 1"}, R"(addFault: channel: found " 1")" + AChannel},
    {{"tiManageXpic", "channel=1=1"}, R"(addFault: channel: found "1=1")" + AChannel},
    {{"tiManageXpic", "code=2147483648"}, R"(addFault: code: found "2147483648")" + ACode},
    {{"tiManageXpic", "code=0x80000000"}, R"(addFault: code: found "0x80000000")" + ACode},
    {{"tiManageXpic", "code=-2147483649"}, R"(addFault: code: found "-2147483649")" + ACode},
    {{"tiManageXpic", "code=99999999999"}, R"(addFault: code: found "99999999999")" + ACode},
    {{"tiManageXpic", "code=true"}, R"(addFault: code: found "true")" + ACode},
    {{"tiManageXpic", "from_call=0"}, R"(addFault: from_call: found "0")" + ACount},
    {{"tiManageXpic", "from_call=4294967296"}, R"(addFault: from_call: found "4294967296")" + ACount},
    {{"tiManageXpic", "calls=0"}, R"(addFault: calls: found "0")" + ACount},
    {{"tiManageXpic", "calls=-1"}, R"(addFault: calls: found "-1")" + ACount},
    {{"tiManageXpic", "calls=4294967296"}, R"(addFault: calls: found "4294967296")" + ACount},
    {{"tiManageXpic", "throws=1"}, R"(addFault: throws: found "1")" + AFlag},
    {{"tiManageXpic", "throws=yes"}, R"(addFault: throws: found "yes")" + AFlag},
    {{"tiManageXpic", "throws=TRUE"}, R"(addFault: throws: found "TRUE")" + AFlag},
    {{"tiManageXpic", "throws="}, R"(addFault: throws: found "")" + AFlag},
};
INSTANTIATE_TEST_SUITE_P(Values, RefusedFaultTest, ::testing::ValuesIn(ValueRows));

const RefusedRow CheckRows[] = {
    {{"CModuleManager.RegisterModule"},
     "addFault: throws: found false, expected true: CModuleManager.RegisterModule answers nothing"},
    {{"CModuleManager.RegisterModule", "throws=true", "channel=1"},
     "addFault: channel: found 1, expected no channel: CModuleManager.RegisterModule is about none"},
    {{"CModuleManager.RegisterModule", "throws=true"},
     "addFault: call: found \"CModuleManager.RegisterModule\", expected a call that is made after the start; this one "
     "belongs into a scenario"},
    {{"IRlbspKelApi.installDebugCmdCallback", "throws=true"},
     "addFault: call: found \"IRlbspKelApi.installDebugCmdCallback\", expected a call that is made after the start; "
     "this one belongs into a scenario"},
    {{"tiManageXpic", "code=5", "throws=true"},
     "addFault: code: found 5, expected no code: a call that throws answers nothing"},
    {{"ITiGetDspModemStatus.toString", "code=5"},
     "addFault: code: found 5, expected no code: ITiGetDspModemStatus.toString answers none"},
    {{"IDpdControllerSplit.stop", "text=a \"b\""},
     R"(addFault: text: found "a \"b\"", expected no text: IDpdControllerSplit.stop answers none)"},
};
INSTANTIATE_TEST_SUITE_P(Checks, RefusedFaultTest, ::testing::ValuesIn(CheckRows));

TEST(TypedFaultTest, ErrorsBeginWithThePlaceThatIsGiven)
{
    EXPECT_EQ(R"(line 7: code: found "x")" + ACode, scenario_text::refusalOf(
                                                        [] {
                                                            typedFault({"tiManageXpic", "code=x"}, "line 7");
                                                        }));
}

} // namespace
