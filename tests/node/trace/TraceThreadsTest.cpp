#include <algorithm>
#include <cstddef>
#include <functional>
#include <latch>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/trace/TraceLibrary.h"
#include "node/trace/TraceRecorder.h"
#include "trace/VemTrace.h"

using ::testing::Contains;
using ::testing::ElementsAreArray;
using ::testing::Pair;

namespace
{

constexpr std::size_t Writers = 4;
constexpr std::size_t MessagesOfEach = 500;
constexpr const char* ChannelName = "TraceThreadsTest";

/// The text that a writer writes in pieces. Long and of its own, so that a mixed-in piece of another one shows.
std::string textOf(std::size_t writer, std::size_t number)
{
    const std::string mark = std::to_string(writer) + "/" + std::to_string(number) + " ";
    return mark + std::string(40, static_cast<char>('a' + writer)) + " end of " + mark + "\n";
}

void writeAsStream(VemTrace& channel, const std::string& text)
{
    channel.beginLogMsg(1, {});
    for (const char character : text)
    {
        channel.messageStream() << character;
    }
    channel.messageStream() << std::flush;
}

void writeAsBuffer(VemTrace& channel, const std::string& text)
{
    channel.beginLogMsg(1, {});
    for (std::size_t i = 0; i < text.size(); i += 7)
    {
        channel.logMsgData(text.data() + i, std::min<std::size_t>(7, text.size() - i));
    }
    channel.endLogMsg();
}

/// Never completed by the writer: its next message or its end completes it.
void writeAndLeaveOpen(VemTrace& channel, const std::string& text)
{
    channel.beginLogMsg(1, {});
    channel.messageStream() << text;
}

/// Several writers at once, each in a style of its own, on a channel of level 3.
class TraceThreadsTest : public ::testing::Test
{
protected:
    TraceThreadsTest()
    {
        node::trace::setLevel(ChannelName, 3);
    }

    /// Lets the writers write while `meanwhile` is called again and again, `MessagesOfEach` times.
    void writeWhile(const std::function<void(std::size_t)>& meanwhile)
    {
        const std::vector<std::function<void(VemTrace&, const std::string&)>> styles = {
            writeAsStream, writeAsBuffer, writeAndLeaveOpen, writeAsStream};
        std::latch start(Writers + 1);
        std::vector<std::jthread> threads;
        for (std::size_t writer = 0; writer < Writers; ++writer)
        {
            threads.emplace_back(
                [&start, writer, write = styles.at(writer)]
                {
                    VemTrace channel(ChannelName, 3);
                    start.arrive_and_wait();
                    for (std::size_t number = 0; number < MessagesOfEach; ++number)
                    {
                        write(channel, textOf(writer, number));
                    }
                });
        }
        start.arrive_and_wait();
        for (std::size_t i = 0; i < MessagesOfEach; ++i)
        {
            meanwhile(i);
        }
    }

    /// What a writer's messages were, in their order.
    std::vector<std::string> textsOf(std::size_t writer) const
    {
        std::vector<std::string> texts;
        for (const auto& text : recorder.texts())
        {
            if (text.starts_with(std::to_string(writer) + "/"))
            {
                texts.push_back(text);
            }
        }
        return texts;
    }

    void expectEveryMessageOnceAndWhole() const
    {
        EXPECT_EQ(Writers * MessagesOfEach, recorder.messages.size());
        for (std::size_t writer = 0; writer < Writers; ++writer)
        {
            std::vector<std::string> expected;
            for (std::size_t number = 0; number < MessagesOfEach; ++number)
            {
                expected.push_back(textOf(writer, number));
            }
            EXPECT_THAT(textsOf(writer), ElementsAreArray(expected)) << "writer " << writer;
        }
    }

    TraceRecorder recorder;
};

TEST_F(TraceThreadsTest, MessagesOfWritersAtOnceAreDeliveredOnceAndWhole)
{
    writeWhile([](std::size_t) {});
    expectEveryMessageOnceAndWhole();
}

TEST_F(TraceThreadsTest, NoMessageIsLostWhileLevelsChangeAbove0)
{
    writeWhile([](std::size_t i) { node::trace::setLevel(ChannelName, i % 2 == 0 ? 1 : 3); });
    expectEveryMessageOnceAndWhole();
}

TEST_F(TraceThreadsTest, MessagesAreWholeOrMissingWhileTheChannelIsSilencedAndWoken)
{
    writeWhile([](std::size_t i) { node::trace::setLevel(ChannelName, i % 2 == 0 ? 0 : 3); });
    std::size_t found = 0;
    for (std::size_t writer = 0; writer < Writers; ++writer)
    {
        std::size_t number = 0;
        for (const auto& text : textsOf(writer))
        {
            while (number < MessagesOfEach && text != textOf(writer, number))
            {
                ++number;
            }
            ASSERT_LT(number, MessagesOfEach) << "neither whole nor in its place: " << text;
            ++number;
            ++found;
        }
    }
    EXPECT_EQ(found, recorder.messages.size());
}

TEST_F(TraceThreadsTest, EveryMessageGoesToOneSinkWhileSinksAreExchanged)
{
    std::size_t elsewhere = 0; // sinks run one at a time
    writeWhile(
        [&](std::size_t)
        {
            auto sink = node::trace::setSink([&](const node::trace::Message&) { ++elsewhere; });
            node::trace::setSink(std::move(sink));
        });
    EXPECT_EQ(Writers * MessagesOfEach, recorder.messages.size() + elsewhere);
}

TEST_F(TraceThreadsTest, ANameThatManyThreadsCreateAtOnceIsOneChannel)
{
    for (int round = 0; round < 50; ++round)
    {
        const std::string name = "TraceThreadsTest.Round" + std::to_string(round);
        std::latch start(Writers);
        std::vector<std::jthread> threads;
        for (std::size_t writer = 0; writer < Writers; ++writer)
        {
            threads.emplace_back(
                [&]
                {
                    start.arrive_and_wait();
                    VemTrace channel(name, 3);
                    writeAsStream(channel, "there\n");
                });
        }
        threads.clear();
        EXPECT_THAT(node::trace::levels(), Contains(Pair(name, 3)));
    }
    EXPECT_EQ(50 * Writers, recorder.messages.size());
}

} // namespace
