#include <ostream>
#include <random>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/cli/SessionTest.h"

using node::cli::Status;
using node::services::Fault;
using node::services::PlatformCall;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace
{

/// A fault as it is typed, and as it is listed before anything was called.
struct Row
{
    std::string typed;
    std::string listed;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << row.typed;
}

class FaultCommandsTest : public SessionTest
{
};

class AddFaultTest : public SessionTest, public ::testing::WithParamInterface<Row>
{
};

TEST_P(AddFaultTest, PlansWhatListFaultsShows)
{
    EXPECT_EQ("", done("addFault " + GetParam().typed));
    EXPECT_EQ(GetParam().listed + ": seen 0, hit 0\n", done("listFaults"));
    EXPECT_THAT(commands.calls, IsEmpty());
    EXPECT_THAT(desk.started, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    EachKey, AddFaultTest,
    ::testing::Values(Row{"tiManageXpic", "tiManageXpic"}, Row{"tiManageXpic channel=1", "tiManageXpic channel=1"},
                      Row{"tiManageXpic channel=2", "tiManageXpic channel=2"},
                      Row{"tiManageXpic code=0", "tiManageXpic code=0"},
                      Row{"tiManageXpic code=-2147483648", "tiManageXpic code=-2147483648"},
                      Row{"tiManageXpic code=0x7fffffff", "tiManageXpic code=2147483647"},
                      Row{"tiManageXpic text=busy", "tiManageXpic text=\"busy\""},
                      Row{"tiManageXpic text=", "tiManageXpic text=\"\""},
                      Row{"tiManageXpic text=\"no answer\"", "tiManageXpic text=\"no answer\""},
                      Row{"tiManageXpic \"text=no answer\"", "tiManageXpic text=\"no answer\""},
                      Row{R"(tiManageXpic text="a \"b\" \\c=d")", R"(tiManageXpic text="a \"b\" \\c=d")"},
                      Row{"tiManageXpic throws=true", "tiManageXpic throws=true"},
                      Row{"tiManageXpic throws=false", "tiManageXpic"}, Row{"tiManageXpic from_call=1", "tiManageXpic"},
                      Row{"tiManageXpic from_call=2", "tiManageXpic from_call=2"},
                      Row{"tiManageXpic from_call=4294967295", "tiManageXpic from_call=4294967295"},
                      Row{"tiManageXpic calls=1", "tiManageXpic calls=1"},
                      Row{"tiManageXpic calls=4294967295", "tiManageXpic calls=4294967295"},
                      Row{"criGetRadioChannelStatus calls=3 from_call=2 text=down code=7 channel=1",
                          "criGetRadioChannelStatus channel=1 code=7 text=\"down\" from_call=2 calls=3"},
                      Row{"tiManageXpic text=full throws=true", "tiManageXpic text=\"full\" throws=true"}));

TEST_F(FaultCommandsTest, AFaultIsPlannedWithEveryKey)
{
    done("addFault ITiGetDspModemStatus.getDspModemStatus channel=2 code=32770 text=down from_call=5 calls=6");
    ASSERT_THAT(desk.plan.list(), SizeIs(1));
    const Fault fault = desk.plan.list().front().fault;
    EXPECT_EQ(node::services::findPlatformCall("ITiGetDspModemStatus.getDspModemStatus"), fault.call);
    EXPECT_EQ(2U, fault.channel);
    EXPECT_EQ(32770, fault.code);
    EXPECT_EQ("down", fault.text);
    EXPECT_FALSE(fault.throws);
    EXPECT_EQ(5U, fault.fromCall);
    EXPECT_EQ(6U, fault.calls);
}

/// A fault as it is typed, and what is said of it.
struct WrongRow
{
    std::string typed;
    std::string complaint;
};

std::ostream& operator<<(std::ostream& out, const WrongRow& row)
{
    return out << row.typed;
}

class WrongFaultTest : public SessionTest, public ::testing::WithParamInterface<WrongRow>
{
};

TEST_P(WrongFaultTest, IsRefusedAndNotPlanned)
{
    EXPECT_EQ("addFault: " + GetParam().complaint, complaint(Status::NotUnderstood, "addFault " + GetParam().typed));
    EXPECT_THAT(desk.plan.list(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    EachKind, WrongFaultTest,
    ::testing::Values(
        WrongRow{"", "argument 1 (call): found nothing, expected a call that \"listCalls\" lists, then any of the "
                     "keys"},
        WrongRow{"tiManageXpik", "call: found \"tiManageXpik\", expected a call of the platform, such as "
                                 "\"tiManageXpic\" (did you mean tiManageXpic?)"},
        WrongRow{"\"\"", "call: found \"\", expected a call of the platform, such as \"tiManageXpic\""},
        WrongRow{"tiManageXpic chanel=1", "argument 2: found \"chanel=1\", expected KEY=VALUE, each key once, as "
                                          "\"help addFault\" lists them (did you mean channel?)"},
        WrongRow{"tiManageXpic code=1 calls", "argument 3: found \"calls\", expected KEY=VALUE, each key once, as "
                                              "\"help addFault\" lists them (did you mean calls?)"},
        WrongRow{"tiManageXpic code=1 code=1", "argument 3: found \"code=1\", expected KEY=VALUE, each key once, as "
                                               "\"help addFault\" lists them"},
        WrongRow{"tiManageXpic channel=0", "channel: found \"0\", expected a whole number from 1 to 2"},
        WrongRow{"tiManageXpic channel=3", "channel: found \"3\", expected a whole number from 1 to 2"},
        WrongRow{"tiManageXpic code=-2147483649",
                 "code: found \"-2147483649\", expected a whole number from -2147483648 to 2147483647"},
        WrongRow{"tiManageXpic code=2147483648",
                 "code: found \"2147483648\", expected a whole number from -2147483648 to 2147483647"},
        WrongRow{"tiManageXpic throws=yes", "throws: found \"yes\", expected true or false"},
        WrongRow{"tiManageXpic from_call=0", "from_call: found \"0\", expected a whole number from 1 to 4294967295"},
        WrongRow{"tiManageXpic from_call=4294967296",
                 "from_call: found \"4294967296\", expected a whole number from 1 to 4294967295"},
        WrongRow{"tiManageXpic calls=0", "calls: found \"0\", expected a whole number from 1 to 4294967295"},
        WrongRow{"tiManageXpic calls=4294967296",
                 "calls: found \"4294967296\", expected a whole number from 1 to 4294967295"},
        WrongRow{"tiManageXpic code=1 throws=true",
                 "code: found 1, expected no code: a call that throws answers nothing"},
        WrongRow{"CModuleManager.RegisterModule",
                 "throws: found false, expected true: CModuleManager.RegisterModule answers nothing"},
        WrongRow{"ITiGetDspModemStatus.toString code=1",
                 "code: found 1, expected no code: ITiGetDspModemStatus.toString answers none"},
        WrongRow{"IDpdControllerSplit.stop text=x",
                 "text: found \"x\", expected no text: IDpdControllerSplit.stop answers none"}));

TEST_F(FaultCommandsTest, ListFaultsCountsWhatCameByAndWhatWasHit)
{
    done("addFault tiManageXpic channel=1 from_call=2 calls=1");
    done("addFault tiManageXpic");
    for (const RadioChannel channel : {1U, 1U, 2U, 1U})
    {
        desk.plan.pass("tiManageXpic", channel);
    }
    EXPECT_EQ("tiManageXpic channel=1 from_call=2 calls=1: seen 3, hit 1\n"
              "tiManageXpic: seen 4, hit 3\n",
              done("listFaults"));
}

TEST_F(FaultCommandsTest, WithoutFaultsListFaultsPrintsNothing)
{
    EXPECT_EQ("", done("listFaults"));
}

TEST_F(FaultCommandsTest, ClearFaultsDropsAll)
{
    done("addFault tiManageXpic");
    done("addFault criGetRadioChannelStatus");
    EXPECT_EQ("", done("clearFaults"));
    EXPECT_EQ("", done("listFaults"));
    EXPECT_EQ(std::nullopt, desk.plan.pass("tiManageXpic", 1));
    done("clearFaults");
}

TEST_F(FaultCommandsTest, ListCallsTellsWhatEachCallCanAnswer)
{
    EXPECT_EQ(R"(criCalibrateDspPps                                 a code, failing above 0, and a text
criGetCalibrationStatusDspPps                      a code, failing above 0, and a text
criGetHopLengthTimeDspPps                          a code, failing above 0, and a text
criGetRadioChannelCapability                       a code, failing above 0, and a text
criGetRadioChannelStatus                           a code, failing above 0, and a text
criSetOutputModeDspPps                             a code, failing above 0, and a text
criSetSourceDspPps                                 a code, failing above 0, and a text
tiManageXpic                                       a code, failing above 0, and a text
IDpdControllerSplit.start                          a code, failing from 32768 on
IDpdControllerSplit.stop                           a code, failing from 32768 on
IDpdControllerSplit.getStartParameter              a number
IDpdControllerSplit.getCoeffs                      a code, failing from 32768 on
IDpdControllerSplit.setCoeffs                      a code, failing from 32768 on
ITiGetDspModemStatus.getDspModemStatus             a code, failing from 32768 on, and a text
ITiGetDspModemStatus.toString                      a text
ITiManageRadioChannelNearEnd.getRadioChannelInfo   a code, failing from 32768 on, and a text
IRlbspKelApi.installDebugCmdCallback               nothing; a scenario can make it throw at the start
CModuleManager.RegisterModule                      nothing; a scenario can make it throw at the start
)",
              done("listCalls"));
}

/// Faults as they come, each of which its call can have.
class RandomFaults
{
public:
    explicit RandomFaults(std::uint64_t seed) : m_random(seed)
    {
    }

    Fault next()
    {
        constexpr std::size_t CallsOfTheStart = 2; // the last ones; they cannot be planned any more
        const auto calls = node::services::platformCalls();
        const PlatformCall& call = calls[static_cast<std::size_t>(below(calls.size() - CallsOfTheStart))];
        Fault fault;
        fault.call = &call;
        fault.throws = below(4) == 0;
        if (call.hasChannel && below(2) == 0)
        {
            fault.channel = static_cast<RadioChannel>(1 + below(2));
        }
        if (call.answersCode() && !fault.throws && below(2) == 0)
        {
            fault.code = static_cast<std::int32_t>(below(std::uint64_t{1} << 32U));
        }
        if ((call.answersText() || fault.throws) && below(2) == 0)
        {
            fault.text = text();
        }
        fault.fromCall = below(2) == 0 ? 1 : 1 + below(4294967295);
        if (below(2) == 0)
        {
            fault.calls = 1 + below(4294967295);
        }
        return fault;
    }

private:
    std::uint64_t below(std::uint64_t bound)
    {
        return std::uniform_int_distribution<std::uint64_t>(0, bound - 1)(m_random);
    }

    std::string text()
    {
        const std::vector<std::string> letters = {"a", "Z", "0", " ", "\"", "\\", "=", "#", ":", "ä", "'", "{}"};
        std::string text;
        for (std::uint64_t left = below(8); left > 0; --left)
        {
            text += letters[static_cast<std::size_t>(below(letters.size()))];
        }
        return text;
    }

    std::mt19937_64 m_random;
};

TEST_F(FaultCommandsTest, WhatListFaultsShowsCanBeTypedAgain)
{
    constexpr int Rounds = 100;
    for (const std::uint64_t seed : {1U, 20240229U, 4000000007U})
    {
        RandomFaults faults(seed);
        for (int round = 0; round < Rounds; ++round)
        {
            SCOPED_TRACE(::testing::Message() << "seed " << seed << ", round " << round);
            desk.plan.clear();
            const Fault planned = faults.next();
            desk.plan.add(planned);
            const std::string listed = done("listFaults");
            desk.plan.clear();
            done("addFault " + listed.substr(0, listed.rfind(": seen ")));
            ASSERT_THAT(desk.plan.list(), SizeIs(1)) << listed;
            const Fault typed = desk.plan.list().front().fault;
            EXPECT_EQ(planned.call, typed.call) << listed;
            EXPECT_EQ(planned.channel, typed.channel) << listed;
            EXPECT_EQ(planned.code, typed.code) << listed;
            EXPECT_EQ(planned.text, typed.text) << listed;
            EXPECT_EQ(planned.throws, typed.throws) << listed;
            EXPECT_EQ(planned.fromCall, typed.fromCall) << listed;
            EXPECT_EQ(planned.calls, typed.calls) << listed;
        }
    }
}

} // namespace
