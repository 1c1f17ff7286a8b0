#include <latch>
#include <thread>

#include <gtest/gtest.h>

#include "kel_top_api/TiManageXpic.h"
#include "node/radio/RadioLink.h"
#include "node/services/DpdController.h"
#include "node/services/ModemStatus.h"
#include "node/services/TopApi.h"

using node::radio::RadioLink;

namespace
{

constexpr int Rounds = 300'000;

TEST(ServiceThreadsTest, ChangesThatAreMadeAtOnceAreAllKept)
{
    RadioLink link;
    std::latch start(2);
    const auto changeAgainAndAgain = [&]
    {
        start.arrive_and_wait();
        for (int round = 0; round < Rounds; ++round)
        {
            link.change(1, [](auto& channel) { ++channel.pps.sourceParameter; });
        }
    };
    std::jthread other(changeAgainAndAgain);
    changeAgainAndAgain();
    other.join();
    EXPECT_EQ(2 * Rounds, link.snapshot(1).state.pps.sourceParameter);
}

TEST(ServiceThreadsTest, AModemStatusFitsTogetherWhilePredistortionIsStoppedAndStarted)
{
    RadioLink link;
    node::services::ModemStatus modem(link);
    std::latch start(2);
    const std::jthread switcher(
        [&]
        {
            node::services::DpdController controller(link, 1);
            start.arrive_and_wait();
            for (int round = 0; round < Rounds; ++round)
            {
                controller.stop();
                controller.start(1);
            }
        });
    start.arrive_and_wait();
    int torn = 0;
    for (int round = 0; round < Rounds; ++round)
    {
        DspModemStatus status;
        status.request = 2;
        ASSERT_EQ(0, modem.getDspModemStatus(1, &status).resultCode);
        const auto snir_cdB = status.content[4];
        const bool running = status.content[5] == 1;
        torn += snir_cdB == (running ? 4391U : 3488U) ? 0 : 1;
    }
    EXPECT_EQ(0, torn);
}

TEST(ServiceThreadsTest, AnXpicResponseAnswersItsOwnRequestWhileOthersAreMade)
{
    RadioLink link;
    const node::services::TopApiBinding binding(link);
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

} // namespace
