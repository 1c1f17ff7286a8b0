#include <ostream>

#include "node/services/XpicServiceTest.h"

using node::radio::Channel;
using node::radio::Ticks;
using node::radio::XpicAcquireMode;
using node::radio::XpicState;

namespace
{

class XpicAcquisitionTest : public XpicServiceTest
{
protected:
    /// How long a sweep from its beginning takes to meet the channel's carrier, at 2 kHz a tick.
    Ticks untilMet() const
    {
        return channel == 1 ? Ticks(55) : Ticks(46);
    }

    void expectAnAcquisition(Ticks time, const Response& before)
    {
        link.advance(time - Ticks(1));
        expectWhole(before, send(channel, status));
        link.advance(Ticks(1));
        expectWhole(acquired(channel), send(channel, status));
    }
};

TEST_P(XpicAcquisitionTest, AFullSweepMeetsTheCarrierFromBelow)
{
    expectWhole(sweeping(channel), send(channel, acquiring(Mode::Mode0, Option::Option0)));
    link.advance(Ticks(1));
    expectWhole(sweeping(channel, -98'000), send(channel, status));
    link.advance(Ticks(9));
    expectWhole(sweeping(channel, -80'000), send(channel, status));
    expectAnAcquisition(untilMet() - Ticks(10), sweeping(channel, channel == 1 ? 8000 : -10'000));
    expectWhole(acquired(otherChannel), send(otherChannel, status));
}

TEST_P(XpicAcquisitionTest, ANarrowSweepBeginsBelowTheLastCarrier)
{
    const auto response = send(channel, acquiring(Mode::Mode1, Option::Option0));
    expectWhole(sweeping(channel, carrier_Hz - 20'000), response);
    expectAnAcquisition(Ticks(10), sweeping(channel, carrier_Hz - 2000));
}

TEST_P(XpicAcquisitionTest, ADirectAcquisitionWaitsAtTheLastCarrierWithoutASweep)
{
    const auto waiting = notAcquired(channel, "Acquiring", 2, carrier_Hz);
    expectWhole(waiting, send(channel, acquiring(Mode::Mode2, Option::Option0)));
    expectAnAcquisition(Ticks(10), waiting);
}

TEST_P(XpicAcquisitionTest, AnAcquisitionWithoutRetriesFailsAtTheEndOfItsSweep)
{
    link.change(channel, [](Channel& state) { state.xpic.cableConnected = false; });
    expectDone(send(channel, acquiring(Mode::Mode0, Option::Option0)));
    link.advance(Ticks(99));
    auto expected = sweeping(channel, 98'000);
    expected.XpicCableConnected = false;
    expected.RxMessage = "No cable";
    expectWhole(expected, send(channel, status));
    link.advance(Ticks(1));
    expected = notAcquired(channel, "Failed", 3, 100'000);
    expected.XpicCableConnected = false;
    expected.RxMessage = "No cable";
    expectWhole(expected, send(channel, status));
}

TEST_P(XpicAcquisitionTest, AnAcquisitionIsBegunAnewByANewOne)
{
    expectDone(send(channel, acquiring(Mode::Mode0, Option::Option3)));
    link.advance(Ticks(20));
    expectWhole(sweeping(channel), send(channel, acquiring(Mode::Mode0, Option::Option3)));
}

TEST_P(XpicAcquisitionTest, AnAcquisitionThatIsNotStartedChangesNothing)
{
    link.change(channel, [](Channel& state) { state.xpic.state = XpicState::Idle; });
    const std::string before = contentOf(link);
    expectDone(send(channel,
                    [](auto& command)
                    {
                        command.AcquireStart = false;
                        command.AcquireMode = Mode::OutOfRange;
                        command.AcquireOption = Option::Option3;
                    }));
    EXPECT_EQ(before, contentOf(link));
}

TEST_P(XpicAcquisitionTest, WithoutModeAndOptionItSweepsFullyAndOnce)
{
    expectDone(send(channel, [](auto& command) { command.AcquireStart = true; }));
    const auto xpic = link.snapshot(channel).state.xpic;
    EXPECT_EQ(XpicAcquireMode::FullSweep, xpic.mode);
    EXPECT_FALSE(xpic.retries);
    EXPECT_FALSE(xpic.reacquires);
}

INSTANTIATE_TEST_SUITE_P(EachChannel, XpicAcquisitionTest, ::testing::Values(1, 2));

/// What an acquisition's numbers ask of the canceller.
struct OptionRow
{
    unsigned option;
    bool retries;
    bool reacquires;
};

std::ostream& operator<<(std::ostream& out, const OptionRow& row)
{
    return out << "option " << row.option;
}

class XpicOptionTest : public ::testing::TestWithParam<OptionRow>
{
};

TEST_P(XpicOptionTest, IsRememberedWithEveryMode)
{
    using kel_top_api::TiManageXpic;
    const ServiceBench bench;
    for (unsigned mode = 0; mode < 3; ++mode)
    {
        TiManageXpic::Command command;
        command.RadioChannelID = 2;
        command.AcquireStart = true;
        command.AcquireMode = static_cast<TiManageXpic::AcquireModeType>(mode);
        command.AcquireOption = static_cast<TiManageXpic::AcquireOptionType>(GetParam().option);
        expectDone(tiManageXpic(command));
        const auto xpic = bench.link.snapshot(2).state.xpic;
        EXPECT_EQ(static_cast<XpicAcquireMode>(mode), xpic.mode);
        EXPECT_EQ(GetParam().retries, xpic.retries);
        EXPECT_EQ(GetParam().reacquires, xpic.reacquires);
        EXPECT_EQ(XpicState::Acquiring, xpic.state);
    }
}

INSTANTIATE_TEST_SUITE_P(EachOption, XpicOptionTest,
                         ::testing::Values(OptionRow{0, false, false}, OptionRow{1, true, false},
                                           OptionRow{2, false, true}, OptionRow{3, true, true}));

} // namespace
