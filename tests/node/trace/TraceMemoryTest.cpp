#include <cstddef>
#include <functional>
#include <new>
#include <ostream>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "allocation/FailingAllocation.h"
#include "allocation/MemoryRounds.h"
#include "node/trace/TraceLibrary.h"
#include "node/trace/TraceRecorder.h"
#include "trace/VemTrace.h"

using allocation::Failing;
using ::testing::ElementsAre;
using ::testing::StartsWith;

namespace
{

/// Too long for a string object: nearly every copy allocates.
const std::string First = "the first half of a text that is long, ";
const std::string Second = "and the second half, which is longer than everything before it together";

struct Style
{
    std::string name;
    std::function<void(VemTrace&)> write;
};

std::ostream& operator<<(std::ostream& out, const Style& style)
{
    return out << style.name;
}

void writeAsStream(VemTrace& channel)
{
    channel.beginLogMsg(1, {"src/a/place/with/a/long/name", 17, "aFunctionWithALongName"});
    channel.messageStream() << First << Second << std::flush;
}

void writeAsStreamAndLeaveOpen(VemTrace& channel)
{
    channel.beginLogMsg(1, {});
    channel.messageStream() << First << Second;
    node::trace::completeOpenMessage();
}

void writeAsBuffer(VemTrace& channel)
{
    channel.beginLogMsg(1, {});
    channel.logMsgData(First.data(), First.size());
    channel.logMsgData(Second.data(), Second.size());
    channel.endLogMsg();
}

class TraceMemoryTest : public MemoryRounds<::testing::TestWithParam<std::tuple<Style, Failing>>>
{
protected:
    VemTrace channel{"TraceMemoryTest, a channel with a long name", 3};
    TraceRecorder recorder;
};

TEST_P(TraceMemoryTest, RunningOutOfMemoryReachesTheWriterAndTheNextMessageIsWhole)
{
    const auto& [style, failing] = GetParam();
    const auto write = [&, &writeInStyle = style.write] { writeInStyle(channel); };
    const std::size_t failures = failEachAllocation(failing, write,
                                                    [&]
                                                    {
                                                        node::trace::completeOpenMessage();
                                                        for (const std::string& text : recorder.texts())
                                                        {
                                                            EXPECT_THAT(First + Second, StartsWith(text));
                                                        }
                                                        recorder.messages = {};
                                                        write();
                                                        EXPECT_THAT(recorder.texts(), ElementsAre(First + Second));
                                                        recorder.messages = {};
                                                    });
    EXPECT_LT(0U, failures);
    EXPECT_THAT(recorder.texts(), ElementsAre(First + Second));
}

INSTANTIATE_TEST_SUITE_P(EveryStyle, TraceMemoryTest,
                         ::testing::Combine(::testing::Values(Style{"Stream", writeAsStream},
                                                              Style{"OpenStream", writeAsStreamAndLeaveOpen},
                                                              Style{"Buffer", writeAsBuffer}),
                                            ::testing::Values(Failing::Once, Failing::FromThenOn)));

class TraceInsertionTest : public MemoryRounds<::testing::Test>
{
protected:
    /// Begins a message and runs out of memory in it.
    void runOutOfMemory()
    {
        channel.beginLogMsg(1, {});
        channel.messageStream() << First;
        const allocation::Failure failure(0, Failing::FromThenOn);
        EXPECT_THROW(channel.messageStream() << Second, std::bad_alloc);
    }

    VemTrace channel{"TraceInsertionTest", 3};
    TraceRecorder recorder;
};

TEST_F(TraceInsertionTest, WhatWasWrittenBeforeMemoryRanOutIsDelivered)
{
    runOutOfMemory();
    channel.beginLogMsg(1, {});
    channel.messageStream() << "next" << std::flush;
    EXPECT_THAT(recorder.texts(), ElementsAre(First, "next"));
}

TEST_F(TraceInsertionTest, AMessageThatIsNotLetThroughIsWrittenWithoutAnError)
{
    runOutOfMemory();
    channel.beginLogMsg(4, {});
    EXPECT_NO_THROW(channel.messageStream() << "too detailed" << std::endl);
    EXPECT_THAT(recorder.texts(), ElementsAre(First));
}

TEST_F(TraceInsertionTest, TheDiscardingStreamNeedsNoMemory)
{
    channel.discardingStream() << "first use";
    const allocation::Failure failure(0, Failing::FromThenOn);
    channel.discardingStream() << First << Second << 17 << std::endl;
    EXPECT_TRUE(channel.discardingStream().good());
    EXPECT_FALSE(failure.struck());
}

} // namespace
