#include "node/services/XpicServiceTest.h"

#include <string>

using node::radio::Channel;
using node::radio::XpicState;

namespace
{

TEST_P(XpicServiceTest, AnswersTheStatusOfAnAcquiredCanceller)
{
    auto response = send(channel, status);
    expectWhole(acquired(channel), response);
    EXPECT_EQ("RadioChannelID: " + std::to_string(channel) +
                  ", XpicControlBarOn: 1, XpicEnable: 1, AverageI: 10, AverageQ: 0, TxMessage: Preamble 0, "
                  "RxMessage: Preamble 0, XpicLockStateMachine: 1, XpicState: Locked, SlaveInternalAgc: 0, "
                  "SlaveExternalAgc: 230, XpicCableConnected: 1, XpicTxEnable: 1, XpicEnableExt: Enable_A, "
                  "SlaveDiffGain: 0",
              response.printResponse());
}

TEST_P(XpicServiceTest, AMutedSlaveShowsInTheStatusUntilItIsUnmuted)
{
    auto muted = acquired(channel);
    muted.XpicControlBarOn = false;
    muted.XpicLockStateMachine = false;
    muted.XpicState = "Muted";
    muted.CalibrationStatus = 5;
    expectWhole(muted, send(channel, muting(true)));
    expectWhole(muted, send(channel, status));
    expectWhole(acquired(otherChannel), send(otherChannel, status));

    expectWhole(acquired(channel), send(channel, muting(false)));
    expectWhole(acquired(channel), send(channel, status));
}

TEST_P(XpicServiceTest, EveryStateOfACancellerThatIsNotAcquiredShows)
{
    link.change(channel, [](Channel& state) { state.xpic.state = XpicState::Idle; });
    expectWhole(notAcquired(channel, "Idle", 0, carrier_Hz), send(channel, status));
    link.change(channel, [](Channel& state) { state.xpic.state = XpicState::Failed; });
    expectWhole(notAcquired(channel, "Failed", 3, carrier_Hz), send(channel, status));
    link.change(channel, [](Channel& state) { state.xpic.state = XpicState::Lost; });
    expectWhole(notAcquired(channel, "Lost", 4, carrier_Hz), send(channel, status));
    link.change(channel, [](Channel& state) { state.xpic.startAcquisition(); });
    expectWhole(sweeping(channel), send(channel, status));
    expectWhole(acquired(otherChannel), send(otherChannel, status));
}

TEST_P(XpicServiceTest, WithoutItsCableACancellerReceivesNothing)
{
    link.change(channel, [](Channel& state) { state.xpic.cableConnected = false; });
    auto expected = sweeping(channel);
    expected.XpicCableConnected = false;
    expected.RxMessage = "No cable";
    expectWhole(expected, send(channel, status));
    expectWhole(acquired(otherChannel), send(otherChannel, status));
}

TEST_P(XpicServiceTest, ASilentTransmitterSendsNothingAndTheOtherSlaveReceivesNothing)
{
    link.change(channel, [](Channel& state) { state.transmitter.on = false; });
    auto own = sweeping(channel);
    own.TxMessage = "No signal";
    own.XpicTxEnable = false;
    own.SlaveDiffGain = -670;
    expectWhole(own, send(channel, status));
    auto other = sweeping(otherChannel);
    other.RxMessage = "No signal";
    other.SlaveInternalAgc = 600;
    other.SlaveExternalAgc = 300;
    other.SlaveDiffGain = 670;
    expectWhole(other, send(otherChannel, status));
}

TEST_P(XpicServiceTest, InAFadeItStillSendsItsPreambleAndReceivesNone)
{
    link.turnFade(60.0);
    auto expected = sweeping(channel);
    expected.RxMessage = "No signal";
    expected.SlaveInternalAgc = 530;
    expected.SlaveExternalAgc = 300;
    expectWhole(expected, send(channel, status));
}

TEST_P(XpicServiceTest, TheGainsMakeUpForWhatTheSlaveReceivesLess)
{
    link.change(otherChannel, [](Channel& state) { state.transmitter.power_dBm = 10.0; });
    auto expected = acquired(channel);
    expected.AverageI = 4;
    expected.SlaveExternalAgc = 300;
    expected.SlaveInternalAgc = 10;
    expected.SlaveDiffGain = 80;
    expectWhole(expected, send(channel, status));
    expected = acquired(otherChannel);
    expected.AverageI = 25;
    expected.SlaveDiffGain = -80;
    expectWhole(expected, send(otherChannel, status));
}

TEST_P(XpicServiceTest, ASignalAboveTheReferenceLevelNeedsNoGain)
{
    link.setDistance(0.1);
    auto expected = acquired(channel);
    expected.SlaveExternalAgc = 0;
    expectWhole(expected, send(channel, status));
}

TEST_P(XpicServiceTest, EveryPreambleIsReadBack)
{
    for (const auto preamble : {Preamble::Preamble1, Preamble::Preamble2, Preamble::Preamble3})
    {
        auto expected = sweeping(channel);
        expected.XpicPreamble = preamble;
        expected.TxMessage = "Preamble " + std::to_string(static_cast<unsigned>(preamble));
        expectWhole(expected, send(channel, choosing(preamble)));
        expectWhole(expected, send(channel, [](auto& command) { command.GetPreamble = true; }));
        auto other = sweeping(otherChannel);
        other.RxMessage = expected.TxMessage;
        expectWhole(other, send(otherChannel, status));
    }
}

TEST_P(XpicServiceTest, TheSamePreambleOnceMoreLosesNothing)
{
    expectWhole(acquired(channel), send(channel, choosing(Preamble::Preamble0)));
    expectWhole(acquired(otherChannel), send(otherChannel, status));
}

TEST_P(XpicServiceTest, TheRequestsOfOtherUsersChangeNothing)
{
    const auto response = send(channel,
                               [](auto& command)
                               {
                                   command.member2 = true;
                                   command.member3 = true;
                                   command.member4 = 4;
                                   command.member5 = "text";
                                   command.member6 = true;
                                   command.member7 = true;
                               });
    expectWhole(acquired(channel), response);
    expectWhole(acquired(channel), send(channel, status));
}

TEST_P(XpicServiceTest, WhatIsNotPresentIsNeitherCarriedOutNorRefused)
{
    for (const auto preamble : {Preamble::Preamble2, Preamble::OutOfRange})
    {
        const auto response = send(channel,
                                   [&](auto& command)
                                   {
                                       command.SlaveMute.value = true;
                                       command.Preamble.value = preamble;
                                       command.AcquireStart.value = true;
                                       command.AcquireMode = Mode::OutOfRange;
                                   });
        expectWhole(acquired(channel), response);
        EXPECT_FALSE(link.snapshot(channel).state.xpic.slaveMuted);
    }
}

INSTANTIATE_TEST_SUITE_P(EachChannel, XpicServiceTest, ::testing::Values(1, 2));

} // namespace
