#include <algorithm>
#include <cstdint>
#include <optional>
#include <ostream>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "node/services/FaultOf.h"

using node::services::FaultPlan;
using node::services::PlannedAnswer;

namespace
{

constexpr auto Xpic = "tiManageXpic";
constexpr auto Stop = "IDpdControllerSplit.stop";

/// What a planned code means for a call.
struct CodeRow
{
    std::string call;
    std::optional<std::int32_t> planned;
    std::int32_t code;
    bool failed;
};

std::ostream& operator<<(std::ostream& out, const CodeRow& row)
{
    return out << row.call << " " << (row.planned ? std::to_string(*row.planned) : "without a code");
}

class FaultCodeTest : public ::testing::TestWithParam<CodeRow>
{
};

TEST_P(FaultCodeTest, FailsOrDoesNotAsTheCallsFamilyDrawsItsLine)
{
    FaultPlan faults;
    faults.add(FaultOf(GetParam().call).withCode(GetParam().planned).withText("text"));
    const std::optional<PlannedAnswer> answer = faults.pass(GetParam().call, 1);
    ASSERT_TRUE(answer.has_value());
    EXPECT_EQ(GetParam().code, answer->code);
    EXPECT_EQ("text", answer->text);
    EXPECT_EQ(GetParam().failed, answer->failed);
}

constexpr auto Status = "ITiGetDspModemStatus.getDspModemStatus";
constexpr auto Parameter = "IDpdControllerSplit.getStartParameter";
constexpr auto ToString = "ITiGetDspModemStatus.toString";
constexpr auto Install = "IRlbspKelApi.installDebugCmdCallback";

INSTANTIATE_TEST_SUITE_P(
    EachCode, FaultCodeTest,
    ::testing::Values(CodeRow{Xpic, std::nullopt, 1, true}, CodeRow{Xpic, 1, 1, true},
                      CodeRow{Xpic, 0x8000, 0x8000, true}, CodeRow{Xpic, 0, 0, false}, CodeRow{Xpic, -1, -1, false},
                      CodeRow{Xpic, INT32_MIN, INT32_MIN, false}, CodeRow{Status, std::nullopt, 0x8000, true},
                      CodeRow{Status, 0x8000, 0x8000, true}, CodeRow{Status, INT32_MAX, INT32_MAX, true},
                      CodeRow{Status, 0x7FFF, 0x7FFF, false}, CodeRow{Status, 0, 0, false},
                      CodeRow{Status, -0x8000, -0x8000, false}, CodeRow{Stop, std::nullopt, 0x8000, true},
                      CodeRow{Stop, 0x7FFF, 0x7FFF, false}, CodeRow{Parameter, std::nullopt, 0, false},
                      CodeRow{Parameter, 0x8000, 0x8000, false}, CodeRow{ToString, std::nullopt, 0, false},
                      CodeRow{ToString, INT32_MAX, INT32_MAX, false}, CodeRow{Install, std::nullopt, 0, false},
                      CodeRow{Install, INT32_MAX, INT32_MAX, false}));

const char* anyCall(std::mt19937_64& random)
{
    return random() % 2 == 0 ? Xpic : Stop;
}

FaultOf anyFault(std::mt19937_64& random)
{
    FaultOf fault(anyCall(random));
    fault.from(1 + random() % 5);
    if (random() % 2 == 0)
    {
        fault.onChannel(static_cast<RadioChannel>(1 + random() % 2));
    }
    if (random() % 2 == 0)
    {
        fault.times(random() % 5);
    }
    return fault;
}

class FaultPlanSeedTest : public ::testing::TestWithParam<std::uint64_t>
{
};

TEST_P(FaultPlanSeedTest, EveryAnswerIsAHitOfOneFaultWithinItsSpan)
{
    std::mt19937_64 random(GetParam());
    for (int round = 0; round < 50; ++round)
    {
        SCOPED_TRACE("seed " + std::to_string(GetParam()) + ", round " + std::to_string(round));
        FaultPlan faults;
        for (auto left = random() % 6; left > 0; --left)
        {
            faults.add(anyFault(random));
        }
        std::uint64_t answers = 0;
        std::uint64_t calls = 0;
        for (; calls < 20; ++calls)
        {
            answers += faults.pass(anyCall(random), static_cast<RadioChannel>(1 + random() % 2)) ? 1 : 0;
        }
        std::uint64_t hits = 0;
        for (const auto& [fault, seen, hitsOfFault] : faults.list())
        {
            hits += hitsOfFault;
            EXPECT_LE(seen, calls);
            EXPECT_LE(hitsOfFault, fault.calls.value_or(calls));
            EXPECT_LE(hitsOfFault + fault.fromCall - 1, std::max(seen, fault.fromCall - 1));
        }
        EXPECT_EQ(answers, hits);
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, FaultPlanSeedTest, ::testing::Values(1, 2, 3, 20'240'229));

} // namespace
