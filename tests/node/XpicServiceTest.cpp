#include "node/XpicServiceTest.h"

#include <string>

namespace
{

TEST_P(XpicServiceTest, AnswersTheStatusOfAnAcquiredCanceller)
{
    auto response = send(channel, status);
    expectDone(response);
    EXPECT_EQ("RadioChannelID: " + std::to_string(channel) +
                  ", XpicControlBarOn: 1, XpicEnable: 1, AverageI: 0, AverageQ: 0, TxMessage: , RxMessage: , "
                  "XpicLockStateMachine: 1, XpicState: Locked, SlaveInternalAgc: 0, SlaveExternalAgc: 0, "
                  "XpicCableConnected: 1, XpicTxEnable: 1, XpicEnableExt: Enable_A, SlaveDiffGain: 0",
              response.printResponse());
    expectUnprinted(response, Preamble::Preamble0, offset_Hz);
}

TEST_P(XpicServiceTest, AMutedSlaveShowsInTheStatusUntilItIsUnmuted)
{
    expectDone(send(channel, muting(true)));
    auto response = send(channel, status);
    expectDone(response);
    EXPECT_EQ("RadioChannelID: " + std::to_string(channel) +
                  ", XpicControlBarOn: 0, XpicEnable: 1, AverageI: 0, AverageQ: 0, TxMessage: , RxMessage: , "
                  "XpicLockStateMachine: 0, XpicState: Muted, SlaveInternalAgc: 0, SlaveExternalAgc: 0, "
                  "XpicCableConnected: 1, XpicTxEnable: 1, XpicEnableExt: Enable_A, SlaveDiffGain: 0",
              response.printResponse());
    expectUnprinted(response, Preamble::Preamble0, offset_Hz);
    EXPECT_EQ("Locked", send(otherChannel, status).XpicState);

    EXPECT_EQ("Locked", send(channel, muting(false)).XpicState);
    EXPECT_EQ("Locked", send(channel, status).XpicState);
}

TEST_P(XpicServiceTest, ACancellerThatIsNotAcquiredIsUnlocked)
{
    link.change(channel, [](auto& state) { state.xpic.acquired = false; });
    auto response = send(channel, status);
    expectDone(response);
    EXPECT_EQ("Unlocked", response.XpicState);
    EXPECT_FALSE(response.XpicControlBarOn);
    EXPECT_FALSE(response.XpicLockStateMachine);
    EXPECT_EQ(0U, response.CalibrationStatus);
}

TEST_P(XpicServiceTest, EveryPreambleIsReadBack)
{
    for (const auto preamble : {Preamble::Preamble1, Preamble::Preamble2, Preamble::Preamble3, Preamble::Preamble0})
    {
        auto response = send(channel, choosing(preamble));
        expectDone(response);
        expectUnprinted(response, preamble, offset_Hz);
        response = send(channel, [](auto& command) { command.GetPreamble = true; });
        expectDone(response);
        expectUnprinted(response, preamble, offset_Hz);
        EXPECT_EQ(Preamble::Preamble0, send(otherChannel, status).XpicPreamble);
    }
}

TEST_P(XpicServiceTest, EveryAcquireModeAndOptionIsRemembered)
{
    for (const auto mode : {Mode::Mode0, Mode::Mode1, Mode::Mode2})
    {
        for (const auto option : {Option::Option0, Option::Option1, Option::Option2, Option::Option3})
        {
            expectDone(send(channel, acquiring(mode, option)));
            EXPECT_EQ(static_cast<std::uint32_t>(mode), link.snapshot(channel).state.xpic.acquireMode);
            EXPECT_EQ(static_cast<std::uint32_t>(option), link.snapshot(channel).state.xpic.acquireOption);
        }
    }
}

TEST_P(XpicServiceTest, AnAcquisitionLocksTheCanceller)
{
    link.change(channel, [](auto& state) { state.xpic.acquired = false; });
    EXPECT_EQ("Locked", send(channel, acquiring(Mode::Mode1, Option::Option2)).XpicState);
    EXPECT_EQ("Locked", send(channel, status).XpicState);
}

TEST_P(XpicServiceTest, AnAcquisitionThatIsNotStartedChangesNothing)
{
    link.change(channel, [](auto& state) { state.xpic.acquired = false; });
    expectDone(send(channel,
                    [](auto& command)
                    {
                        command.AcquireStart = false;
                        command.AcquireMode = Mode::OutOfRange;
                        command.AcquireOption = Option::Option3;
                    }));
    EXPECT_FALSE(link.snapshot(channel).state.xpic.acquired);
    EXPECT_EQ(0U, link.snapshot(channel).state.xpic.acquireMode);
    EXPECT_EQ(0U, link.snapshot(channel).state.xpic.acquireOption);
}

TEST_P(XpicServiceTest, TheRequestsOfOtherUsersChangeNothing)
{
    auto response = send(channel,
                         [](auto& command)
                         {
                             command.member2 = true;
                             command.member3 = true;
                             command.member4 = 4;
                             command.member5 = "text";
                             command.member6 = true;
                             command.member7 = true;
                         });
    expectDone(response);
    EXPECT_EQ(send(channel, status).printResponse(), response.printResponse());
    expectUnprinted(response, Preamble::Preamble0, offset_Hz);
}

INSTANTIATE_TEST_SUITE_P(EachChannel, XpicServiceTest, ::testing::Values(1, 2));

} // namespace
