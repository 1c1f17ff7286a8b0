#include <csignal>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "endtoend/Program.h"
#include "support/TemporaryFolder.h"
#include "support/Terminal.h"

namespace
{

/// A dumb terminal, where what is seen is what was written; time stands still.
class TerminalTest : public ::testing::Test
{
protected:
    TerminalTest()
    {
        EXPECT_EQ("A simulated node. \"help\" lists commands, \"?\" what may come next, \"exit\" leaves.\r\n" + prompt,
                  terminal.readUntil(prompt));
    }

    /// Types a line and expects what appears, up to the next prompt.
    void expectAnswer(const std::string& answer, const std::string& line)
    {
        terminal.type(line + "\n");
        EXPECT_EQ(line + "\r\n" + answer + prompt, terminal.readUntil(prompt));
    }

    /// Until the editor has left the line, the terminal shows nothing of what is typed.
    void awaitEcho() const
    {
        constexpr int Enough = 10'000'000;
        for (int looks = 0; looks < Enough && (terminal.modes().c_lflag & ECHO) == 0; ++looks)
        {
            std::this_thread::yield();
        }
    }

    void expectEnd()
    {
        EXPECT_EQ("", terminal.readToTheEnd());
        EXPECT_EQ(0, terminal.exitStatus());
    }

    TemporaryFolder home;
    std::string prompt = "kel-node 0:00:00.0> ";
    Terminal terminal{{KEL_NODE, "--clock", "told"}, std::vector<std::string>{"TERM=dumb", "HOME=" + home.path()}};
};

TEST_F(TerminalTest, ACommandIsAnsweredAndExitLeaves)
{
    expectAnswer("0\r\n", "getXpicPreamble 1");
    expectAnswer("", "setXpicPreamble 1 2");
    expectAnswer("2\r\n", "getXpicPreamble 1");
    expectAnswer("", "");
    terminal.type("exit\n");
    EXPECT_EQ("exit\r\n", terminal.readUntil("\n"));
    expectEnd();
}

TEST_F(TerminalTest, ThePromptTellsTheTimeOfTheNode)
{
    prompt = "kel-node 1:00:00.0> ";
    expectAnswer("", "advance 1h");
    expectAnswer("0\r\n", "getXpicPreamble 1");
}

TEST_F(TerminalTest, ThePromptIsThereAgainAfterAFailure)
{
    expectAnswer("kel-node: command: found \"nonsense\", expected one that \"help\" lists\r\n", "nonsense");
    expectAnswer("kel-node: setPpsSource: failed\r\n", "setPpsSource 1 3 0");
    expectAnswer("0\r\n", "getXpicPreamble 1");
    terminal.type("exit\n");
    EXPECT_EQ("exit\r\n", terminal.readUntil("\n"));
    expectEnd();
}

TEST_F(TerminalTest, AnErrorStandsOnALineOfItsOwn)
{
    expectAnswer("", "addFault tiManageXpic text=\"no answer\" calls=1");
    expectAnswer("no answer\r\nkel-node: getXpicStatus: failed\r\n", "getXpicStatus 1");
}

TEST_F(TerminalTest, AScenarioIsLoadedAfterOneThatDidNotStart)
{
    expectAnswer("", "setXpicPreamble 1 2");
    const std::string running = prompt;
    prompt = "kel-node (no node)> ";
    expectAnswer("kel-node: module KelDebugCmd: its constructor threw: registry is full\r\n",
                 "loadScenario start-registration-throws");
    const std::string noNode = "kel-node: node: found none running, expected one; \"loadScenario\" starts one\r\n";
    expectAnswer(noNode, "getXpicPreamble 1");
    expectAnswer(noNode, "showLink");
    prompt = running;
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
        EXPECT_EQ("getXpicPreamble 1\r\n"
                  "0:00:00.0 [KEL.KDC.KelDebugCmd] level 1, src/Device/KelDebugCmd/private/KelDebugCmd:LINE "
                  "getXpicPreamble: XPIC manager restarts\r\n"
                  "kel-node: getXpicPreamble: failed\r\n" +
                      prompt,
                  withoutSourceLines(terminal.readUntil(prompt)));
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
    EXPECT_EQ("^D\r\n", terminal.readUntil("\n"));
    expectEnd();
}

TEST_F(TerminalTest, CtrlCDropsTheLineAndLeavesTheNode)
{
    expectAnswer("", "setXpicPreamble 1 2");
    const std::string typed = "setXpicPreamble 1 3";
    terminal.type(typed);
    EXPECT_EQ(typed, terminal.readUntil(typed));
    terminal.type("\x03");
    EXPECT_EQ("^C\r\n" + prompt, terminal.readUntil(prompt));
    expectAnswer("2\r\n", "getXpicPreamble 1");
}

TEST_F(TerminalTest, CtrlCEndsALongCommandWithWhatIsDone)
{
    terminal.type("advance 100h\n");
    EXPECT_EQ("advance 100h\r\n", terminal.readUntil("\n"));
    awaitEcho();
    terminal.type("\x03");
    const std::string complaint = "^C\r\nkel-node: advance: interrupted\r\n";
    EXPECT_EQ(complaint, terminal.readUntil("interrupted\r\n"));
    prompt = "> ";
    EXPECT_NE("kel-node 100:00:00.0> ", terminal.readUntil(prompt));
    terminal.type("getXpicPreamble 1\n");
    EXPECT_EQ("getXpicPreamble 1\r\n0\r\n", terminal.readUntil("0\r\n"));
}

TEST_F(TerminalTest, CtrlCEndsAWatchAndLeavesTheNode)
{
    expectAnswer("", "setXpicPreamble 1 2");
    terminal.type("watch -n 100h getXpicPreamble 1\n");
    EXPECT_EQ("watch -n 100h getXpicPreamble 1\r\n"
              "Every 360000s: getXpicPreamble 1 at 0:00:00.0\r\n"
              "  2\r\n",
              terminal.readUntil("  2\r\n"));
    terminal.type("\x03");
    EXPECT_EQ("^C\r\n" + prompt, terminal.readUntil(prompt));
    expectAnswer("2\r\n", "getXpicPreamble 1");
}

TEST_F(TerminalTest, ASignalThatEndsTheNodeLeavesTheTerminalAsItWas)
{
    const auto describe = [](const termios& modes) {
        return std::vector<tcflag_t>{modes.c_iflag, modes.c_oflag, modes.c_cflag, modes.c_lflag};
    };
    const auto before = describe(Terminal({"/bin/true"}).modes());
    for (const int signal : {SIGHUP, SIGQUIT, SIGTERM})
    {
        Terminal another({KEL_NODE, "--clock", "told"}, std::vector<std::string>{"TERM=dumb", "HOME=" + home.path()});
        another.readUntil(prompt);
        EXPECT_NE(before, describe(another.modes()));
        another.signal(signal);
        EXPECT_EQ("\r\n", another.readToTheEnd()) << signal;
        EXPECT_EQ(128 + signal, another.exitStatus());
        EXPECT_EQ(before, describe(another.modes())) << signal;
    }
}

TEST_F(TerminalTest, ADumbTerminalGetsNoEscapeSequences)
{
    terminal.type("watch -n 0.1 -c 3 showLink\nnonsense\nexit\n");
    EXPECT_EQ(std::string::npos, terminal.readToTheEnd().find('\x1B'));
}

/// A shell, which lets the program go on that was stopped while a command was typed.
class StoppedProgramTest : public ::testing::Test
{
protected:
    StoppedProgramTest()
    {
        bash.readUntil("$ ");
        bash.type(std::string(KEL_NODE) + " --clock told\n");
        bash.readUntil("0:00:00.0>");
        bash.type("getXpicP");
        bash.readUntil("getXpicP");
        atThePrompt = bash.modes().c_lflag;
    }

    /// After a stop: the shell has the terminal as it wants it, and gives it back.
    void expectTheLineAgain() const
    {
        bash.readUntil("Stopped");
        bash.readUntil("$ ");
        bash.type("stty sane; stty -a | grep -o ' icanon'\n");
        bash.readUntil("\n icanon");
        bash.type("fg\n");
        bash.readUntil("getXpicP"); // the line is drawn anew
        EXPECT_EQ(atThePrompt, bash.modes().c_lflag);
        bash.type("\t1\n");
        EXPECT_TRUE(bash.readUntil("\n0\r\n").ends_with("\n0\r\n"));
        bash.type("exit\n");
        bash.readUntil("$ ");
    }

    TemporaryFolder home;
    Terminal bash{{"/bin/bash", "--norc", "--noprofile"},
                  {{"HOME=" + home.path(), "TERM=xterm", "PS1=$ ", "LC_ALL=C.UTF-8", "PATH=/usr/bin:/bin",
                    "INPUTRC=" + home.write("inputrc", "set enable-bracketed-paste off\n")}}};
    tcflag_t atThePrompt = 0;
};

TEST_F(StoppedProgramTest, TheLineIsThereAgainAfterCtrlZ)
{
    bash.type("\x1A");
    expectTheLineAgain();
}

TEST_F(StoppedProgramTest, TheLineIsThereAgainAfterAStopThatNobodyCanHold)
{
    bash.signalForeground(SIGSTOP);
    expectTheLineAgain();
}

TEST(PromptWithoutDescriptorsTest, IsToldAndEndsTheProgram)
{
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "The sanitizers need descriptors of their own.";
#endif
    // Three standard streams, and one to load the program with. The shell may have inherited more: it closes the first.
    Terminal terminal({"/bin/sh", "-c", R"(exec 3>&-; ulimit -n 4; exec "$0")", KEL_NODE},
                      std::vector<std::string>{"TERM=dumb"});
    EXPECT_EQ("kel-node: signalfd: Too many open files\r\n", terminal.readToTheEnd());
    EXPECT_EQ(1, terminal.exitStatus());
}

} // namespace
