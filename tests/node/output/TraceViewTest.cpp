#include "node/output/TraceView.h"

#include <ostream>
#include <sstream>
#include <string>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "node/output/Json.h"
#include "node/wording/InputError.h"
#include "support/TemporaryFolder.h"

using node::output::TimedMessage;
using node::output::toJson;
using node::output::TraceView;
using node::radio::Ticks;
using node::trace::Message;

namespace
{

Message messageOf(const std::string& channel, VemTraceLevel level)
{
    return {channel, level, "", 0, "", "text"};
}

/// A filter, and a message that it lets through or not.
struct Row
{
    std::string channels;
    std::int32_t level;
    std::string channel;
    VemTraceLevel messageLevel;
    bool let;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << row.channels << ':' << row.level << " and " << row.channel << ':' << row.messageLevel;
}

class TraceFilterTest : public ::testing::TestWithParam<Row>
{
};

TEST_P(TraceFilterTest, LetsThroughWhatFits)
{
    TraceView view;
    view.filter("something else", 0);
    view.filter(GetParam().channels, GetParam().level);
    EXPECT_EQ(GetParam().let, view.lets(messageOf(GetParam().channel, GetParam().messageLevel)));
}

INSTANTIATE_TEST_SUITE_P(Levels, TraceFilterTest,
                         ::testing::Values(Row{"*", 3, "KEL", 2, true}, Row{"*", 3, "KEL", 3, true},
                                           Row{"*", 3, "KEL", 4, false}, Row{"*", 0, "KEL", 0, true},
                                           Row{"*", 0, "KEL", 1, false}, Row{"*", 0, "KEL", -1, true},
                                           Row{"*", 255, "KEL", 256, false}));

INSTANTIATE_TEST_SUITE_P(Patterns, TraceFilterTest,
                         ::testing::Values(Row{"KEL", 9, "KEL", 1, true}, Row{"KEL", 9, "KEL.KDC", 1, false},
                                           Row{"KEL", 9, "kel", 1, false}, Row{"KEL.*", 9, "KEL.KDC.X", 1, true},
                                           Row{"KEL.*", 9, "KEL", 1, false}, Row{"K?L", 9, "KEL", 1, true},
                                           Row{"K?L", 9, "KEEL", 1, false}, Row{"*.KDC", 9, "KEL.KDC", 1, true},
                                           Row{"*", 9, "", 1, true}, Row{"", 9, "", 1, true},
                                           Row{"", 9, "KEL", 1, false}));

TEST(TraceViewTest, LetsEverythingThroughAtFirst)
{
    const TraceView view;
    EXPECT_TRUE(view.lets(messageOf("KEL", 255)));
    EXPECT_TRUE(view.lets(messageOf("", -1)));
}

class TraceFileTest : public ::testing::Test
{
protected:
    static TimedMessage messageOf(const std::string& text)
    {
        return {Ticks(15), {"KEL", 3, "file", 17, "function", text}};
    }

    static std::string lineOf(const std::string& text)
    {
        return node::output::toLine(toJson(messageOf(text)));
    }

    /// What is said of a step that is refused, or fails.
    static std::string complaint(const std::function<void()>& step)
    {
        try
        {
            step();
        }
        catch (const std::runtime_error& error)
        {
            return error.what();
        }
        return "done";
    }

    TemporaryFolder folder;
    TraceView view;
};

TEST_F(TraceFileTest, HasADocumentOnALineForEachMessageAtOnce)
{
    view.open(folder.pathOf("trace"));
    EXPECT_EQ("", folder.read("trace"));
    view.write(messageOf("first\n"));
    EXPECT_EQ(lineOf("first\n"), folder.read("trace"));
    view.write(messageOf("second \xff"));
    std::istringstream lines(folder.read("trace"));
    std::string line;
    for (const std::string text : {"first\n", "second \xff"})
    {
        ASSERT_TRUE(std::getline(lines, line));
        EXPECT_EQ(toJson(messageOf(text)).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace),
                  nlohmann::ordered_json::parse(line).dump());
    }
    EXPECT_FALSE(std::getline(lines, line));
}

TEST_F(TraceFileTest, ReplacesWhatWasThere)
{
    view.open(folder.write("trace", "what was there"));
    EXPECT_EQ("", folder.read("trace"));
}

TEST_F(TraceFileTest, ASecondOneTakesTheFirstOnesPlace)
{
    view.open(folder.pathOf("first"));
    view.write(messageOf("1"));
    view.open(folder.pathOf("second"));
    view.write(messageOf("2"));
    EXPECT_EQ(lineOf("1"), folder.read("first"));
    EXPECT_EQ(lineOf("2"), folder.read("second"));
}

TEST_F(TraceFileTest, OneThatCannotBeWrittenLeavesTheOneBefore)
{
    const std::string absent = folder.pathOf("absent/trace");
    const std::string text = absent + ": found no such folder, expected a file to write";
    EXPECT_EQ(text, complaint([&] { view.open(absent); }));
    view.open(folder.pathOf("trace"));
    EXPECT_EQ(text, complaint([&] { view.open(absent); }));
    view.write(messageOf("1"));
    EXPECT_EQ(lineOf("1"), folder.read("trace"));
}

TEST_F(TraceFileTest, NothingIsWrittenOnceItIsClosed)
{
    view.write(messageOf("0"));
    view.open(folder.pathOf("trace"));
    view.close();
    view.write(messageOf("1"));
    EXPECT_EQ("", folder.read("trace"));
}

TEST_F(TraceFileTest, OneThatIsFullIsToldOnceAndClosed)
{
    view.open("/dev/full");
    view.expectWritten();
    view.write(messageOf("1"));
    view.write(messageOf("2"));
    EXPECT_EQ("\"/dev/full\" cannot be written any more", complaint([&] { view.expectWritten(); }));
    EXPECT_EQ("done", complaint([&] { view.expectWritten(); }));
    EXPECT_EQ("trace file: found none, expected one that \"traceFile\" has begun", complaint([&] { view.close(); }));
}

TEST_F(TraceFileTest, ThatTheOneBeforeWasFullIsToldAllTheSame)
{
    view.open("/dev/full");
    view.write(messageOf("1"));
    view.open(folder.pathOf("trace"));
    EXPECT_EQ("\"/dev/full\" cannot be written any more", complaint([&] { view.expectWritten(); }));
    view.write(messageOf("2"));
    EXPECT_EQ(lineOf("2"), folder.read("trace"));
}

TEST_F(TraceFileTest, OnlyAnOpenOneIsClosed)
{
    const std::string text = "trace file: found none, expected one that \"traceFile\" has begun";
    EXPECT_EQ(text, complaint([&] { view.close(); }));
    view.open(folder.pathOf("trace"));
    EXPECT_EQ("done", complaint([&] { view.close(); }));
    EXPECT_EQ(text, complaint([&] { view.close(); }));
}

} // namespace
