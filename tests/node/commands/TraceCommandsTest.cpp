#include <map>
#include <ostream>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "node/cli/SessionTest.h"
#include "node/trace/TraceLibrary.h"

using node::cli::Status;

namespace
{

using Levels = std::map<std::string, VemTraceLevel>;

/// A session beside four channels of trace; the levels are as before when it ends.
class TraceCommandsTest : public SessionTest
{
protected:
    TraceCommandsTest()
    {
        for (const std::string channel : {"TCT.One", "TCT.Oner", "TCT.Two", "TCT*"})
        {
            node::trace::setLevel(channel, 7);
        }
    }

    ~TraceCommandsTest() override
    {
        for (const auto& [channel, level] : m_before)
        {
            node::trace::setLevel(channel, level);
        }
    }

private:
    Levels m_before = node::trace::levels();
};

/// A pattern, and the channels of this test that it fits.
struct Row
{
    std::string pattern;
    std::set<std::string> fits;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << row.pattern;
}

class TracePatternTest : public TraceCommandsTest, public ::testing::WithParamInterface<Row>
{
};

TEST_P(TracePatternTest, SetsTheLevelsOfTheChannelsThatItFitsAndOfNoOthers)
{
    Levels expected = node::trace::levels();
    for (const std::string& channel : GetParam().fits)
    {
        expected[channel] = 2;
    }
    EXPECT_EQ("", done("setTraceLevel " + GetParam().pattern + " 2"));
    EXPECT_EQ(expected, node::trace::levels());
}

INSTANTIATE_TEST_SUITE_P(EachKind, TracePatternTest,
                         ::testing::Values(Row{"TCT.One", {"TCT.One"}}, Row{"TCT.One*", {"TCT.One", "TCT.Oner"}},
                                           Row{"TCT.*", {"TCT.One", "TCT.Oner", "TCT.Two"}},
                                           Row{"TCT*", {"TCT*", "TCT.One", "TCT.Oner", "TCT.Two"}},
                                           Row{"TCT.???", {"TCT.One", "TCT.Two"}}, Row{"TCT?", {"TCT*"}},
                                           Row{"*CT.One?", {"TCT.Oner"}}, Row{"*CT.*w*", {"TCT.Two"}}));

TEST_F(TraceCommandsTest, AStarAloneSetsEveryLevel)
{
    done("setTraceLevel * 5");
    for (const auto& [channel, level] : node::trace::levels())
    {
        EXPECT_EQ(5, level) << channel;
    }
}

TEST_F(TraceCommandsTest, ALevelIsSetUpToItsBounds)
{
    for (const int level : {0, 1, 254, 255})
    {
        done("setTraceLevel TCT.One " + std::to_string(level));
        EXPECT_EQ(level, node::trace::levels().at("TCT.One"));
    }
}

TEST_F(TraceCommandsTest, APatternThatFitsNoChannelIsRefused)
{
    const Levels before = node::trace::levels();
    const std::string place = "setTraceLevel: argument 1 (channels): found \"";
    const std::string expected = "\", expected a pattern that fits a channel that \"listTraceLevels\" lists";
    EXPECT_EQ(place + "TCT.Onee" + expected + " (did you mean TCT.One?)",
              complaint(Status::NotUnderstood, "setTraceLevel TCT.Onee 2"));
    EXPECT_EQ(place + "tct.two" + expected + " (did you mean TCT.Two?)",
              complaint(Status::NotUnderstood, "setTraceLevel tct.two 2"));
    EXPECT_EQ(place + "nothing.like.it*" + expected,
              complaint(Status::NotUnderstood, "setTraceLevel nothing.like.it* 2"));
    EXPECT_EQ(place + expected, complaint(Status::NotUnderstood, "setTraceLevel \"\" 2"));
    EXPECT_EQ(before, node::trace::levels());
}

TEST_F(TraceCommandsTest, EveryChannelIsListedWithItsLevel)
{
    done("setTraceLevel TCT.Two 0");
    std::string expected;
    for (const auto& [channel, level] : node::trace::levels())
    {
        expected += channel + std::string(channel.size() < 32 ? 32 - channel.size() : 0, ' ') + " " +
                    std::to_string(level) + "\n";
    }
    const std::string listed = done("listTraceLevels");
    EXPECT_EQ(expected, listed);
    EXPECT_NE(std::string::npos, listed.find("TCT*                             7\n"
                                             "TCT.One                          7\n"
                                             "TCT.Oner                         7\n"
                                             "TCT.Two                          0\n"));
}

TEST_F(TraceCommandsTest, TouchNoNode)
{
    desk.clear();
    done("setTraceLevel TCT.One 1");
    done("listTraceLevels");
    EXPECT_TRUE(desk.started.empty());
}

} // namespace
