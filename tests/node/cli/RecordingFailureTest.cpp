#include <csignal>
#include <string>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include "node/cli/RecordingTest.h"
#include "node/commands/RecordingDesk.h"

using node::cli::Status;

namespace
{

/// Recordings that cannot be written, or not to their end.
class RecordingFailureTest : public RecordingTestAt<RecordingDesk>
{
protected:
    RecordingFailureTest()
    {
        std::signal(SIGPIPE, SIG_IGN);
    }

    ~RecordingFailureTest() override
    {
        std::signal(SIGPIPE, SIG_DFL);
    }

    /// Begins a recording that takes one command and no more.
    void recordOne()
    {
        ASSERT_EQ(0, mkfifo(file.c_str(), 0600));
        const int reader = open(file.c_str(), O_RDONLY | O_NONBLOCK);
        done({"record " + file, "startDpd 1"});
        close(reader);
    }

    std::string full = "recording: \"" + file + "\" cannot be written any more";
};

TEST_F(RecordingFailureTest, OneThatCannotBeginFails)
{
    const auto answer = carryOut({"record /dev/full"});
    EXPECT_EQ(Status::CommandFailed, answer.status);
    EXPECT_EQ("record: \"/dev/full\" cannot be written any more", answer.error);
    done({"startDpd 1", "record " + file});
}

TEST_F(RecordingFailureTest, OneThatCannotBeWrittenAnyMoreFailsTheCommandThatWasDone)
{
    recordOne();
    const auto answer = carryOut({"stopDpd 1"});
    EXPECT_EQ(Status::CommandFailed, answer.status);
    EXPECT_EQ(0, answer.outcome->result);
    EXPECT_EQ(full, answer.error);
}

TEST_F(RecordingFailureTest, OneThatCannotBeWrittenAnyMoreIsToldBehindTheCommandsOwnFailure)
{
    recordOne();
    desk.recorder.result = 1;
    const auto answer = carryOut({"stopDpd 1"});
    EXPECT_EQ(Status::CommandFailed, answer.status);
    EXPECT_EQ("stopDpd: failed; " + full, answer.error);
}

TEST_F(RecordingFailureTest, OneThatCannotBeWrittenAnyMoreLeavesAWorseStatus)
{
    recordOne();
    const auto answer = carryOut({"stopDpd"});
    EXPECT_EQ(Status::NotUnderstood, answer.status);
    EXPECT_EQ("stopDpd: argument 1 (channel): found nothing, expected a whole number from 1 to 2; " + full,
              answer.error);
}

TEST_F(RecordingFailureTest, OneThatCannotBeWrittenAnyMoreHasEnded)
{
    recordOne();
    carryOut({"stopDpd 1"});
    done({"stopDpd 1", "record " + folder.pathOf("another"), "stopRecord"});
}

} // namespace
