#include "node/services/XpicServiceTest.h"

namespace
{

/// A refused request tells the channel's state all the same, and leaves the link as it was.
class XpicRefusalTest : public XpicServiceTest
{
protected:
    void expectRefusal(const std::string& reason, const Request& request)
    {
        const std::string before = contentOf(link);
        auto expected = send(channel, status);
        expected.resultCode = 1;
        expected.resultText = reason;
        expectWhole(expected, send(channel, request));
        EXPECT_EQ(before, contentOf(link));
    }
};

TEST_P(XpicRefusalTest, APreambleOutOfRangeIsRefused)
{
    expectDone(send(channel, choosing(Preamble::Preamble2)));
    for (const auto number : {4U, 5U, 0xFFFFFFFFU})
    {
        expectRefusal("preamble: found a number out of range, expected 0 to 3",
                      choosing(static_cast<Preamble>(number)));
    }
}

TEST_P(XpicRefusalTest, AnAcquireModeOutOfRangeIsRefused)
{
    for (const auto number : {3U, 4U, 0xFFFFFFFFU})
    {
        expectRefusal("acquire mode: found a number out of range, expected 0 to 2",
                      acquiring(static_cast<Mode>(number), Option::Option1));
    }
}

TEST_P(XpicRefusalTest, AnAcquireOptionOutOfRangeIsRefused)
{
    for (const auto number : {4U, 5U, 0xFFFFFFFFU})
    {
        expectRefusal("acquire option: found a number out of range, expected 0 to 3",
                      acquiring(Mode::Mode1, static_cast<Option>(number)));
    }
}

TEST_P(XpicRefusalTest, AnAcquisitionIsRefusedWhileTheSlaveIsMuted)
{
    expectDone(send(channel, muting(true)));
    expectRefusal("acquisition: found the slave muted, expected it unmuted", acquiring(Mode::Mode1, Option::Option1));
    expectDone(send(otherChannel, acquiring(Mode::Mode1, Option::Option1)));
    expectDone(send(channel, muting(false)));
    expectDone(send(channel, acquiring(Mode::Mode1, Option::Option1)));
}

TEST_P(XpicRefusalTest, OfAMuteAndAnAcquisitionInOneRequestTheMuteCounts)
{
    const auto both = [](bool mute)
    {
        return [mute](auto& command)
        {
            acquiring(Mode::Mode0, Option::Option0)(command);
            muting(mute)(command);
        };
    };
    expectRefusal("acquisition: found the slave muted, expected it unmuted", both(true));
    expectDone(send(channel, muting(true)));
    expectDone(send(channel, both(false)));
}

TEST_P(XpicRefusalTest, OfARefusedRequestNothingIsCarriedOut)
{
    const auto everything = [](auto& command)
    {
        command.SlaveMute = true;
        command.Preamble = Preamble::OutOfRange;
        command.AcquireStart = true;
    };
    expectRefusal("preamble: found a number out of range, expected 0 to 3", everything);
}

INSTANTIATE_TEST_SUITE_P(EachChannel, XpicRefusalTest, ::testing::Values(1, 2));

} // namespace
