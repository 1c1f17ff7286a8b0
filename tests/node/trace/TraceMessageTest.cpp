#include <iomanip>
#include <string>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/trace/TraceLibrary.h"
#include "node/trace/TraceRecorder.h"
#include "trace/VemTrace.h"

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

/// Two channels of level 3, and a recorder of their messages.
class TraceMessageTest : public ::testing::Test
{
protected:
    ~TraceMessageTest() override
    {
        node::trace::completeOpenMessage();
    }

    /// Begins a message and leaves it open.
    static void leaveOpen(VemTrace& channel, const std::string& text)
    {
        channel.beginLogMsg(1, {});
        channel.messageStream() << text;
    }

    static void addData(VemTrace& channel, const std::string& data)
    {
        channel.logMsgData(data.data(), data.size());
    }

    VemTrace fan{"TraceMessageTest.Fan", 3};
    VemTrace pump{"TraceMessageTest.Pump", 3};
    TraceRecorder recorder;
};

TEST_F(TraceMessageTest, AFlushCompletesAMessageOfStreamStyle)
{
    fan.beginLogMsg(1, {});
    fan.messageStream() << "speed " << -17 << ' ' << 2.5 << '\n' << "second line";
    EXPECT_THAT(recorder.texts(), IsEmpty());
    fan.messageStream() << std::flush;
    EXPECT_THAT(recorder.texts(), ElementsAre("speed -17 2.5\nsecond line"));
}

TEST_F(TraceMessageTest, AnEndOfLineBelongsToTheMessageThatItCompletes)
{
    fan.beginLogMsg(1, {});
    fan.messageStream() << "too fast" << std::endl;
    EXPECT_THAT(recorder.texts(), ElementsAre("too fast\n"));
}

TEST_F(TraceMessageTest, TheEndCompletesAMessageOfBufferStyle)
{
    fan.beginLogMsg(1, {});
    addData(fan, "too ");
    addData(fan, "");
    addData(fan, std::string("fa\0st\n", 6));
    EXPECT_THAT(recorder.texts(), IsEmpty());
    fan.endLogMsg();
    EXPECT_THAT(recorder.texts(), ElementsAre(std::string("too fa\0st\n", 10)));
}

TEST_F(TraceMessageTest, AMessageCarriesItsChannelLevelAndPlace)
{
    std::string file = "src/Fan";
    std::string function = "setSpeed";
    fan.beginLogMsg(2, {file.c_str(), 17, function.c_str()});
    // The message has its own copy of the names.
    file.assign("........");
    function.assign("........");
    fan.endLogMsg();
    pump.beginLogMsg(3, {});
    pump.endLogMsg();
    EXPECT_THAT(recorder.lines(), ElementsAre("[TraceMessageTest.Fan] level 2, src/Fan:17 setSpeed: \n",
                                              "[TraceMessageTest.Pump] level 3: \n"));
}

TEST_F(TraceMessageTest, AnOpenMessageIsCompletedBeforeTheNextOneOfItsChannel)
{
    leaveOpen(fan, "first");
    fan.beginLogMsg(1, {});
    EXPECT_THAT(recorder.texts(), ElementsAre("first"));
    fan.messageStream() << "second" << std::flush;
    EXPECT_THAT(recorder.texts(), ElementsAre("first", "second"));
}

TEST_F(TraceMessageTest, AnOpenMessageIsCompletedBeforeTheNextOneOfAnotherChannel)
{
    fan.beginLogMsg(1, {});
    addData(fan, "first");
    pump.beginLogMsg(2, {});
    EXPECT_THAT(recorder.lines(), ElementsAre("[TraceMessageTest.Fan] level 1: first\n"));
    pump.messageStream() << "second" << std::flush;
    EXPECT_THAT(recorder.lines(),
                ElementsAre("[TraceMessageTest.Fan] level 1: first\n", "[TraceMessageTest.Pump] level 2: second\n"));
}

TEST_F(TraceMessageTest, AnOpenMessageIsCompletedBeforeOneThatIsNotLetThrough)
{
    leaveOpen(fan, "first");
    pump.beginLogMsg(4, {});
    EXPECT_THAT(recorder.texts(), ElementsAre("first"));
    pump.messageStream() << "too detailed" << std::flush;
    addData(pump, "too detailed");
    pump.endLogMsg();
    EXPECT_THAT(recorder.texts(), ElementsAre("first"));
}

TEST_F(TraceMessageTest, AnOpenMessageIsCompletedOnRequest)
{
    node::trace::completeOpenMessage();
    EXPECT_THAT(recorder.texts(), IsEmpty());
    leaveOpen(fan, "open");
    node::trace::completeOpenMessage();
    EXPECT_THAT(recorder.texts(), ElementsAre("open"));
}

TEST_F(TraceMessageTest, AnOpenMessageIsCompletedWhenItsThreadEnds)
{
    std::thread([this] { leaveOpen(fan, "last words"); }).join();
    EXPECT_THAT(recorder.lines(), ElementsAre("[TraceMessageTest.Fan] level 1: last words\n"));
}

TEST_F(TraceMessageTest, AnOpenMessageIsNotCompletedByAnotherThread)
{
    leaveOpen(fan, "of this ");
    std::thread(
        [this]
        {
            node::trace::completeOpenMessage();
            fan.endLogMsg();
            fan.messageStream() << "of nobody" << std::flush;
            leaveOpen(fan, "of that thread");
        })
        .join();
    EXPECT_THAT(recorder.texts(), ElementsAre("of that thread"));
    fan.messageStream() << "thread" << std::flush;
    EXPECT_THAT(recorder.texts(), ElementsAre("of that thread", "of this thread"));
}

TEST_F(TraceMessageTest, ACompletedMessageIsNotDeliveredAgain)
{
    leaveOpen(fan, "once");
    fan.messageStream() << std::flush << std::flush;
    fan.endLogMsg();
    node::trace::completeOpenMessage();
    fan.beginLogMsg(1, {});
    addData(fan, "next");
    fan.endLogMsg();
    fan.endLogMsg();
    fan.messageStream() << std::flush;
    EXPECT_THAT(recorder.texts(), ElementsAre("once", "next"));
}

TEST_F(TraceMessageTest, AMessageIsDeliveredWholeWhenItsChannelIsSilencedMeanwhile)
{
    leaveOpen(fan, "first half, ");
    node::trace::setLevel("TraceMessageTest.Fan", 0);
    fan.messageStream() << "second half" << std::flush;
    node::trace::setLevel("TraceMessageTest.Fan", 3);
    EXPECT_THAT(recorder.texts(), ElementsAre("first half, second half"));
}

TEST_F(TraceMessageTest, WhatIsWrittenWithNothingBegunBelongsToNoMessage)
{
    fan.messageStream() << "before" << ' ' << std::flush << "any message";
    addData(fan, "before any message");
    fan.endLogMsg();
    leaveOpen(fan, "message");
    fan.messageStream() << std::flush << "after it";
    addData(fan, "after it");
    node::trace::completeOpenMessage();
    EXPECT_THAT(recorder.texts(), ElementsAre("message"));
}

TEST_F(TraceMessageTest, TheDiscardingStreamKeepsNothing)
{
    fan.discardingStream() << "nobody reads " << 17 << 'x' << std::endl;
    EXPECT_TRUE(fan.discardingStream().good());
    EXPECT_TRUE(fan.discardingStream().put('\xFF').good());
    node::trace::completeOpenMessage();
    EXPECT_THAT(recorder.texts(), IsEmpty());
}

TEST_F(TraceMessageTest, TheDiscardingStreamLeavesAnOpenMessageAlone)
{
    leaveOpen(fan, "first half, ");
    fan.discardingStream() << "nothing" << std::endl;
    EXPECT_THAT(recorder.texts(), IsEmpty());
    fan.messageStream() << "second half" << std::flush;
    EXPECT_THAT(recorder.texts(), ElementsAre("first half, second half"));
}

TEST_F(TraceMessageTest, EveryByteReachesTheMessage)
{
    std::string bytes;
    fan.beginLogMsg(1, {});
    for (int byte = 0; byte <= 255; ++byte)
    {
        bytes += static_cast<char>(byte);
        fan.messageStream().put(static_cast<char>(byte));
    }
    EXPECT_TRUE(fan.messageStream().good());
    fan.messageStream() << bytes << std::flush;
    EXPECT_THAT(recorder.texts(), ElementsAre(bytes + bytes));
}

TEST_F(TraceMessageTest, AFormatThatOneMessageSetsIsGoneInTheNext)
{
    fan.beginLogMsg(1, {});
    fan.messageStream() << std::hex << std::showbase << std::setfill('*') << std::setprecision(2) << 255 << std::setw(9)
                        << std::flush;
    fan.beginLogMsg(1, {});
    fan.messageStream() << 255 << ' ' << std::setw(4) << 1 << ' ' << 1.2345 << std::flush;
    EXPECT_THAT(recorder.texts(), ElementsAre("0xff", "255    1 1.2345"));
}

} // namespace
