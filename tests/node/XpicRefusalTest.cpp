#include "node/XpicServiceTest.h"

namespace
{

using XpicRefusalTest = XpicServiceTest;

TEST_P(XpicRefusalTest, APreambleOutOfRangeIsRefused)
{
    expectDone(send(channel, choosing(Preamble::Preamble2)));
    for (const auto number : {4U, 5U, 0xFFFFFFFFU})
    {
        const auto response = send(channel, choosing(static_cast<Preamble>(number)));
        expectRefused("preamble: found a number out of range, expected 0 to 3", response);
        expectUnprinted(response, Preamble::Preamble2, offset_Hz);
    }
}

TEST_P(XpicRefusalTest, AnAcquireModeOutOfRangeIsRefused)
{
    for (const auto number : {3U, 4U, 0xFFFFFFFFU})
    {
        expectRefused("acquire mode: found a number out of range, expected 0 to 2",
                      send(channel, acquiring(static_cast<Mode>(number), Option::Option1)));
        EXPECT_EQ(0U, link.snapshot(channel).state.xpic.acquireMode);
        EXPECT_EQ(0U, link.snapshot(channel).state.xpic.acquireOption);
    }
}

TEST_P(XpicRefusalTest, AnAcquireOptionOutOfRangeIsRefused)
{
    for (const auto number : {4U, 5U, 0xFFFFFFFFU})
    {
        expectRefused("acquire option: found a number out of range, expected 0 to 3",
                      send(channel, acquiring(Mode::Mode1, static_cast<Option>(number))));
        EXPECT_EQ(0U, link.snapshot(channel).state.xpic.acquireMode);
        EXPECT_EQ(0U, link.snapshot(channel).state.xpic.acquireOption);
    }
}

TEST_P(XpicRefusalTest, AnAcquisitionIsRefusedWhileTheSlaveIsMuted)
{
    expectDone(send(channel, muting(true)));
    expectRefused("acquisition: found the slave muted, expected it unmuted",
                  send(channel, acquiring(Mode::Mode1, Option::Option1)));
    EXPECT_EQ(0U, link.snapshot(channel).state.xpic.acquireMode);
    expectDone(send(otherChannel, acquiring(Mode::Mode1, Option::Option1)));
    expectDone(send(channel, muting(false)));
    expectDone(send(channel, acquiring(Mode::Mode1, Option::Option1)));
    EXPECT_EQ(1U, link.snapshot(channel).state.xpic.acquireMode);
}

TEST_P(XpicRefusalTest, OfARefusedRequestNothingIsCarriedOut)
{
    const auto response = send(channel,
                               [](auto& command)
                               {
                                   command.SlaveMute = true;
                                   command.Preamble = Preamble::OutOfRange;
                               });
    expectRefused("preamble: found a number out of range, expected 0 to 3", response);
    EXPECT_FALSE(link.snapshot(channel).state.xpic.slaveMuted);
}

INSTANTIATE_TEST_SUITE_P(EachChannel, XpicRefusalTest, ::testing::Values(1, 2));

} // namespace
