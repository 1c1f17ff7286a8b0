#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/cli/SessionTest.h"
#include "node/commands/LinkText.h"
#include "node/trace/TraceLibrary.h"

using node::cli::Status;
using node::commands::linkText;
using node::radio::Channel;
using node::radio::RadioLink;
using node::radio::Ticks;
using ::testing::IsEmpty;

namespace
{

constexpr Ticks Second = std::chrono::seconds(1);

/// A line that is typed, and what it does to the link.
struct Row
{
    std::string line;
    std::function<void(RadioLink&)> effect;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << row.line;
}

std::function<void(RadioLink&)> changed(std::uint32_t channel, const std::function<void(Channel&)>& change)
{
    return [=](RadioLink& link) { link.change(channel, change); };
}

std::function<void(RadioLink&)> rain(double rate_mm_per_h, Ticks over = {})
{
    return [=](RadioLink& link) { link.turnRain(rate_mm_per_h, over); };
}

std::function<void(RadioLink&)> fade(double depth_dB, Ticks over = {})
{
    return [=](RadioLink& link) { link.turnFade(depth_dB, over); };
}

std::function<void(RadioLink&)> distance(double distance_km)
{
    return [=](RadioLink& link) { link.setDistance(distance_km); };
}

std::function<void(RadioLink&)> time(Ticks time)
{
    return [=](RadioLink& link) { link.advance(time); };
}

std::function<void(RadioLink&)> transmitter(std::uint32_t channel, bool on)
{
    return changed(channel, [=](Channel& state) { state.transmitter.on = on; });
}

std::function<void(RadioLink&)> cable(std::uint32_t channel, bool plugged)
{
    return changed(channel, [=](Channel& state) { state.xpic.cableConnected = plugged; });
}

std::function<void(RadioLink&)> master(std::uint32_t channel, bool answers)
{
    return changed(channel, [=](Channel& state) { state.ppsMasterAnswers = answers; });
}

/// A link that holds nothing of its defaults: whatever a command sets, it must change.
node::startup::Configuration unusual()
{
    node::startup::Configuration configuration;
    node::radio::LinkSetup& link = configuration.link;
    link.weather.rain_mm_per_h = node::radio::Profile({{0.0, 5.0}, {60.0, 20.0}});
    link.weather.fade_dB = node::radio::Profile({{0.0, 3.0}, {60.0, 9.0}});
    for (Channel& channel : link.channels)
    {
        channel.transmitter.on = false;
        channel.xpic.cableConnected = false;
        channel.ppsMasterAnswers = false;
    }
    return configuration;
}

class LinkCommandsTest : public SessionTest, public ::testing::WithParamInterface<Row>
{
protected:
    /// Carries out the line on a node, its effect on another, and compares the two now and later.
    void expectEffect(const node::startup::Configuration& configuration)
    {
        desk.start({"", configuration, "", ""});
        RadioLink expected(configuration.link);
        for (RadioLink* const link : {&desk.link(), &expected})
        {
            link->calibratePps(1, node::radio::PpsRequest::Auto, 0);
            link->advance(7 * Second);
        }
        const auto levels = node::trace::levels();
        EXPECT_EQ("", done(GetParam().line));
        GetParam().effect(expected);
        for (const Ticks later : {Ticks(0), Ticks(1), 3 * Second, 27 * Second, 90 * Second})
        {
            desk.link().advance(later);
            expected.advance(later);
            EXPECT_EQ(linkText(expected), linkText(desk.link()));
        }
        EXPECT_THAT(commands.calls, IsEmpty());
        EXPECT_THAT(desk.plan.list(), IsEmpty());
        EXPECT_EQ(1U, desk.started.size());
        EXPECT_EQ(levels, node::trace::levels());
        desk.started.clear();
    }
};

TEST_P(LinkCommandsTest, DoThisAndNothingElse)
{
    expectEffect({});
    expectEffect(unusual());
}

INSTANTIATE_TEST_SUITE_P(Rain, LinkCommandsTest,
                         ::testing::Values(Row{"setRain 0", rain(0.0)}, Row{"setRain 42.5", rain(42.5)},
                                           Row{"setRain 250", rain(250.0)},
                                           Row{"setRain 42.5 0.1", rain(42.5, Ticks(1))},
                                           Row{"setRain 42.5 1min", rain(42.5, 60 * Second)},
                                           Row{"setRain 0 100h", rain(0.0, 360000 * Second)}));

INSTANTIATE_TEST_SUITE_P(Fade, LinkCommandsTest,
                         ::testing::Values(Row{"setFade 0", fade(0.0)}, Row{"setFade 22.5", fade(22.5)},
                                           Row{"setFade 100", fade(100.0)},
                                           Row{"setFade 22.5 0.1", fade(22.5, Ticks(1))},
                                           Row{"setFade 22.5 1min", fade(22.5, 60 * Second)},
                                           Row{"setFade 0 100h", fade(0.0, 360000 * Second)}));

INSTANTIATE_TEST_SUITE_P(Distance, LinkCommandsTest,
                         ::testing::Values(Row{"setDistance 0.1", distance(0.1)},
                                           Row{"setDistance 12.345", distance(12.345)},
                                           Row{"setDistance 100", distance(100.0)}));

INSTANTIATE_TEST_SUITE_P(
    Switches, LinkCommandsTest,
    ::testing::Values(Row{"setTransmitter 1 off", transmitter(1, false)},
                      Row{"setTransmitter 2 off", transmitter(2, false)},
                      Row{"setTransmitter 1 on", transmitter(1, true)},
                      Row{"setTransmitter 2 on", transmitter(2, true)}, Row{"setXpicCable 1 off", cable(1, false)},
                      Row{"setXpicCable 2 off", cable(2, false)}, Row{"setXpicCable 1 on", cable(1, true)},
                      Row{"setXpicCable 2 on", cable(2, true)}, Row{"setPpsMaster 1 off", master(1, false)},
                      Row{"setPpsMaster 2 off", master(2, false)}, Row{"setPpsMaster 1 on", master(1, true)},
                      Row{"setPpsMaster 2 on", master(2, true)}));

INSTANTIATE_TEST_SUITE_P(Time, LinkCommandsTest,
                         ::testing::Values(Row{"advance 0.1", time(Ticks(1))}, Row{"advance 30", time(30 * Second)},
                                           Row{"advance 2min", time(120 * Second)},
                                           Row{"advance 1h", time(3600 * Second)}));

class LinkQueriesTest : public SessionTest
{
};

TEST_F(LinkQueriesTest, ShowLinkPrintsTheLinkAndChangesNothing)
{
    desk.link().turnRain(30.0);
    const std::string text = linkText(desk.link());
    EXPECT_EQ(text, done("showLink"));
    EXPECT_EQ(text, done("showLink"));
}

class OneChannelTest : public SessionTest
{
protected:
    OneChannelTest()
    {
        node::startup::Configuration configuration;
        configuration.link.numberOfChannels = 1;
        desk.start({"", configuration, "", ""});
    }
};

TEST_F(OneChannelTest, HasNoSecondOneToSwitch)
{
    const std::string before = linkText(desk.link());
    for (const std::string command : {"setTransmitter", "setXpicCable", "setPpsMaster"})
    {
        EXPECT_EQ(command + ": argument 1 (channel): found 2, expected 1, for the node has one channel",
                  complaint(Status::NotUnderstood, command + " 2 off"));
    }
    EXPECT_EQ(before, linkText(desk.link()));
}

TEST_F(OneChannelTest, SwitchesItsOnlyOne)
{
    done("setTransmitter 1 off");
    done("setXpicCable 1 off");
    done("setPpsMaster 1 off");
    const Channel state = desk.link().snapshot(1).state;
    EXPECT_FALSE(state.transmitter.on);
    EXPECT_FALSE(state.xpic.cableConnected);
    EXPECT_FALSE(state.ppsMasterAnswers);
}

TEST_F(OneChannelTest, LeavesTheSecondOneToTheDebugCommands)
{
    done("startDpd 2");
    EXPECT_THAT(commands.calls, ::testing::ElementsAre("startDpd(2)"));
}

} // namespace
