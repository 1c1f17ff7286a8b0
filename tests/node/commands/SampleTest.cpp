#include <string>

#include <gtest/gtest.h>

#include "node/cli/SessionTest.h"
#include "node/commands/LinkText.h"
#include "support/TemporaryFolder.h"

using node::cli::Status;
using node::commands::csvHeader;
using node::commands::csvRows;
using node::radio::RadioLink;
using node::radio::Ticks;

namespace
{

class SampleTest : public SessionTest
{
protected:
    /// Starts a node of one channel.
    void startOneChannel()
    {
        node::startup::Configuration configuration;
        configuration.link.numberOfChannels = 1;
        desk.start({"", configuration, "", ""});
    }

    TemporaryFolder folder;
    std::string heads = "time_s,distance_km,rain_mm_per_h,fade_dB,channel,tx_power_dBm,level_dBm,xpd_dB,snir_dB,modem,"
                        "modulation,errored_blocks,dpd,xpic,pps_calibration,hop_length_time_ns\n";
};

TEST_F(SampleTest, WritesARowForEachChannelAtEachStepAndAtBothEnds)
{
    done("setRain 60");
    done("setFade 10 1s");
    EXPECT_EQ(heads +
                  "0.0,10.000,60.00,0.00,1,18.00,-70.19,20.71,23.69,locked,256QAM,0,adapted,Locked,never,33000\n"
                  "0.0,10.000,60.00,0.00,2,18.00,-75.63,18.98,18.32,locked,64QAM,0,adapted,Locked,never,33000\n"
                  "0.4,10.000,60.00,4.00,1,18.00,-74.19,20.71,19.76,locked,64QAM_LIGHT,4,adapted,Locked,never,33000\n"
                  "0.4,10.000,60.00,4.00,2,18.00,-79.63,18.98,14.35,locked,16QAM_LIGHT,3,adapted,Locked,never,33000\n"
                  "0.8,10.000,60.00,8.00,1,18.00,-78.19,20.71,15.79,locked,32QAM,7,adapted,Locked,never,33000\n"
                  "0.8,10.000,60.00,8.00,2,18.00,-83.63,18.98,10.36,locked,4QAM_LIGHT,5,adapted,Locked,never,33000\n"
                  "1.0,10.000,60.00,10.00,1,18.00,-80.19,20.71,13.80,locked,16QAM_LIGHT,9,adapted,Locked,never,33000\n"
                  "1.0,10.000,60.00,10.00,2,18.00,-85.63,18.98,8.36,locked,4QAM_LIGHT,5,adapted,Locked,never,33000\n",
              done("sample 1 0.4 -"));
}

TEST_F(SampleTest, WritesOneRowAStepOnALinkOfOneChannel)
{
    startOneChannel();
    done("setDistance 12.3456");
    EXPECT_EQ(heads + "0.0,12.346,0.00,0.00,1,18.00,-44.99,40.00,43.55,locked,4096QAM,0,adapted,Idle,never,41000\n"
                      "0.1,12.346,0.00,0.00,1,18.00,-44.99,40.00,43.55,locked,4096QAM,0,adapted,Idle,never,41000\n"
                      "0.2,12.346,0.00,0.00,1,18.00,-44.99,40.00,43.55,locked,4096QAM,0,adapted,Idle,never,41000\n",
              done("sample 0.2 0.1 -"));
}

TEST_F(SampleTest, ShowsWhatStateTheChannelsAreIn)
{
    desk.link().advance(Ticks(36001));
    done("setTransmitter 2 off");
    done("setXpicCable 1 off");
    desk.link().change(1, [](node::radio::Channel& channel) { channel.dpd.stop(); });
    desk.link().calibratePps(1, node::radio::PpsRequest::Manual, 1234);
    desk.link().calibratePps(2, node::radio::PpsRequest::Coarse, 0);
    EXPECT_EQ(heads +
                  "3600.1,10.000,0.00,0.00,1,18.00,-43.02,40.00,34.89,locked,4096QAM,0,stopped,Acquiring,manual,1234\n"
                  "3600.1,10.000,0.00,0.00,2,-110.00,-110.00,40.00,-27.31,unlocked,4QAM_STRONG,0,adapted,Acquiring,"
                  "failed,33000\n"
                  "3600.2,10.000,0.00,0.00,1,18.00,-43.02,40.00,34.89,locked,4096QAM,0,stopped,Acquiring,manual,1234\n"
                  "3600.2,10.000,0.00,0.00,2,-110.00,-110.00,40.00,-27.31,unlocked,4QAM_STRONG,1,adapted,Acquiring,"
                  "failed,33000\n",
              done("sample 0.1 100h -"));
}

TEST_F(SampleTest, AStepThatFitsLeavesNoShorterOne)
{
    RadioLink link;
    std::string expected = csvHeader() + csvRows(link);
    for (int step = 0; step < 2; ++step)
    {
        link.advance(Ticks(2));
        expected += csvRows(link);
    }
    EXPECT_EQ(expected, done("sample 0.4 0.2 -"));
    EXPECT_EQ(Ticks(4), desk.link().conditions().time);
}

TEST_F(SampleTest, LetsExactlyTheTimeGoOn)
{
    done("advance 5");
    done("sample 1.1 0.3 -");
    EXPECT_EQ(Ticks(50 + 11), desk.link().conditions().time);
    done("sample 0.1 1h -");
    EXPECT_EQ(Ticks(50 + 12), desk.link().conditions().time);
}

TEST_F(SampleTest, WritesTheSameToAFile)
{
    EXPECT_EQ("", done("sample 3 1 " + folder.pathOf("table.csv")));
    const std::string written = folder.read("table.csv");
    desk.start({});
    EXPECT_EQ(done("sample 3 1 -"), written);
}

TEST_F(SampleTest, ReplacesWhatWasInTheFile)
{
    const std::string file = folder.write("table.csv", std::string(100'000, 'x'));
    done("sample 0.1 0.1 " + file);
    EXPECT_TRUE(folder.read("table.csv").starts_with(heads));
    EXPECT_EQ(std::string::npos, folder.read("table.csv").find('x', heads.size() + 200));
}

TEST_F(SampleTest, TakesAFileNameWithBlanks)
{
    done("sample 0.1 0.1 \"" + folder.pathOf("a table.csv") + "\"");
    EXPECT_TRUE(folder.has("a table.csv"));
}

TEST_F(SampleTest, AFileThatCannotBeMadeLeavesTimeWhereItWas)
{
    const std::string absent = folder.pathOf("absent/table.csv");
    for (const std::string& file : {absent, folder.path(), std::string("/")})
    {
        EXPECT_EQ("sample: argument 3 (file): found \"" + file +
                      "\", expected a file that can be written, - for standard output",
                  complaint(Status::NotUnderstood, "sample 10 1 " + file));
    }
    EXPECT_EQ("sample: argument 3 (file): found \"\", expected a file that can be written, - for standard output",
              complaint(Status::NotUnderstood, "sample 10 1 \"\""));
    EXPECT_EQ(Ticks(0), desk.link().conditions().time);
}

TEST_F(SampleTest, AFileThatTakesNothingEndsTheCommandAtOnce)
{
    EXPECT_EQ("sample: \"/dev/full\" cannot be written any more",
              complaint(Status::CommandFailed, "sample 100h 1 /dev/full"));
    EXPECT_EQ(Ticks(0), desk.link().conditions().time);
}

TEST_F(SampleTest, WithoutANodeMakesNoFile)
{
    desk.clear();
    EXPECT_EQ("the desk is empty", complaint(Status::NotStarted, "sample 1 1 " + folder.pathOf("table.csv")));
    EXPECT_FALSE(folder.has("table.csv"));
    const std::string kept = folder.write("kept.csv", "kept");
    complaint(Status::NotStarted, "sample 1 1 " + kept);
    EXPECT_EQ("kept", folder.read("kept.csv"));
    complaint(Status::NotStarted, "sample 1 1 -");
}

} // namespace
