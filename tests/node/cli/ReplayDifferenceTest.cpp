#include <ostream>
#include <string>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "node/cli/RecordingReader.h"
#include "node/cli/RecordingTest.h"
#include "node/commands/RecordingDesk.h"
#include "node/output/Json.h"
#include "trace/VemTrace.h"

using nlohmann::ordered_json;
using node::cli::firstDifference;
using node::cli::Status;
using node::output::Answer;
using node::output::toJson;
using node::radio::Ticks;

namespace
{

Answer answerOf(const std::string& report)
{
    Answer answer;
    answer.command = "getCtStatus";
    answer.time = Ticks(15);
    answer.outcome = {0, report};
    answer.trace = {{Ticks(15), {"KEL", 3, "file", 17, "function", "no answer\n"}}};
    return answer;
}

TEST(FirstDifferenceTest, IsNoneOfAnAnswerThatIsAsRecorded)
{
    for (const std::string report : {"", "Lock: locked\n", "\xff"})
    {
        EXPECT_EQ("", firstDifference(answerOf(report), toJson(answerOf(report))));
    }
    EXPECT_EQ("", firstDifference(Answer(), toJson(Answer())));
}

TEST(FirstDifferenceTest, IsNoneInPlacesAndLinesOfTheSource)
{
    Answer other = answerOf("report");
    other.place = "faults.txt:3";
    other.trace[0].message.line = 18;
    EXPECT_EQ("", firstDifference(other, toJson(answerOf("report"))));
}

TEST(FirstDifferenceTest, IsTheStatusBeforeAllElse)
{
    Answer failed = answerOf("another report");
    failed.status = Status::CommandFailed;
    failed.outcome->result = 1;
    failed.error = "failed";
    EXPECT_EQ(R"(status: found "failed", recorded "done")", firstDifference(failed, toJson(answerOf("report"))));
}

TEST(FirstDifferenceTest, IsTheResult)
{
    Answer other = answerOf("report");
    other.outcome->result = 2;
    EXPECT_EQ("result: found 2, recorded 0", firstDifference(other, toJson(answerOf("report"))));
    other.outcome.reset();
    EXPECT_EQ("result: found null, recorded 0", firstDifference(other, toJson(answerOf("report"))));
}

TEST(FirstDifferenceTest, IsTheError)
{
    Answer other = answerOf("report");
    other.error = "no \"answer\"";
    EXPECT_EQ(R"(error: found "no \"answer\"", recorded null)", firstDifference(other, toJson(answerOf("report"))));
}

/// Two reports, and how they differ.
struct Row
{
    std::string found;
    std::string recorded;
    std::string difference;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << ::testing::PrintToString(row.found) << " and " << ::testing::PrintToString(row.recorded);
}

class DifferingReportTest : public ::testing::TestWithParam<Row>
{
};

TEST_P(DifferingReportTest, IsToldByItsFirstLineThatDiffers)
{
    const auto& [found, recorded, difference] = GetParam();
    EXPECT_EQ(difference, firstDifference(answerOf(found), toJson(answerOf(recorded))));
}

INSTANTIATE_TEST_SUITE_P(
    EachKind, DifferingReportTest,
    ::testing::Values(Row{"a\n", "b\n", R"(report, line 1: found "a\n", recorded "b\n")"},
                      Row{"a\nlevel 1\nc", "a\nlevel 2\nd",
                          R"(report, line 2: found "level 1\n", recorded "level 2\n")"},
                      Row{"", "a", R"(report, line 1: found "", recorded "a")"},
                      Row{"a", "", R"(report, line 1: found "a", recorded "")"},
                      Row{"a\n", "a", R"(report, line 1: found "a\n", recorded "a")"},
                      Row{"a", "a\n", R"(report, line 1: found "a", recorded "a\n")"},
                      Row{"a\n", "a\nb\nc\n", R"(report, line 2: found "", recorded "b\n")"},
                      Row{"a\n\n", "a\n", R"(report, line 2: found "\n", recorded "")"},
                      Row{"ab", "abc", R"(report, line 1: found "ab", recorded "abc")"},
                      Row{"a\nb", "a b", R"(report, line 1: found "a\n", recorded "a b")"},
                      Row{"a\xff\n", "a\xfe\n", R"(report_hex, line 1: found "61ff0a", recorded "61fe0a")"},
                      Row{"a\xff", "a\xef\xbf\xbd", R"(report_hex, line 1: found "61ff", recorded "")"}));

TEST(FirstDifferenceTest, IsTheTraceWithoutItsTimesAndSourceLines)
{
    Answer other = answerOf("report");
    other.trace[0].message.text = "an answer";
    EXPECT_EQ(R"(trace: found [{"channel":"KEL","level":3,"file":"file","function":"function",)"
              R"("text":"an answer"}], recorded [{"channel":"KEL","level":3,"file":"file",)"
              R"("function":"function","text":"no answer\n"}])",
              firstDifference(other, toJson(answerOf("report"))));
    other.trace.clear();
    EXPECT_EQ(R"(trace: found [], recorded [{"channel":"KEL","level":3,"file":"file",)"
              R"("function":"function","text":"no answer\n"}])",
              firstDifference(other, toJson(answerOf("report"))));
}

class ReplayDifferenceTest : public RecordingTestAt<RecordingDesk>
{
};

TEST_F(ReplayDifferenceTest, EndsTheReplayWithItsLineAndItsTime)
{
    done({"record " + file, "advance 90", "getC 1", "startDpd 1"});
    RecordingDesk other;
    other.recorder.report = "another report\n";
    EXPECT_EQ(file + ":3: \"getCtStatus 1\" at 0:01:30.0: report, line 1: found \"another report\\n\", recorded \"the "
                     "report\\n\"\n",
              replayedAt(other, file));
    EXPECT_THAT(other.recorder.calls, ::testing::ElementsAre("getCtStatus(1)"));
}

TEST_F(ReplayDifferenceTest, FailsTheReplay)
{
    done({"record " + file, "startDpd 1", "stopRecord"});
    desk.recorder.result = 1;
    const Answer answer = carryOut({"replay " + file});
    EXPECT_EQ(Status::CommandFailed, answer.status);
    EXPECT_EQ(1, answer.outcome->result);
    EXPECT_EQ(file + ":2: \"startDpd 1\" at 0:00:00.0: status: found \"failed\", recorded \"done\"\n",
              answer.outcome->output);
    EXPECT_EQ("replay: failed", answer.error);
}

TEST_F(ReplayDifferenceTest, IsNotSoughtInWhatWentBeforeTheRecording)
{
    done({"startDpd 1", "record " + file, "stopDpd 1"});
    RecordingDesk other;
    other.recorder.duringCall = [&] { other.recorder.result = other.recorder.calls.size() == 1 ? 1 : 0; };
    EXPECT_EQ(allOf(2), replayedAt(other, file));
    EXPECT_THAT(other.recorder.calls, ::testing::ElementsAre("startDpd(1)", "stopDpd(1)"));
}

TEST_F(ReplayDifferenceTest, IsATimeThatIsPastAlready)
{
    done({"record " + file, "startDpd 1", "stopDpd 1"});
    RecordingDesk other;
    other.recorder.duringCall = [&] { other.link().advance(Ticks(15)); };
    EXPECT_EQ(file + ":3: \"stopDpd 1\" at 0:00:00.0: time: found 0:00:01.5\n", replayedAt(other, file));
}

TEST_F(ReplayDifferenceTest, IsInTheTrace)
{
    VemTrace trace("ReplayDifferenceTest", 3);
    const auto writing = [&trace](std::int32_t line, const std::string& text)
    {
        return [&trace, line, text]
        {
            trace.beginLogMsg(1, {"file", line, "function"});
            trace.messageStream() << text << std::flush;
        };
    };
    desk.recorder.duringCall = writing(17, "a message");
    done({"record " + file, "startDpd 1"});
    RecordingDesk other;
    other.recorder.duringCall = writing(18, "a message");
    EXPECT_EQ(allOf(1), replayedAt(other, file));
    other.recorder.duringCall = writing(17, "another message");
    EXPECT_THAT(replayedAt(other, file), ::testing::HasSubstr(":2: \"startDpd 1\" at 0:00:00.0: trace: found [{"));
}

} // namespace
