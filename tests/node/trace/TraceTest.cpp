#include <cstdint>
#include <limits>
#include <map>
#include <optional>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/trace/TraceLibrary.h"
#include "node/trace/TraceRecorder.h"
#include "trace/VemTrace.h"

using node::trace::levels;
using node::trace::Message;
using node::trace::setLevel;
using node::trace::toLine;
using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Key;
using ::testing::Not;
using ::testing::Pair;

namespace
{

constexpr auto Lowest = std::numeric_limits<VemTraceLevel>::min();
constexpr auto Highest = std::numeric_limits<VemTraceLevel>::max();

void writeAt(VemTrace& channel, VemTraceLevel level)
{
    channel.beginLogMsg(level, {});
    channel.messageStream() << "level " << level << std::flush;
}

// Levels stay with a name until the program ends: every test has names of its own.

TEST(TraceTest, ANewNameGetsTheLevelThatItsChannelIsCreatedWith)
{
    const std::string name = "New beside " + std::to_string(levels().size());
    EXPECT_THAT(levels(), Not(Contains(Key(name))));
    const VemTrace channel(name, 2);
    EXPECT_THAT(levels(), Contains(Pair(name, 2)));
}

TEST(TraceTest, TheModulesChannelsAreThereWithLevel3)
{
    EXPECT_THAT(levels(),
                AllOf(Contains(Pair("KEL.KDC.KelDebugCmd", 3)), Contains(Pair("KEL.KDC.GetCtStatusDebugCmd", 3))));
}

TEST(TraceTest, ASecondChannelOfANameKeepsTheLevelOfTheFirst)
{
    const VemTrace first("Shared", 0);
    const VemTrace second("Shared", 3);
    EXPECT_FALSE(second.isActive());
    EXPECT_THAT(levels(), Contains(Pair("Shared", 0)));
}

TEST(TraceTest, ChannelsOfOneNameShareItsLevel)
{
    const VemTrace first("Twins", 3);
    const VemTrace second("Twins", 3);
    const VemTrace other("Not their sister", 3);
    setLevel("Twins", 0);
    EXPECT_FALSE(first.isActive());
    EXPECT_FALSE(second.isActive());
    EXPECT_TRUE(other.isActive());
}

TEST(TraceTest, ALevelOutlivesItsChannel)
{
    std::optional<VemTrace> channel(std::in_place, "Reborn", 3);
    setLevel("Reborn", 0);
    channel.reset();
    channel.emplace("Reborn", 3);
    EXPECT_FALSE(channel->isActive());
}

TEST(TraceTest, ALevelCanBeSetBeforeTheChannelExists)
{
    setLevel("Preset", 1);
    EXPECT_THAT(levels(), Contains(Pair("Preset", 1)));
    VemTrace channel("Preset", 3);
    const TraceRecorder recorder;
    writeAt(channel, 2);
    writeAt(channel, 1);
    EXPECT_THAT(recorder.texts(), ElementsAre("level 1"));
}

TEST(TraceTest, AChannelIsActiveAboveLevel0ComparedSigned)
{
    const VemTrace channel("Active", 3);
    const std::map<VemTraceLevel, bool> expected = {{Lowest, false}, {-1, false}, {0, false},
                                                    {1, true},       {3, true},   {Highest, true}};
    for (const auto& [level, active] : expected)
    {
        setLevel("Active", level);
        EXPECT_EQ(active, channel.isActive()) << level;
    }
}

TEST(TraceTest, MessagesUpToTheChannelsLevelAreLetThrough)
{
    VemTrace channel("Selective", 2);
    const TraceRecorder recorder;
    for (const VemTraceLevel level : {VemTraceLevel{3}, VemTraceLevel{2}, VemTraceLevel{1}, Highest})
    {
        writeAt(channel, level);
    }
    EXPECT_THAT(recorder.texts(), ElementsAre("level 2", "level 1"));
}

TEST(TraceTest, AtLevel0NothingIsLetThrough)
{
    VemTrace channel("Silent", 0);
    const TraceRecorder recorder;
    for (const VemTraceLevel level : {VemTraceLevel{1}, VemTraceLevel{0}, VemTraceLevel{-1}, Lowest})
    {
        writeAt(channel, level);
    }
    EXPECT_THAT(recorder.texts(), IsEmpty());
}

TEST(TraceTest, LevelsCanBeChangedAtRunTime)
{
    VemTrace channel("Changed", 1);
    const TraceRecorder recorder;
    writeAt(channel, 3);
    setLevel("Changed", 3);
    writeAt(channel, 3);
    setLevel("Changed", 0);
    writeAt(channel, 1);
    setLevel("Changed", 2);
    writeAt(channel, 2);
    EXPECT_THAT(recorder.texts(), ElementsAre("level 3", "level 2"));
}

TEST(TraceTest, ALineNamesChannelLevelPlaceAndText)
{
    EXPECT_EQ("[Fan] level 2, src/Fan:17 setSpeed: too fast\n",
              toLine({"Fan", 2, "src/Fan", 17, "setSpeed", "too fast"}));
}

TEST(TraceTest, ALineOfAMessageWithoutAPlaceNamesNone)
{
    EXPECT_EQ("[Fan] level 1: too fast\n", toLine({"Fan", 1, "", 0, "", "too fast"}));
}

TEST(TraceTest, ALineEndsOnceWhetherOrNotTheTextDoes)
{
    EXPECT_EQ("[Fan] level 1: a\n", toLine({"Fan", 1, "", 0, "", "a"}));
    EXPECT_EQ("[Fan] level 1: a\n", toLine({"Fan", 1, "", 0, "", "a\n"}));
    EXPECT_EQ("[Fan] level 1: a\n\n", toLine({"Fan", 1, "", 0, "", "a\n\n"}));
    EXPECT_EQ("[Fan] level 1: a\nb\n", toLine({"Fan", 1, "", 0, "", "a\nb"}));
    EXPECT_EQ("[Fan] level 1: \n", toLine({"Fan", 1, "", 0, "", ""}));
}

TEST(TraceTest, TheFirstSinkWritesLinesToStandardError)
{
    VemTrace channel("Fan", 3);
    ::testing::internal::CaptureStderr();
    ::testing::internal::CaptureStdout();
    channel.beginLogMsg(1, {"src/Fan", 17, "setSpeed"});
    channel.messageStream() << "too fast" << std::endl;
    channel.beginLogMsg(2, {});
    channel.endLogMsg();
    EXPECT_EQ("", ::testing::internal::GetCapturedStdout());
    EXPECT_EQ("[Fan] level 1, src/Fan:17 setSpeed: too fast\n"
              "[Fan] level 2: \n",
              ::testing::internal::GetCapturedStderr());
}

TEST(TraceTest, SettingASinkAnswersTheOneBefore)
{
    VemTrace channel("Sinks", 3);
    std::string first;
    std::string second;
    auto original = node::trace::setSink([&](const Message& message) { first += message.text; });
    writeAt(channel, 1);
    const auto before = node::trace::setSink([&](const Message& message) { second += message.text; });
    writeAt(channel, 2);
    before({"Sinks", 3, "", 0, "", " by hand"});
    node::trace::setSink(std::move(original));
    EXPECT_EQ("level 1 by hand", first);
    EXPECT_EQ("level 2", second);
}

} // namespace
