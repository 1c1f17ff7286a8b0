#include "module/Operations.h"
#include "module/memory/MemoryTest.h"

using allocation::Failing;
using Callback = IRlbspKelApi::KelDebugCmdCallback;

namespace
{

enum class Services
{
    Answer,
    Refuse,
    RefuseUntraced,
};

std::ostream& operator<<(std::ostream& out, Services services)
{
    switch (services)
    {
    case Services::Answer:
        return out << "ServicesAnswer";
    case Services::Refuse:
        return out << "ServicesRefuse";
    default:
        return out << "ServicesRefuseUntraced";
    }
}

/// An operation, under these conditions.
struct Condition
{
    Operation<Callback> operation;
    Services services;
    Failing failing;
};

/// Also the name of the test.
std::ostream& operator<<(std::ostream& out, const Condition& condition)
{
    return out << condition.operation.name << "_" << condition.services << "_" << condition.failing;
}

std::vector<Condition> everyCondition()
{
    std::vector<Condition> conditions;
    for (const auto& operation : operations<Callback>())
    {
        for (const Services services : {Services::Answer, Services::Refuse, Services::RefuseUntraced})
        {
            conditions.push_back({operation, services, Failing::Once});
            conditions.push_back({operation, services, Failing::FromThenOn});
        }
    }
    return conditions;
}

class CommandMemoryTest : public MemoryTest, public ::testing::WithParamInterface<Condition>
{
protected:
    CommandMemoryTest()
    {
        if (GetParam().services != Services::Answer)
        {
            failAllServices("no answer from the service, and none to be expected");
        }
        if (GetParam().services == Services::RefuseUntraced)
        {
            silenceTrace();
        }
    }

    int run(Output& output)
    {
        return GetParam().operation.run(commands(), output);
    }
};

TEST_P(CommandMemoryTest, EveryFailedAllocationReachesTheCallerAndLeavesTheOutputAlone)
{
    forgetRound();
    Output expected;
    const int expectedResult = run(expected);
    const auto expectedCalls = calls();
    const auto expectedMessages = messages();

    Output output;
    int result = -1;
    const auto failures = failEachAllocation(
        GetParam().failing, [&] { result = run(output); },
        [&]
        {
            EXPECT_EQ(-1, result);
            EXPECT_TRUE(output == Output()) << output.report;
        });
    EXPECT_LT(0U, failures);

    EXPECT_EQ(expectedResult, result);
    EXPECT_TRUE(output == expected) << output.report;
    EXPECT_EQ(expectedCalls, calls());
    EXPECT_EQ(expectedMessages, messages());
}

INSTANTIATE_TEST_SUITE_P(Operations, CommandMemoryTest, ::testing::ValuesIn(everyCondition()),
                         ::testing::PrintToStringParamName());

} // namespace
