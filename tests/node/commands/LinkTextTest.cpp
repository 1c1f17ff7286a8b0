#include <string>

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/commands/LinkText.h"

using node::commands::clockText;
using node::commands::linkText;
using node::radio::Channel;
using node::radio::LinkSetup;
using node::radio::RadioLink;
using node::radio::Ticks;

namespace
{

constexpr Ticks Second = std::chrono::seconds(1);

TEST(ClockTextTest, CountsHoursMinutesSecondsAndTenths)
{
    EXPECT_EQ("0:00:00.0", clockText(Ticks(0)));
    EXPECT_EQ("0:00:00.1", clockText(Ticks(1)));
    EXPECT_EQ("0:00:00.9", clockText(Ticks(9)));
    EXPECT_EQ("0:00:01.0", clockText(Ticks(10)));
    EXPECT_EQ("0:00:59.9", clockText(Ticks(599)));
    EXPECT_EQ("0:01:00.0", clockText(Ticks(600)));
    EXPECT_EQ("0:59:59.9", clockText(Ticks(35999)));
    EXPECT_EQ("1:00:00.0", clockText(Ticks(36000)));
    EXPECT_EQ("1:23:45.6", clockText(Ticks(50256)));
    EXPECT_EQ("100:00:00.0", clockText(Ticks(3600000)));
}

TEST(LinkTextTest, ShowsTheLinkAsItStarts)
{
    EXPECT_EQ(R"(Time:            0:00:00.0
Distance:        10 km
Rain:            0.00 mm/h
Fade:            0.00 dB

                 Channel 1         Channel 2
Polarisation:    vertical          horizontal
Tx frequency:    17727500 kHz      17727500 kHz
Rx frequency:    18737500 kHz      18737500 kHz
Transmitter:     on                on
Tx power:        18.00 dBm         18.00 dBm
Rx level:        -43.02 dBm        -43.02 dBm
XPD:             40.00 dB          40.00 dB
XPI:             40.00 dB          40.00 dB
SNIR:            43.91 dB          43.91 dB
Modem:           locked            locked
Modulation:      4096QAM           4096QAM
Errored blocks:  0                 0
DPD:             adapted           adapted
DPD floor:       45.00 dB          45.00 dB
XPIC:            Locked            Locked
XPIC mode:       full sweep        full sweep
XPIC option:     3                 3
XPIC slave:      open              open
XPIC cable:      on                on
XPIC preamble:   0                 0
Slave offset:    8864 Hz           -8864 Hz
PPS calibration: never             never
PPS failure:     none              none
PPS master:      answers           answers
PPS source:      0 (0)             0 (0)
PPS output mode: 0                 0
Hop length time: 33000 ns          33000 ns
)",
              linkText(RadioLink()));
}

TEST(LinkTextTest, ShowsALinkOfOneChannel)
{
    LinkSetup setup;
    setup.numberOfChannels = 1;
    EXPECT_EQ(R"(Time:            0:00:00.0
Distance:        10 km
Rain:            0.00 mm/h
Fade:            0.00 dB

                 Channel 1
Polarisation:    vertical
Tx frequency:    17727500 kHz
Rx frequency:    18737500 kHz
Transmitter:     on
Tx power:        18.00 dBm
Rx level:        -43.02 dBm
XPD:             40.00 dB
XPI:             99.90 dB
SNIR:            44.02 dB
Modem:           locked
Modulation:      4096QAM
Errored blocks:  0
DPD:             adapted
DPD floor:       45.00 dB
XPIC:            Idle
XPIC mode:       full sweep
XPIC option:     3
XPIC slave:      open
XPIC cable:      on
XPIC preamble:   0
Slave offset:    0 Hz
PPS calibration: never
PPS failure:     none
PPS master:      answers
PPS source:      0 (0)
PPS output mode: 0
Hop length time: 33000 ns
)",
              linkText(RadioLink(setup)));
}

TEST(LinkTextTest, ShowsALinkInBadWeatherThatWasChangedEverywhere)
{
    RadioLink link;
    link.setDistance(12.5);
    link.turnRain(30.0);
    link.turnFade(2.5);
    link.change(1,
                [](Channel& channel)
                {
                    channel.dpd.stop();
                    channel.xpic.slaveMuted = true;
                    channel.pps.source = 2;
                    channel.pps.sourceParameter = -7;
                });
    link.change(2,
                [](Channel& channel)
                {
                    channel.xpic.cableConnected = false;
                    channel.ppsMasterAnswers = false;
                    channel.pps.outputMode = 1;
                });
    link.calibratePps(1, node::radio::PpsRequest::Manual, 12345);
    link.calibratePps(2, node::radio::PpsRequest::Auto, 0);
    link.advance(90 * Second);
    EXPECT_EQ(R"(Time:            0:01:30.0
Distance:        12.5 km
Rain:            30.00 mm/h
Fade:            2.50 dB

                 Channel 1         Channel 2
Polarisation:    vertical          horizontal
Tx frequency:    17727500 kHz      17727500 kHz
Rx frequency:    18737500 kHz      18737500 kHz
Transmitter:     on                on
Tx power:        18.00 dBm         18.00 dBm
Rx level:        -65.73 dBm        -68.22 dBm
XPD:             24.53 dB          23.32 dB
XPI:             24.53 dB          23.32 dB
SNIR:            22.73 dB          21.35 dB
Modem:           locked            locked
Modulation:      256QAM_STRONG     128QAM
Errored blocks:  1                 1
DPD:             stopped           adapted
DPD floor:       35.00 dB          45.00 dB
XPIC:            Muted             Acquiring
XPIC mode:       full sweep        full sweep
XPIC option:     3                 3
XPIC slave:      muted             open
XPIC cable:      on                off
XPIC preamble:   0                 0
Slave offset:    8864 Hz           -100000 Hz
PPS calibration: manual            failed
PPS failure:     none              no response
PPS master:      answers           silent
PPS source:      2 (-7)            0 (0)
PPS output mode: 0                 1
Hop length time: 12345 ns          42000 ns
)",
              linkText(link));
}

TEST(LinkTextTest, ShowsALinkWhoseOtherChannelIsSilent)
{
    RadioLink link;
    link.change(2, [](Channel& channel) { channel.transmitter.on = false; });
    link.advance(3661 * Second + Ticks(5));
    EXPECT_EQ(R"(Time:            1:01:01.5
Distance:        10 km
Rain:            0.00 mm/h
Fade:            0.00 dB

                 Channel 1         Channel 2
Polarisation:    vertical          horizontal
Tx frequency:    17727500 kHz      17727500 kHz
Rx frequency:    18737500 kHz      18737500 kHz
Transmitter:     on                off
Tx power:        18.00 dBm         -110.00 dBm
Rx level:        -43.02 dBm        -110.00 dBm
XPD:             40.00 dB          40.00 dB
XPI:             99.90 dB          -26.98 dB
SNIR:            44.02 dB          -27.31 dB
Modem:           locked            unlocked
Modulation:      4096QAM           4QAM_STRONG
Errored blocks:  0                 36615
DPD:             adapted           adapted
DPD floor:       45.00 dB          45.00 dB
XPIC:            Acquiring         Acquiring
XPIC mode:       full sweep        full sweep
XPIC option:     3                 3
XPIC slave:      open              open
XPIC cable:      on                on
XPIC preamble:   0                 0
Slave offset:    -70000 Hz         -70000 Hz
PPS calibration: never             never
PPS failure:     none              none
PPS master:      answers           answers
PPS source:      0 (0)             0 (0)
PPS output mode: 0                 0
Hop length time: 33000 ns          33000 ns
)",
              linkText(link));
}

TEST(LinkTextTest, ShowsTheFadeWithTheTremor)
{
    LinkSetup setup;
    setup.weather.scintillation = {3.0, 20.0};
    setup.weather.seed = 42;
    RadioLink link(setup);
    link.turnFade(25.0);
    link.advance(10 * Second);
    const double fade_dB = link.conditions().fade_dB;
    ASSERT_NE(25.0, fade_dB);
    EXPECT_NE(std::string::npos, linkText(link).find(fmt::format("\nFade:            {:.2f} dB\n", fade_dB)));
}

TEST(LinkTextTest, NamesTheModeThatTheCancellerAcquiresIn)
{
    RadioLink link;
    link.change(1, [](Channel& channel) { channel.xpic.mode = node::radio::XpicAcquireMode::NarrowSweep; });
    link.change(2, [](Channel& channel) { channel.xpic.mode = node::radio::XpicAcquireMode::Direct; });
    EXPECT_THAT(linkText(link), ::testing::HasSubstr("\nXPIC mode:       narrow sweep      direct\n"));
}

} // namespace
