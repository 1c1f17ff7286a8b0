#include <algorithm>
#include <cstdint>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/services/FaultOf.h"
#include "node/services/RecordText.h"
#include "node/services/ServiceCalls.h"

using node::radio::Ticks;
using node::services::Fault;
using node::services::findPlatformCall;
using node::services::PlannedException;
using ::testing::ElementsAreArray;

namespace
{

/// What can be seen of a bench, at present and after a minute in which every calibration and acquisition would end.
std::string everythingOf(CallBench& bench)
{
    const std::string now = contentOf(bench.link);
    bench.link.advance(Ticks(600));
    return now + contentOf(bench.link) + contentOf(bench.records) +
           (bench.boardSupport.installedCallback() == nullptr ? "\nno callback" : "\na callback");
}

std::string everythingOfAnUntouchedBench()
{
    CallBench bench;
    return everythingOf(bench);
}

/// What calls come to without a fault. The top-level API is bound to one bench at a time: this one is gone again.
struct Healthy
{
    Healthy(const ServiceCall& call, RadioChannel channel, int calls)
    {
        CallBench bench;
        for (int i = 0; i < calls; ++i)
        {
            outcomes.push_back(call.make(bench, channel));
        }
        everything = everythingOf(bench);
    }

    std::vector<Outcome> outcomes;
    std::string everything;
};

TEST(FaultedServicesTest, EveryCallIsTestedHereButTheFrameworksOwn)
{
    std::vector<std::string> expected;
    for (const auto& call : node::services::platformCalls())
    {
        if (call.name != "CModuleManager.RegisterModule")
        {
            expected.emplace_back(call.name);
        }
    }
    std::vector<std::string> names;
    for (const auto& call : serviceCalls())
    {
        names.push_back(call.name);
    }
    EXPECT_THAT(names, ElementsAreArray(expected));
}

class FaultedServiceTest : public ::testing::TestWithParam<ServiceCall>
{
protected:
    static FaultOf fault()
    {
        return FaultOf(GetParam().name);
    }

    /// A text where the call has room for one.
    static std::string textIfAny(const std::string& text)
    {
        return GetParam().answersText ? text : "";
    }
};

TEST_P(FaultedServiceTest, APlannedExceptionComesOutAndNothingElseHappens)
{
    const std::string untouched = everythingOfAnUntouchedBench();
    CallBench bench;
    bench.faults.add(fault().withText("out of order").throwing());
    try
    {
        GetParam().make(bench, 2);
        ADD_FAILURE() << "nothing was thrown";
    }
    catch (const PlannedException& thrown)
    {
        EXPECT_STREQ("out of order", thrown.what());
    }
    EXPECT_EQ(untouched, everythingOf(bench));
}

TEST_P(FaultedServiceTest, AFaultHitsItsCallAlone)
{
    const auto makeOthers = [](CallBench& bench)
    {
        std::vector<Outcome> outcomes;
        for (const ServiceCall& call : serviceCalls())
        {
            if (call.name != GetParam().name)
            {
                outcomes.push_back(call.make(bench, 1));
            }
        }
        return outcomes;
    };
    const auto expected = [&]
    {
        CallBench healthy;
        return makeOthers(healthy);
    }();
    CallBench bench;
    bench.faults.add(fault().throwing());
    EXPECT_EQ(expected, makeOthers(bench));
    EXPECT_EQ(0U, bench.faults.list().front().seen);
    EXPECT_THROW(GetParam().make(bench, 1), PlannedException);
    EXPECT_EQ(1U, bench.faults.list().front().seen);
    EXPECT_EQ(1U, bench.faults.list().front().hits);
}

TEST_P(FaultedServiceTest, AFaultEndsAfterItsCalls)
{
    const Healthy healthy(GetParam(), 1, 2);
    CallBench bench;
    bench.faults.add(fault().throwing().from(2).times(1));
    EXPECT_EQ(healthy.outcomes[0], GetParam().make(bench, 1));
    EXPECT_THROW(GetParam().make(bench, 1), PlannedException);
    EXPECT_EQ(healthy.outcomes[1], GetParam().make(bench, 1));
    EXPECT_EQ(healthy.everything, everythingOf(bench));
    EXPECT_EQ(3U, bench.faults.list().front().seen);
    EXPECT_EQ(1U, bench.faults.list().front().hits);
}

INSTANTIATE_TEST_SUITE_P(EachCall, FaultedServiceTest, ::testing::ValuesIn(serviceCalls()));

std::vector<ServiceCall> callsThat(const std::function<bool(const ServiceCall&)>& are)
{
    std::vector<ServiceCall> calls;
    std::copy_if(serviceCalls().begin(), serviceCalls().end(), std::back_inserter(calls), are);
    return calls;
}

/// The calls that are about one channel.
using FaultedChannelTest = FaultedServiceTest;

TEST_P(FaultedChannelTest, AFaultHitsTheChannelThatItIsPlannedFor)
{
    const Healthy healthy(GetParam(), 1, 1);
    CallBench bench;
    bench.faults.add(fault().onChannel(2).throwing());
    EXPECT_EQ(healthy.outcomes[0], GetParam().make(bench, 1));
    EXPECT_EQ(0U, bench.faults.list().front().seen);
    EXPECT_THROW(GetParam().make(bench, 2), PlannedException);
}

INSTANTIATE_TEST_SUITE_P(EachCall, FaultedChannelTest,
                         ::testing::ValuesIn(callsThat([](const ServiceCall& call)
                                                       { return findPlatformCall(call.name)->hasChannel; })));

/// The calls whose codes can refuse.
class RefusedServiceTest : public FaultedServiceTest
{
protected:
    static void expectRefusal(const Fault& planned, std::int32_t code, const std::string& text)
    {
        const std::string untouched = everythingOfAnUntouchedBench();
        CallBench bench;
        bench.faults.add(planned);
        const Outcome expected{code, textIfAny(text), GetParam().untouched(1)};
        EXPECT_EQ(expected, GetParam().make(bench, 1));
        EXPECT_EQ(untouched, everythingOf(bench));
        EXPECT_EQ(1U, bench.faults.list().front().hits);
    }
};

TEST_P(RefusedServiceTest, WithoutACodeItIsTheServicesOwnRefusal)
{
    expectRefusal(fault(), *GetParam().refusal, "planned fault");
}

TEST_P(RefusedServiceTest, AnyFailingCodeAndTextAreAnsweredAndNothingElseHappens)
{
    for (const std::int32_t code : {*GetParam().refusal, *GetParam().refusal + 1, INT32_MAX})
    {
        expectRefusal(fault().withCode(code).withText("out of order"), code, "out of order");
    }
}

TEST_P(RefusedServiceTest, ACodeThatDoesNotFailLetsTheServiceWorkAndTakesThePlaceOfItsOwn)
{
    for (const std::int32_t code : {*GetParam().refusal - 1, 0, -1, INT32_MIN})
    {
        const Healthy healthy(GetParam(), 1, 1);
        CallBench bench;
        bench.faults.add(fault().withCode(code).withText("works all the same"));
        Outcome expected = healthy.outcomes[0];
        EXPECT_EQ(0, expected.code);
        expected.code = code;
        expected.text = textIfAny("works all the same");
        EXPECT_EQ(expected, GetParam().make(bench, 1));
        EXPECT_EQ(healthy.everything, everythingOf(bench));
        EXPECT_EQ(1U, bench.faults.list().front().hits);
    }
}

INSTANTIATE_TEST_SUITE_P(EachCall, RefusedServiceTest,
                         ::testing::ValuesIn(callsThat([](const ServiceCall& call)
                                                       { return call.refusal.has_value(); })));

/// The calls that have no refusal.
class FaultedAnswerTest : public ::testing::Test
{
protected:
    static Outcome make(const std::string& name, CallBench& bench, RadioChannel channel = 1)
    {
        return callsThat([&](const ServiceCall& call) { return call.name == name; }).at(0).make(bench, channel);
    }
};

TEST_F(FaultedAnswerTest, AnyNumberTakesThePlaceOfTheStartParameter)
{
    const std::string name = "IDpdControllerSplit.getStartParameter";
    for (const std::int32_t number : {0, 2, 0x8000, INT32_MAX, -1})
    {
        CallBench bench;
        bench.faults.add(FaultOf(name).withCode(number));
        EXPECT_EQ(static_cast<std::uint32_t>(number), make(name, bench).code);
    }
    CallBench bench;
    bench.faults.add(FaultOf(name));
    EXPECT_EQ(0, make(name, bench).code);
}

TEST_F(FaultedAnswerTest, AnyTextTakesThePlaceOfTheModemsStatus)
{
    const std::string name = "ITiGetDspModemStatus.toString";
    for (const std::string text : {"", "a line\nand another\n"})
    {
        CallBench bench;
        bench.faults.add(FaultOf(name).withCode(INT32_MAX).withText(text));
        EXPECT_EQ(text, make(name, bench).text);
    }
    CallBench bench;
    bench.faults.add(FaultOf(name));
    EXPECT_EQ("planned fault", make(name, bench).text);
}

TEST_F(FaultedAnswerTest, ThereIsNothingToAnswerWhereACallbackIsInstalled)
{
    const std::string name = "IRlbspKelApi.installDebugCmdCallback";
    CallBench bench;
    bench.faults.add(FaultOf(name).withCode(INT32_MAX).withText("out of order"));
    make(name, bench);
    EXPECT_NE(nullptr, bench.boardSupport.installedCallback());
    EXPECT_EQ(1U, bench.faults.list().front().hits);
}

TEST_F(FaultedAnswerTest, APlannedSuccessForAChannelThatTheLinkDoesNotHaveHidesTheRefusal)
{
    for (const std::string name : {"criSetSourceDspPps", "ITiGetDspModemStatus.getDspModemStatus",
                                   "ITiManageRadioChannelNearEnd.getRadioChannelInfo"})
    {
        const std::string untouched = everythingOfAnUntouchedBench();
        CallBench bench;
        bench.faults.add(FaultOf(name).withCode(0).withText("fine"));
        const Outcome outcome = make(name, bench, 3);
        EXPECT_EQ(0, outcome.code) << name;
        EXPECT_EQ("fine", outcome.text) << name;
        EXPECT_EQ(untouched, everythingOf(bench)) << name;
    }
}

} // namespace
