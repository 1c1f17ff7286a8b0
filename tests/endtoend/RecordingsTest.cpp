#include <string>

#include <gtest/gtest.h>

#include "endtoend/Program.h"
#include "support/TemporaryFolder.h"

namespace
{

class RecordingsTest : public ::testing::Test
{
protected:
    Finished replay()
    {
        return finish({.arguments = {"replay", file}});
    }

    TemporaryFolder folder;
    std::string file = folder.pathOf("bug.jsonl");
};

TEST_F(RecordingsTest, ARecordingIsARegressionTest)
{
    const Finished recorded = finish({.arguments = {"--scenario", "rain-front", "--record", file, "--keep-going"},
                                      .input = "advance 3min\ngetCtStatus 1\nsetPpsSource 1 3 0\nnonsense\n"
                                               "addFault tiManageXpic text=\"no answer\"\nsetXpicPreamble 1 2\n"});
    EXPECT_EQ(1, recorded.status);
    const Finished run = replay();
    EXPECT_EQ(file + ": 5 commands, each answered as recorded\n", run.output);
    EXPECT_EQ("", run.errors);
    EXPECT_EQ(0, run.status);
}

TEST_F(RecordingsTest, TheFirstDifferenceIsTold)
{
    finish({.arguments = {"--record", file}, .input = "setRain 60\nadvance 3min\ngetBcmModemStatus 1\nshowLink\n"});
    std::string text = folder.read("bug.jsonl");
    const std::string level = "Level:         -";
    text.replace(text.find(level), level.size() + 5, level + "10.00");
    folder.write("bug.jsonl", text);
    const Finished run = replay();
    EXPECT_EQ(file + ":4: \"getBcmModemStatus 1\" at 0:03:00.0: report, line 5: "
                     "found \"Level:         -70.19 dBm\\n\", recorded \"Level:         -10.00 dBm\\n\"\n",
              run.output);
    EXPECT_EQ("kel-node: replay: failed\n", run.errors);
    EXPECT_EQ(1, run.status);
}

TEST_F(RecordingsTest, ARecordingThatBeginsLateNeedsNothingElse)
{
    const std::string scenario = folder.write("late.toml", "[hop]\ndistance_km = 7\n");
    const Finished recorded =
        finish({.arguments = {"--scenario", scenario},
                .input = "setRain 60\nadvance 3min\nrecord " + file + "\ngetBcmModemStatus 1\nstopRecord\nshowLink\n"});
    EXPECT_EQ(0, recorded.status);
    folder.write("late.toml", "");
    EXPECT_EQ(file + ": 3 commands, each answered as recorded\n", replay().output);
}

TEST_F(RecordingsTest, AFileThatIsNoneIsTold)
{
    folder.write("bug.jsonl", "{}\n");
    const Finished run = replay();
    EXPECT_EQ("", run.output);
    EXPECT_EQ(2, run.status);
    EXPECT_NE(std::string::npos, run.errors.find("kel-node: " + file + ":1: found ")) << run.errors;
}

TEST_F(RecordingsTest, WhatIsNotRecordedDoesNotReplaceARecording)
{
    folder.write("bug.jsonl", "what was there");
    for (const std::string command : {"replay", "help", "plot"})
    {
        const Finished run = finish({.arguments = {"--record", file, command, file}});
        EXPECT_EQ("kel-node: option --record: found \"" + command +
                      "\", expected a command that is recorded, or lines of commands\n",
                  run.errors);
        EXPECT_EQ(2, run.status);
        EXPECT_EQ("what was there", folder.read("bug.jsonl"));
    }
}

TEST_F(RecordingsTest, TheRoundsOfAWatchAreRecorded)
{
    EXPECT_EQ(0, finish({.arguments = {"--record", file, "watch", "-n", "0.1", "-c", "2", "showLink"}}).status);
    EXPECT_EQ(file + ": 2 commands, each answered as recorded\n", replay().output);
}

} // namespace
