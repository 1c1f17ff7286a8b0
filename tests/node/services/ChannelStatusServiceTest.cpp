#include <functional>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "kel_top_api/CriGetRadioChannelStatus.h"
#include "node/services/RecordText.h"
#include "node/services/ServiceTest.h"

using kel_top_api::CriGetRadioChannelStatus;
using kel_top_api::criGetRadioChannelStatus;
using node::radio::Channel;
using node::radio::LinkSetup;
using node::radio::Ticks;
using node::radio::XpicState;

namespace
{

using Response = CriGetRadioChannelStatus::Response;

Response inClearSky()
{
    Response response;
    response.TXActualStatus = "On";
    response.RadioChannelStatus = "Up";
    response.ActualModulation = "4096QAM";
    response.ActualTxModulation = "4096QAM";
    response.ActualRxModulation = "4096QAM";
    response.ActualRFInputPower = -4302;
    response.ReportedRFOutputPower = 1800;
    response.ClockStatus = 0;
    response.ActualSNIR = 4391;
    response.ErroredBlocks = 0;
    response.BackgroundBlocks = 0;
    response.TxFrequency = 17'727'500;
    response.RxFrequency = 18'737'500;
    response.KelState = "Enabled";
    response.XpicIsStarted = true;
    response.ActualXpi = 400;
    response.XpicState = "Locked";
    return response;
}

void useModulation(Response& response, const std::string& name)
{
    response.ActualModulation = name;
    response.ActualTxModulation = name;
    response.ActualRxModulation = name;
}

class ChannelStatusServiceTest : public ServiceTest
{
protected:
    /// Expects a status that is as in clear sky but for what `difference` does to it.
    static void expectStatus(RadioChannel of, const std::function<void(Response&)>& difference)
    {
        Response expected = inClearSky();
        difference(expected);
        EXPECT_EQ(wholeOf(expected), wholeOf(criGetRadioChannelStatus({of})));
    }

    static void expectClearSky(RadioChannel of)
    {
        expectStatus(of, [](Response&) {});
    }
};

TEST_P(ChannelStatusServiceTest, AnswersTheStatusOfTheLinkInClearSky)
{
    expectClearSky(channel);
    EXPECT_EQ("TXActualStatus: On, RadioChannelStatus: Up, ActualModulation: 4096QAM, ActualTxModulation: 4096QAM, "
              "ActualRxModulation:4096QAM, ActualRFInputPower: -4302, ReportedRFOutputPower: 1800, ClockStatus: 0, "
              "ActualSNIR: 4391, ErroredBlocks: 0, BackgroundBlocks: 0, TxFrequency: 17727500, "
              "RxFrequency: 18737500, KelState: Enabled\n",
              criGetRadioChannelStatus({channel}).printResponse());
}

TEST_P(ChannelStatusServiceTest, TheStatusDoesNotDependOnTheFlagOfOthers)
{
    EXPECT_EQ(wholeOf(criGetRadioChannelStatus({channel, false})), wholeOf(criGetRadioChannelStatus({channel, true})));
}

TEST_P(ChannelStatusServiceTest, TheStatusFollowsPredistortion)
{
    link.change(channel, [](Channel& state) { state.dpd.stop(); });
    expectStatus(channel, [](Response& expected) { expected.ActualSNIR = 3488; });
    expectClearSky(otherChannel);
}

TEST_P(ChannelStatusServiceTest, ASilentTransmitterIsOffAndItsReceiverHoldsItsClock)
{
    link.change(channel, [](Channel& state) { state.transmitter.on = false; });
    expectStatus(channel,
                 [](Response& expected)
                 {
                     expected.TXActualStatus = "Off";
                     expected.RadioChannelStatus = "Down";
                     useModulation(expected, "4QAM_STRONG");
                     expected.ActualRFInputPower = -11'000;
                     expected.ReportedRFOutputPower = -11'000;
                     expected.ClockStatus = 1;
                     expected.ActualSNIR = -2731;
                     expected.KelState = "Disabled";
                     expected.ActualXpi = -270;
                     expected.XpicState = "Acquiring";
                 });
    expectStatus(otherChannel,
                 [](Response& expected)
                 {
                     expected.ActualSNIR = 4402;
                     expected.ActualXpi = 999;
                     expected.XpicState = "Acquiring";
                 });
}

TEST_P(ChannelStatusServiceTest, AFadeUnlocksTheReceiverOfATransmitterThatIsStillOn)
{
    link.turnFade(60.0);
    expectStatus(channel,
                 [](Response& expected)
                 {
                     expected.RadioChannelStatus = "Down";
                     useModulation(expected, "4QAM_STRONG");
                     expected.ActualRFInputPower = -10'302;
                     expected.ClockStatus = 1;
                     expected.ActualSNIR = -903;
                     expected.XpicState = "Acquiring";
                 });
}

TEST_P(ChannelStatusServiceTest, AChannelThatSendsLessIsTheWeakerOfTheTwo)
{
    link.change(channel, [](Channel& state) { state.transmitter.power_dBm = 10.0; });
    expectStatus(channel,
                 [](Response& expected)
                 {
                     expected.ActualRFInputPower = -5102;
                     expected.ReportedRFOutputPower = 1000;
                     expected.ActualSNIR = 4054;
                     expected.ActualXpi = 320;
                 });
    expectStatus(otherChannel,
                 [](Response& expected)
                 {
                     expected.ActualSNIR = 4400;
                     expected.ActualXpi = 480;
                 });
}

TEST_P(ChannelStatusServiceTest, ErroredBlocksAreCountedEachTickAndBackgroundBlocksEachSecond)
{
    const auto countsAre = [&](std::int32_t errored, std::int32_t background)
    {
        const Response response = criGetRadioChannelStatus({channel});
        EXPECT_EQ(errored, response.ErroredBlocks);
        EXPECT_EQ(background, response.BackgroundBlocks);
    };
    link.turnRain(60.0);
    countsAre(0, 0);
    link.advance(Ticks(1));
    countsAre(1, 0);
    link.advance(Ticks(8));
    countsAre(1, 0);
    link.advance(Ticks(1));
    countsAre(1, 1);
    link.turnFade(60.0);
    link.advance(Ticks(10));
    countsAre(11, 1);
}

TEST(ChannelStatusTest, TheFrequenciesAreThoseOfTheHop)
{
    LinkSetup setup;
    setup.hop.plan = node::radio::findFrequencyPlan("23 GHz");
    setup.hop.frequencyNumber = 3;
    const ServiceBench bench(setup);
    const Response response = criGetRadioChannelStatus({2});
    EXPECT_EQ(21'294'000, response.TxFrequency);
    EXPECT_EQ(22'526'000, response.RxFrequency);
}

/// What the canceller's state does to the status.
struct XpicRow
{
    std::string name;
    std::function<void(Channel&)> arrange;
    bool started;
    std::string state;
    std::int32_t snir_cdB;
};

std::ostream& operator<<(std::ostream& out, const XpicRow& row)
{
    return out << row.name;
}

class ChannelStatusXpicTest : public ::testing::TestWithParam<XpicRow>
{
};

TEST_P(ChannelStatusXpicTest, TellsTheCancellersStateAndWhatItMeansForTheSignal)
{
    for (const RadioChannel channel : {1U, 2U})
    {
        ServiceBench bench;
        bench.link.change(channel, GetParam().arrange);
        Response expected = inClearSky();
        expected.XpicIsStarted = GetParam().started;
        expected.XpicState = GetParam().state;
        expected.ActualSNIR = GetParam().snir_cdB;
        EXPECT_EQ(wholeOf(expected), wholeOf(criGetRadioChannelStatus({channel}))) << channel;
        EXPECT_EQ(wholeOf(inClearSky()), wholeOf(criGetRadioChannelStatus({3 - channel}))) << channel;
    }
}

constexpr std::int32_t Cancelled_cdB = 4391;
constexpr std::int32_t NotCancelled_cdB = 3855;

INSTANTIATE_TEST_SUITE_P(
    EachState, ChannelStatusXpicTest,
    ::testing::Values(
        XpicRow{"Acquired", [](Channel&) {}, true, "Locked", Cancelled_cdB},
        XpicRow{"Muted", [](Channel& state) { state.xpic.slaveMuted = true; }, true, "Muted", NotCancelled_cdB},
        XpicRow{"Idle", [](Channel& state) { state.xpic.state = XpicState::Idle; }, false, "Idle", NotCancelled_cdB},
        XpicRow{"Acquiring", [](Channel& state) { state.xpic.startAcquisition(); }, true, "Acquiring",
                NotCancelled_cdB},
        XpicRow{"Failed", [](Channel& state) { state.xpic.state = XpicState::Failed; }, false, "Failed",
                NotCancelled_cdB},
        XpicRow{"Lost", [](Channel& state) { state.xpic.state = XpicState::Lost; }, false, "Lost", NotCancelled_cdB},
        XpicRow{"MutedWhileItAcquires",
                [](Channel& state)
                {
                    state.xpic.startAcquisition();
                    state.xpic.slaveMuted = true;
                },
                true, "Acquiring", NotCancelled_cdB}),
    [](const auto& row) { return row.param.name; });

/// What rain leaves of a signal; levels and SNIR of the vertical channel as docs/ has them.
struct RainRow
{
    double rate_mm_per_h;
    std::int32_t level_cdBm;
    std::int32_t snir_cdB;
    std::int32_t discrimination_ddB;
    std::string modulation;
};

std::ostream& operator<<(std::ostream& out, const RainRow& row)
{
    return out << row.rate_mm_per_h << " mm/h";
}

class ChannelStatusRainTest : public ::testing::TestWithParam<RainRow>, protected ServiceBench
{
};

TEST_P(ChannelStatusRainTest, TellsWhatRainLeaves)
{
    link.turnRain(GetParam().rate_mm_per_h);
    Response expected = inClearSky();
    expected.ActualRFInputPower = GetParam().level_cdBm;
    expected.ActualSNIR = GetParam().snir_cdB;
    expected.ActualXpi = GetParam().discrimination_ddB;
    useModulation(expected, GetParam().modulation);
    EXPECT_EQ(wholeOf(expected), wholeOf(criGetRadioChannelStatus({1})));
}

INSTANTIATE_TEST_SUITE_P(EachRate, ChannelStatusRainTest,
                         ::testing::Values(RainRow{0, -4302, 4391, 400, "4096QAM"},
                                           RainRow{10, -4932, 4155, 336, "4096QAM"},
                                           RainRow{30, -5833, 3485, 261, "4096QAM"},
                                           RainRow{60, -7019, 2369, 207, "256QAM"}));

INSTANTIATE_TEST_SUITE_P(EachChannel, ChannelStatusServiceTest, ::testing::Values(1, 2));

} // namespace
