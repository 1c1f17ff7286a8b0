#include <cstdint>
#include <functional>
#include <limits>
#include <ostream>
#include <string>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/commands/LinkText.h"

using node::commands::linkText;
using node::radio::Channel;
using node::radio::LinkSetup;
using node::radio::PpsCalibration;
using node::radio::PpsFailure;
using node::radio::PpsRequest;
using node::radio::RadioLink;
using node::radio::Ticks;
using node::radio::XpicState;
using ::testing::ContainsRegex;
using ::testing::HasSubstr;

namespace
{

/// Something that is done to a link, and a line of its text then.
struct Row
{
    std::string line;
    std::function<void(RadioLink&)> act;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << row.line;
}

/// Changes channel 1 and leaves the other one.
std::function<void(RadioLink&)> changed(const std::function<void(Channel&)>& change)
{
    return [change](RadioLink& link) { link.change(1, change); };
}

std::function<void(RadioLink&)> inXpicState(XpicState state)
{
    return changed([state](Channel& channel) { channel.xpic.state = state; });
}

std::function<void(RadioLink&)> calibrated(PpsCalibration calibration)
{
    return changed([calibration](Channel& channel) { channel.pps.calibration = calibration; });
}

std::function<void(RadioLink&)> failed(PpsFailure failure)
{
    return changed([failure](Channel& channel) { channel.pps.failure = failure; });
}

std::function<void(RadioLink&)> adaptedFor(Ticks time)
{
    return [time](RadioLink& link)
    {
        link.change(1,
                    [](Channel& channel)
                    {
                        channel.dpd.stop();
                        channel.dpd.start();
                    });
        link.advance(time);
    };
}

class LinkLinesTest : public ::testing::TestWithParam<Row>
{
};

TEST_P(LinkLinesTest, SayWhatIsSo)
{
    RadioLink link;
    GetParam().act(link);
    EXPECT_THAT(linkText(link), HasSubstr("\n" + GetParam().line + "\n"));
}

INSTANTIATE_TEST_SUITE_P(
    OfTheWeather, LinkLinesTest,
    ::testing::Values(Row{"Distance:        0.1 km", [](RadioLink& link) { link.setDistance(0.1); }},
                      Row{"Distance:        12.345 km", [](RadioLink& link) { link.setDistance(12.345); }},
                      Row{"Rain:            12.35 mm/h", [](RadioLink& link) { link.turnRain(12.346); }},
                      Row{"Fade:            99.90 dB", [](RadioLink& link) { link.turnFade(99.9); }}));

INSTANTIATE_TEST_SUITE_P(OfTheTransmitterAndTheModem, LinkLinesTest,
                         ::testing::Values(Row{"Transmitter:     off               on",
                                               changed([](Channel& channel) { channel.transmitter.on = false; })},
                                           Row{"Tx power:        -110.00 dBm       18.00 dBm",
                                               changed([](Channel& channel) { channel.transmitter.on = false; })},
                                           Row{"Tx power:        10.00 dBm         18.00 dBm",
                                               changed([](Channel& channel) { channel.transmitter.power_dBm = 10.0; })},
                                           Row{"Rx level:        -51.02 dBm        -43.02 dBm",
                                               changed([](Channel& channel) { channel.transmitter.power_dBm = 10.0; })},
                                           Row{"Modem:           unlocked          unlocked",
                                               [](RadioLink& link) { link.turnFade(100.0); }},
                                           Row{"Modulation:      16QAM_STRONG      16QAM_STRONG",
                                               [](RadioLink& link) { link.turnFade(38.5); }},
                                           Row{"Errored blocks:  12                12", [](RadioLink& link)
                                               {
                                                   link.turnFade(100.0);
                                                   link.advance(Ticks(12));
                                               }}));

INSTANTIATE_TEST_SUITE_P(OfThePredistortion, LinkLinesTest,
                         ::testing::Values(Row{"DPD:             stopped           adapted",
                                               changed([](Channel& channel) { channel.dpd.stop(); })},
                                           Row{"DPD:             adapting          adapted", adaptedFor(Ticks(0))},
                                           Row{"DPD:             adapting          adapted", adaptedFor(Ticks(99))},
                                           Row{"DPD:             adapted           adapted", adaptedFor(Ticks(100))},
                                           Row{"DPD floor:       35.00 dB          45.00 dB", adaptedFor(Ticks(0))},
                                           Row{"DPD floor:       40.00 dB          45.00 dB", adaptedFor(Ticks(50))}));

INSTANTIATE_TEST_SUITE_P(
    OfTheCanceller, LinkLinesTest,
    ::testing::Values(Row{"XPIC:            Idle              Locked", inXpicState(XpicState::Idle)},
                      Row{"XPIC:            Acquiring         Locked", inXpicState(XpicState::Acquiring)},
                      Row{"XPIC:            Failed            Locked", inXpicState(XpicState::Failed)},
                      Row{"XPIC:            Lost              Locked", inXpicState(XpicState::Lost)},
                      Row{"XPIC:            Muted             Locked",
                          changed([](Channel& channel) { channel.xpic.slaveMuted = true; })},
                      Row{"XPIC cable:      off               on",
                          changed([](Channel& channel) { channel.xpic.cableConnected = false; })},
                      Row{"XPIC preamble:   3                 0",
                          changed([](Channel& channel) { channel.xpic.preamble = 3; })},
                      Row{"Slave offset:    -12346 Hz         -8864 Hz",
                          changed([](Channel& channel) { channel.xpic.position_Hz = -12345.6; })}));

INSTANTIATE_TEST_SUITE_P(
    OfThePpsOutput, LinkLinesTest,
    ::testing::Values(Row{"PPS calibration: coarse running    never", calibrated(PpsCalibration::CoarseNotCompleted)},
                      Row{"PPS calibration: coarse done       never", calibrated(PpsCalibration::FineNotCompleted)},
                      Row{"PPS calibration: auto              never", calibrated(PpsCalibration::Auto)},
                      Row{"PPS calibration: manual            never", calibrated(PpsCalibration::Manual)},
                      Row{"PPS calibration: failed            never", calibrated(PpsCalibration::Failed)},
                      Row{"PPS failure:     link loss         none", failed(PpsFailure::SlaveLinkLoss)},
                      Row{"PPS failure:     no response       none", failed(PpsFailure::NoResponseFromMaster)},
                      Row{"PPS failure:     modulation        none", failed(PpsFailure::ModulationChange)},
                      Row{"PPS failure:     coarse first      none", failed(PpsFailure::CoarseFirst)},
                      Row{"PPS master:      silent            answers",
                          changed([](Channel& channel) { channel.ppsMasterAnswers = false; })},
                      Row{"PPS source:      2 (-7)            0 (0)", changed(
                                                                          [](Channel& channel)
                                                                          {
                                                                              channel.pps.source = 2;
                                                                              channel.pps.sourceParameter = -7;
                                                                          })},
                      Row{"PPS output mode: 2                 0",
                          changed([](Channel& channel) { channel.pps.outputMode = 2; })},
                      Row{"Hop length time: 33360 ns          33000 ns", calibrated(PpsCalibration::FineNotCompleted)},
                      Row{"Hop length time: 33367 ns          33000 ns", calibrated(PpsCalibration::Auto)},
                      Row{"Hop length time: 65535 ns          33000 ns",
                          [](RadioLink& link) { link.calibratePps(1, PpsRequest::Manual, 65535); }}));

TEST(LinkLinesOfTheHopTest, FollowTheSetup)
{
    LinkSetup setup;
    setup.hop.plan = node::radio::findFrequencyPlan("23 GHz");
    setup.hop.frequencyNumber = 2;
    std::swap(setup.channels[0].polarisation, setup.channels[1].polarisation);
    const std::string text = linkText(RadioLink(setup));
    EXPECT_THAT(text, HasSubstr("\nPolarisation:    horizontal        vertical\n"));
    EXPECT_THAT(text, HasSubstr("\nTx frequency:    21266000 kHz      21266000 kHz\n"));
    EXPECT_THAT(text, HasSubstr("\nRx frequency:    22498000 kHz      22498000 kHz\n"));
}

TEST(LinkColumnsTest, TheLongestValuesStandApart)
{
    LinkSetup setup;
    for (Channel& channel : setup.channels)
    {
        channel.modem.highest = node::radio::indexOf(16384, 0);
        channel.modem.current = channel.modem.highest;
        channel.pps.sourceParameter = std::numeric_limits<std::int32_t>::min();
    }
    const std::string text = linkText(RadioLink(setup));
    EXPECT_THAT(text, ContainsRegex("\nModulation: +16384QAM_STRONG +16384QAM_STRONG\n"));
    EXPECT_THAT(text, ContainsRegex("\nPPS source: +0 \\(-2147483648\\) +0 \\(-2147483648\\)\n"));
}

} // namespace
