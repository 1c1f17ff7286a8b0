#include "module/CtStatusTest.h"
#include "module/Operations.h"

namespace
{

using kel::device::kelDebugCmd::KelDebugCmd;
using Callback = IRlbspKelApi::KelDebugCmdCallback;

/// All that an operation leaves behind.
struct Trail
{
    int result;
    Output output;
    doubles::CallLog calls;
    std::vector<doubles::TraceMessage> messages;
};

class CallbackTest : public CtStatusTest
{
protected:
    CallbackTest()
    {
        modemStatus.text = "modem: in lock\n";
        dpd1->startParameter = 77;
        dpd1->coefficients = {{4, 5, 6}};
        doubles::topApi().manageXpic.XpicPreamble = kel_top_api::TiManageXpic::PreambleType::Preamble2;
    }

    template <typename Commands>
    static Trail trailOf(const Operation<Commands>& operation, Commands& to)
    {
        doubles::calls().clear();
        doubles::trace().reset();
        Trail trail{};
        trail.result = operation.run(to, trail.output);
        trail.calls = calls();
        trail.messages = messages();
        return trail;
    }

    /// Runs every operation on the callback and on the module itself.
    void compareBothWays()
    {
        const auto onCallback = operations<Callback>();
        const auto onModule = operations<KelDebugCmd>();
        ASSERT_EQ(16U, onCallback.size());
        for (std::size_t i = 0; i < onCallback.size(); ++i)
        {
            SCOPED_TRACE(onCallback[i].name);
            const Trail throughCallback = trailOf(onCallback[i], commands());
            const Trail direct = trailOf(onModule[i], *module);
            EXPECT_EQ(throughCallback.result, direct.result);
            EXPECT_TRUE(throughCallback.output == direct.output);
            EXPECT_EQ(throughCallback.calls, direct.calls);
            EXPECT_EQ(throughCallback.messages, direct.messages);
            EXPECT_THAT(direct.calls, ::testing::Not(::testing::IsEmpty()));
        }
    }
};

TEST_F(CallbackTest, SuccessfulOperationsAreTheSameOnTheModuleItself)
{
    compareBothWays();
}

TEST_F(CallbackTest, FailedOperationsAreTheSameOnTheModuleItself)
{
    failAllServices();
    compareBothWays();
}

TEST_F(CallbackTest, ResultsAreZeroOnSuccess)
{
    for (const auto& operation : operations<Callback>())
    {
        EXPECT_EQ(0, trailOf(operation, commands()).result) << operation.name;
    }
}

TEST_F(CallbackTest, ResultsAreOneOnFailureButForTheReportThatAlwaysAnswersZero)
{
    failAllServices();
    for (const auto& operation : operations<Callback>())
    {
        EXPECT_EQ(operation.name == "getCtStatus" ? 0 : 1, trailOf(operation, commands()).result) << operation.name;
    }
}

} // namespace
