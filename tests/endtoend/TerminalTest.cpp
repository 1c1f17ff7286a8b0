#include <string>

#include <gtest/gtest.h>

#include "endtoend/Program.h"
#include "endtoend/Terminal.h"
#include "node/cli/TemporaryFolder.h"

namespace
{

constexpr const char* Prompt = "kel-node> ";

class TerminalTest : public ::testing::Test
{
protected:
    TerminalTest()
    {
        EXPECT_EQ("A simulated node. \"help\" lists the commands, \"exit\" leaves.\r\n"
                  "kel-node> ",
                  terminal.readUntil(Prompt));
    }

    /// Types a line and expects what appears, up to the next prompt.
    void expectAnswer(const std::string& answer, const std::string& line)
    {
        terminal.type(line + "\n");
        EXPECT_EQ(line + "\r\n" + answer + Prompt, terminal.readUntil(Prompt));
    }

    Terminal terminal{{KEL_NODE}};
};

TEST_F(TerminalTest, ACommandIsAnsweredAndExitLeaves)
{
    expectAnswer("0\r\n", "getXpicPreamble 1");
    expectAnswer("", "setXpicPreamble 1 2");
    expectAnswer("2\r\n", "getXpicPreamble 1");
    expectAnswer("", "");
    terminal.type("exit\n");
    EXPECT_EQ("exit\r\n", terminal.readToTheEnd());
    EXPECT_EQ(0, terminal.exitStatus());
}

TEST_F(TerminalTest, ThePromptIsThereAgainAfterAFailure)
{
    expectAnswer("kel-node: command: found \"nonsense\", expected one that \"help\" lists\r\n", "nonsense");
    expectAnswer("kel-node: setPpsSource: failed\r\n", "setPpsSource 1 3 0");
    expectAnswer("0\r\n", "getXpicPreamble 1");
    terminal.type("exit\n");
    EXPECT_EQ("exit\r\n", terminal.readToTheEnd());
    EXPECT_EQ(0, terminal.exitStatus());
}

TEST_F(TerminalTest, AScenarioIsLoadedAfterOneThatDidNotStart)
{
    expectAnswer("", "setXpicPreamble 1 2");
    const std::string line = "loadScenario start-registration-throws";
    expectAnswer("kel-node: module KelDebugCmd: its constructor threw: registry is full\r\n", line);
    const std::string noNode = "kel-node: node: found none running, expected one; \"loadScenario\" starts one\r\n";
    expectAnswer(noNode, "getXpicPreamble 1");
    expectAnswer(noNode, "showLink");
    expectAnswer("", "loadScenario clear-sky");
    expectAnswer("0\r\n", "getXpicPreamble 1");
}

TEST_F(TerminalTest, AScenarioThatIsNotUnderstoodLeavesTheNode)
{
    const TemporaryFolder folder;
    const std::string file = folder.write("x.toml", "[hop]\ndistance_km = 0\n");
    expectAnswer("", "setXpicPreamble 1 2");
    expectAnswer("kel-node: " + file + ":2:15: hop.distance_km: found 0, expected a number from 0.1 to 100\r\n",
                 "loadScenario " + file);
    expectAnswer("2\r\n", "getXpicPreamble 1");
}

TEST_F(TerminalTest, ServicesComeBackAfterAFewRefusals)
{
    expectAnswer("", "loadScenario services-down");
    for (int refusal = 0; refusal < 3; ++refusal)
    {
        terminal.type("getXpicPreamble 1\n");
        EXPECT_EQ(
            "getXpicPreamble 1\r\n"
            "[KEL.KDC.KelDebugCmd] level 1, src/Device/KelDebugCmd/private/KelDebugCmd:LINE getXpicPreamble: XPIC "
            "manager restarts\r\n"
            "kel-node: getXpicPreamble: failed\r\n"
            "kel-node> ",
            withoutSourceLines(terminal.readUntil(Prompt)));
    }
    expectAnswer("0\r\n", "getXpicPreamble 1");
}

TEST_F(TerminalTest, AnOpenQuotationMarkIsToldAndThePromptIsThereAgain)
{
    expectAnswer("kel-node: line: found a quotation mark alone, expected another one that closes it\r\n",
                 "help \"showLink");
    expectAnswer("0\r\n", "getXpicPreamble 1");
}

TEST_F(TerminalTest, TheEndOfInputLeavesOnALineOfItsOwn)
{
    terminal.type("\x04");
    EXPECT_EQ("\r\n", terminal.readToTheEnd());
    EXPECT_EQ(0, terminal.exitStatus());
}

} // namespace
