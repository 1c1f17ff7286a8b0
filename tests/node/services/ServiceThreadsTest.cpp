#include <cstdint>
#include <functional>
#include <latch>
#include <thread>

#include <gtest/gtest.h>

#include "kel_top_api/TiManageXpic.h"
#include "node/services/DpdController.h"
#include "node/services/FaultOf.h"
#include "node/services/ModemStatus.h"
#include "node/services/ServiceTest.h"

namespace
{

constexpr int Rounds = 20'000;

TEST(ServiceThreadsTest, AModemStatusFitsTogetherWhilePredistortionIsStoppedAndStarted)
{
    ServiceBench bench;
    node::services::ModemStatus modem(bench.context);
    std::latch start(2);
    const std::jthread switcher(
        [&]
        {
            node::services::DpdController controller(bench.context, 1);
            start.arrive_and_wait();
            for (int round = 0; round < Rounds; ++round)
            {
                controller.stop();
                bench.link.change(1, [](auto& channel) { channel.dpd = {}; });
            }
        });
    start.arrive_and_wait();
    int torn = 0;
    for (int round = 0; round < Rounds; ++round)
    {
        DspModemStatus status;
        status.request = 2;
        ASSERT_EQ(0, modem.getDspModemStatus(1, &status).resultCode);
        const auto snir_cdB = status.content[5];
        const bool running = status.content[6] == 1;
        torn += snir_cdB == (running ? 4391U : 3488U) ? 0 : 1;
    }
    EXPECT_EQ(0, torn);
}

TEST(ServiceThreadsTest, AnXpicResponseAnswersItsOwnRequestWhileOthersAreMade)
{
    const ServiceBench bench;
    using Preamble = kel_top_api::TiManageXpic::PreambleType;
    std::latch start(2);
    const auto chooseAgainAndAgain = [&](Preamble preamble)
    {
        kel_top_api::TiManageXpic::Command command;
        command.RadioChannelID = 1;
        command.Preamble = preamble;
        int others = 0;
        start.arrive_and_wait();
        for (int round = 0; round < Rounds; ++round)
        {
            others += kel_top_api::tiManageXpic(command).XpicPreamble == preamble ? 0 : 1;
        }
        EXPECT_EQ(0, others);
    };
    const std::jthread other(chooseAgainAndAgain, Preamble::Preamble1);
    chooseAgainAndAgain(Preamble::Preamble2);
}

TEST(ServiceThreadsTest, AFaultHitsAsOftenAsItIsPlannedWhenCallsAreMadeAtOnce)
{
    constexpr std::uint64_t Hits = Rounds / 2;
    node::services::FaultPlan faults;
    faults.add(FaultOf("tiManageXpic").from(Rounds / 4).times(Hits));
    std::latch start(2);
    const auto callAgainAndAgain = [&](std::uint64_t& answered)
    {
        start.arrive_and_wait();
        for (int round = 0; round < Rounds; ++round)
        {
            answered += faults.pass("tiManageXpic", 1) ? 1 : 0;
        }
    };
    std::uint64_t others = 0;
    std::uint64_t own = 0;
    std::jthread other(callAgainAndAgain, std::ref(others));
    callAgainAndAgain(own);
    other.join();
    EXPECT_EQ(Hits, own + others);
    EXPECT_EQ(2U * Rounds, faults.list().front().seen);
    EXPECT_EQ(Hits, faults.list().front().hits);
}

TEST(ServiceThreadsTest, FaultsThatArePlannedAtOnceAreAllKept)
{
    node::services::FaultPlan faults;
    std::latch start(2);
    const auto planAgainAndAgain = [&]
    {
        start.arrive_and_wait();
        for (int round = 0; round < Rounds; ++round)
        {
            faults.add(FaultOf("tiManageXpic"));
        }
    };
    std::jthread other(planAgainAndAgain);
    planAgainAndAgain();
    other.join();
    EXPECT_EQ(2U * Rounds, faults.list().size());
}

TEST(ServiceThreadsTest, APlanCanBeMadeAndClearedWhileCallsPassIt)
{
    node::services::FaultPlan faults;
    std::latch start(2);
    const std::jthread planner(
        [&]
        {
            start.arrive_and_wait();
            for (int round = 0; round < Rounds; ++round)
            {
                faults.add(FaultOf("tiManageXpic").withCode(17).withText("planned"));
                faults.clear();
            }
        });
    start.arrive_and_wait();
    int torn = 0;
    for (int round = 0; round < Rounds; ++round)
    {
        const auto planned = faults.pass("tiManageXpic", 1);
        torn += planned && (planned->code != 17 || planned->text != "planned" || !planned->failed) ? 1 : 0;
        torn += faults.list().size() > 1 ? 1 : 0;
    }
    EXPECT_EQ(0, torn);
}

} // namespace
