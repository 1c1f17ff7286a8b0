#include <string>
#include <thread>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "node/cli/KeptAnswers.h"
#include "node/cli/Session.h"
#include "node/commands/RecordingDesk.h"
#include "node/output/Json.h"
#include "node/trace/TraceLibrary.h"
#include "support/TemporaryFolder.h"
#include "trace/VemTrace.h"

using node::cli::Session;
using node::radio::Ticks;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace
{

/// A session whose commands write trace messages to the channel "STT.one".
class SessionTraceTest : public ::testing::Test
{
protected:
    void write(VemTraceLevel level, const std::string& text)
    {
        channel.beginLogMsg(level, {});
        channel.messageStream() << text << std::flush;
    }

    /// Writes a message from another thread.
    void writeElsewhere(const std::string& text)
    {
        std::thread([&] { write(3, text); }).join();
    }

    /// The trace of the last answer.
    std::vector<std::string> answered() const
    {
        std::vector<std::string> texts;
        for (const node::output::TimedMessage& message : output.answers.back().trace)
        {
            texts.push_back(textOf(message));
        }
        return texts;
    }

    VemTrace channel{"STT.one", 3};
    VemTrace other{"STT.two", 3};
    RecordingDesk desk;
    KeptAnswers output;
    Session session{desk, output};
};

TEST_F(SessionTraceTest, AnAnswerHasItsMessagesInTheirOrderWithTheTime)
{
    desk.recorder.duringCall = [&]
    {
        write(1, "first\n");
        desk.link().advance(Ticks(5));
        write(3, "second");
    };
    desk.link().advance(Ticks(15));
    session.carryOutLine("startDpd 1");
    EXPECT_THAT(answered(), ElementsAre("1.5s STT.one:1 \"first\\n\"", "1.5s STT.one:3 \"second\""));
    session.carryOutLine("startDpd 1");
    EXPECT_THAT(answered(), ElementsAre("2s STT.one:1 \"first\\n\"", "2s STT.one:3 \"second\""));
    EXPECT_THAT(output.told, ElementsAre("first\n", "second", "first\n", "second"));
}

TEST_F(SessionTraceTest, AMessageIsToldAsItComes)
{
    desk.recorder.duringCall = [&]
    {
        write(1, "first");
        EXPECT_THAT(output.told, ElementsAre("first"));
        EXPECT_THAT(output.answers, IsEmpty());
    };
    session.carryOutLine("startDpd 1");
    EXPECT_THAT(output.answers, SizeIs(1));
}

TEST_F(SessionTraceTest, AMessageThatACommandLeftOpenIsItsOwn)
{
    desk.recorder.duringCall = [&]
    {
        channel.beginLogMsg(1, {});
        channel.messageStream() << "left open";
    };
    session.carryOutLine("startDpd 1");
    EXPECT_THAT(answered(), ElementsAre("0s STT.one:1 \"left open\""));
}

TEST_F(SessionTraceTest, AMessageBetweenCommandsGoesToTheNextAnswer)
{
    desk.link().advance(Ticks(15));
    session.carryOutLine("listCalls");
    desk.link().advance(Ticks(15));
    writeElsewhere("between");
    EXPECT_THAT(output.told, ElementsAre("between"));
    session.carryOutLine("listCalls");
    EXPECT_THAT(answered(), ElementsAre("1.5s STT.one:3 \"between\""));
    session.carryOutLine("listCalls");
    EXPECT_THAT(answered(), IsEmpty());
}

TEST_F(SessionTraceTest, AStepHasItsMessages)
{
    EXPECT_EQ("first", session.attempt([&] { write(3, "first"); }).trace.at(0).message.text);
    session.attempt(
        [&]
        {
            write(3, "second");
            throw node::startup::StartUpError("it does not start");
        });
    EXPECT_THAT(answered(), ElementsAre("0s STT.one:3 \"second\""));
}

TEST_F(SessionTraceTest, AFileThatIsFullIsToldByTheNextCommand)
{
    desk.recorder.duringCall = [&] { write(2, "lost"); };
    session.carryOutLine("traceFile /dev/full");
    session.carryOutLine("startDpd 1");
    EXPECT_EQ(node::cli::Status::CommandFailed, output.answers.back().status);
    EXPECT_EQ("trace file: \"/dev/full\" cannot be written any more", output.answers.back().error);
    session.carryOutLine("startDpd 1");
    EXPECT_EQ(node::cli::Status::Done, output.answers.back().status);
}

TEST_F(SessionTraceTest, AnAnswerHasWhatTheFilterLetsThrough)
{
    desk.recorder.duringCall = [&]
    {
        write(2, "important");
        write(3, "less so");
        other.beginLogMsg(1, {});
        other.messageStream() << "of another channel" << std::flush;
    };
    session.carryOutLine("filterTrace STT.o* 2");
    session.carryOutLine("startDpd 1");
    EXPECT_THAT(answered(), ElementsAre("0s STT.one:2 \"important\""));
    EXPECT_THAT(output.told, ElementsAre("important"));
    session.carryOutLine("filterTrace *");
    session.carryOutLine("startDpd 1");
    EXPECT_THAT(answered(), SizeIs(3));
    EXPECT_THAT(output.told, SizeIs(4));
}

TEST_F(SessionTraceTest, ATraceFileHasWhatTheFilterLetsThroughWhileItIsOpen)
{
    const TemporaryFolder folder;
    desk.recorder.duringCall = [&]
    {
        write(2, "important");
        write(3, "less so");
    };
    session.carryOutLine("startDpd 1");
    session.carryOutLine("filterTrace STT.* 2");
    session.carryOutLine("traceFile " + folder.pathOf("trace"));
    session.carryOutLine("startDpd 1");
    session.carryOutLine("stopTraceFile");
    session.carryOutLine("startDpd 1");
    const node::output::TimedMessage expected{Ticks(0), {"STT.one", 2, "", 0, "", "important"}};
    EXPECT_EQ(node::output::toLine(toJson(expected)), folder.read("trace"));
}

TEST_F(SessionTraceTest, FilterAndFileAreRefusedAsTheirArgumentsAre)
{
    session.carryOutLine("stopTraceFile");
    EXPECT_EQ("trace file: found none, expected one that \"traceFile\" has begun", output.answers.back().error);
    session.carryOutLine("traceFile /");
    EXPECT_EQ("/: found a folder, expected a file to write", output.answers.back().error);
    EXPECT_EQ(node::cli::Status::NotUnderstood, output.answers.back().status);
}

TEST(SessionSinkTest, MessagesGoToTheLastSessionAndBackWhenItEnds)
{
    std::vector<std::string> outside;
    auto before = node::trace::setSink([&](const auto& message) { outside.push_back(message.text); });
    const auto write = [](const std::string& text)
    {
        VemTrace channel("STT.one", 3);
        channel.beginLogMsg(1, {});
        channel.messageStream() << text << std::flush;
    };
    RecordingDesk desk;
    KeptAnswers outer;
    KeptAnswers inner;
    {
        const Session session(desk, outer);
        write("before");
        {
            const Session nested(desk, inner);
            write("inside");
        }
        write("behind");
    }
    write("outside");
    EXPECT_THAT(outer.told, ElementsAre("before", "behind"));
    EXPECT_THAT(inner.told, ElementsAre("inside"));
    EXPECT_THAT(outside, ElementsAre("outside"));
    node::trace::setSink(before);
}

TEST_F(SessionTraceTest, AFileThatIsFullAtTheStartIsToldByTheStep)
{
    const auto answer = session.attempt(
        [&]
        {
            session.startTraceFile("/dev/full");
            write(3, "lost");
        });
    EXPECT_EQ(node::cli::Status::CommandFailed, answer.status);
    EXPECT_EQ("trace file: \"/dev/full\" cannot be written any more", answer.error);
}

TEST_F(SessionTraceTest, AStepThatFailsShowsWhatTheFilterLetsThroughAndWhatWasToBeTold)
{
    session.filterTrace("STT.*", 2);
    session.tellNext({{Ticks(0), {"STT.one", 1, "", 0, "", "of a start"}}});
    session.attempt(
        [&]
        {
            write(2, "important");
            write(3, "less so");
            throw node::startup::StartUpError("it does not start");
        });
    EXPECT_THAT(answered(), ElementsAre("0s STT.one:1 \"of a start\"", "0s STT.one:2 \"important\""));
}

} // namespace
