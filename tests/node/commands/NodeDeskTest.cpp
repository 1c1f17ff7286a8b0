#include <sstream>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/cli/Script.h"
#include "node/cli/Session.h"
#include "node/output/TextOutput.h"
#include "node/trace/TraceRecorder.h"
#include "support/TemporaryFolder.h"

using node::cli::Session;
using node::cli::Status;
using node::commands::NodeDesk;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

/// A session at the desk that holds a real node.
class NodeDeskTest : public ::testing::Test
{
protected:
    Status carryOut(const std::string& line)
    {
        output.str("");
        errors.str("");
        std::istringstream input(line);
        return runScript(session, input, "<stdin>", node::cli::AtFailure::Stop);
    }

    void expectDone(const std::string& printed, const std::string& line)
    {
        EXPECT_EQ(Status::Done, carryOut(line)) << line;
        EXPECT_EQ(printed, output.str()) << line;
        EXPECT_EQ("", errors.str()) << line;
    }

    void expectComplaint(Status status, const std::string& complaint, const std::string& line)
    {
        EXPECT_EQ(status, carryOut(line)) << line;
        EXPECT_EQ("", output.str()) << line;
        EXPECT_EQ("kel-node: <stdin>:1: " + complaint + "\n", errors.str()) << line;
    }

    /// The first line of what showLink prints.
    std::string timeShown()
    {
        EXPECT_EQ(Status::Done, carryOut("showLink"));
        return output.str().substr(0, output.str().find('\n'));
    }

    static constexpr const char* NoNode = "node: found none running, expected one; \"loadScenario\" starts one";

    TemporaryFolder folder;
    std::string refused = folder.write("refused.toml", "[broker]\nIRlbspKelApi = \"absent\"\n");
    std::string broken = folder.write("broken.toml", "[broker]\nIRlbspKelApi = 1\n");
    std::string faulty = folder.write("faulty.toml", "[[fault]]\ncall = \"tiManageXpic\"\n");
    NodeDesk desk;
    std::ostringstream output;
    std::ostringstream errors;
    node::output::TextOutput textOutput{output, errors};
    Session session{desk, textOutput};
    TraceRecorder trace; // hears the messages before the session does
};

TEST_F(NodeDeskTest, HasNoNodeAtFirst)
{
    EXPECT_FALSE(desk.hasNode());
    desk.start({});
    EXPECT_TRUE(desk.hasNode());
}

TEST_F(NodeDeskTest, WithoutANodeWhatNeedsOneSaysSo)
{
    for (const std::string line :
         {"getCtStatus 1", "startDpd 2", "setXpicPreamble 1 2", "showLink", "advance 1", "setRain 1", "setFade 1 1",
          "setDistance 1", "setTransmitter 1 on", "setXpicCable 2 on", "setPpsMaster 1 on", "sample 1 1 -",
          "addFault tiManageXpic", "listFaults", "clearFaults"})
    {
        expectComplaint(Status::NotStarted, NoNode, line);
    }
}

TEST_F(NodeDeskTest, WithoutANodeAWrongWordIsToldFirst)
{
    expectComplaint(Status::NotUnderstood,
                    "getCtStatus: argument 1 (channel): found \"3\", expected a whole number from 1 to 2",
                    "getCtStatus 3");
    expectComplaint(Status::NotUnderstood,
                    "setDistance: argument 1 (distance): found \"0\", expected a number from 0.1 to "
                    "100 (km)",
                    "setDistance 0");
}

TEST_F(NodeDeskTest, WhatNeedsNoNodeIsDoneWithoutOne)
{
    for (const std::string line :
         {"help", "help scenario", "listScenarios", "listCalls", "listTraceLevels", "setTraceLevel KEL.* 3"})
    {
        EXPECT_EQ(Status::Done, carryOut(line)) << line;
        EXPECT_EQ("", errors.str()) << line;
    }
}

TEST_F(NodeDeskTest, CommandsLinkAndFaultsAreOfOneNode)
{
    desk.start({});
    expectDone("", "setXpicPreamble 1 3");
    EXPECT_EQ(3U, desk.link().snapshot(1).state.xpic.preamble);
    expectDone("", "addFault tiManageXpic channel=1");
    EXPECT_EQ(Status::CommandFailed, carryOut("setXpicPreamble 1 2"));
    expectDone("tiManageXpic channel=1: seen 1, hit 1\n", "listFaults");
    EXPECT_EQ(3U, desk.link().snapshot(1).state.xpic.preamble);
}

TEST_F(NodeDeskTest, AScenarioThatIsLoadedBeginsANewNode)
{
    desk.start({});
    expectDone("", "advance 5");
    expectDone("", "addFault criGetRadioChannelStatus");
    expectDone("", "loadScenario " + faulty);
    EXPECT_EQ("Time:            0:00:00.0", timeShown());
    expectDone("tiManageXpic: seen 0, hit 0\n", "listFaults");
    expectDone("", "loadScenario " + folder.write("plain.toml", ""));
    expectDone("", "listFaults");
}

TEST_F(NodeDeskTest, AFileThatIsNotUnderstoodLeavesTheNodeAsItIs)
{
    desk.start({});
    expectDone("", "setXpicPreamble 1 3");
    expectDone("", "addFault criGetRadioChannelStatus");
    expectDone("", "advance 5");
    EXPECT_EQ(Status::NotUnderstood, carryOut("loadScenario " + broken));
    EXPECT_EQ(Status::NotUnderstood, carryOut("loadScenario absent"));
    EXPECT_EQ("Time:            0:00:05.0", timeShown());
    expectDone("3\n", "getXpicPreamble 1");
    expectDone("criGetRadioChannelStatus: seen 0, hit 0\n", "listFaults");
    EXPECT_THAT(trace.messages, IsEmpty());
}

TEST_F(NodeDeskTest, ANodeThatDoesNotStartLeavesNone)
{
    desk.start({});
    expectComplaint(Status::NotStarted, "module KelDebugCmd: onModuleInit() answered 0x8000, expected 0",
                    "loadScenario " + refused);
    EXPECT_THAT(trace.texts(), ElementsAre("onModuleInit(): failed to get interface toIRlbspKelApi\n"));
    EXPECT_FALSE(desk.hasNode());
    expectComplaint(Status::NotStarted, NoNode, "getCtStatus 1");
    expectComplaint(Status::NotUnderstood,
                    broken + ":2:16: broker.IRlbspKelApi: found 1, expected one of \"service\", \"absent\", \"empty\", "
                             "\"other type\"",
                    "loadScenario " + broken);
    expectComplaint(Status::NotStarted, NoNode, "showLink");
}

TEST_F(NodeDeskTest, AScenarioCanBeLoadedAfterOneThatDidNotStart)
{
    desk.start({});
    EXPECT_EQ(Status::NotStarted, carryOut("loadScenario " + refused));
    EXPECT_EQ(Status::NotStarted, carryOut("loadScenario " + refused));
    expectDone("", "loadScenario " + faulty);
    EXPECT_EQ("Time:            0:00:00.0", timeShown());
    expectDone("", "clearFaults");
    expectDone("0\n", "getXpicPreamble 1");
}

TEST_F(NodeDeskTest, ANodeWithoutACallbackHasALinkAndNoCommands)
{
    expectDone("", "loadScenario " + folder.write("deaf.toml", "[node]\nruns_with_failed_modules = true\n"
                                                               "[broker]\nIRlbspKelApi = \"empty\"\n"));
    expectComplaint(Status::CommandFailed, "getCtStatus: threw no debug-command callback is installed",
                    "getCtStatus 1");
    expectDone("", "advance 1");
    EXPECT_EQ("Time:            0:00:01.0", timeShown());
    expectDone("", "addFault tiManageXpic");
}

} // namespace
