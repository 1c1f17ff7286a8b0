#include <array>
#include <cerrno>
#include <string>
#include <system_error>

#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

namespace
{

/// The program at a terminal of its own. What a person sees there is what it wrote and what was typed.
class Terminal
{
public:
    Terminal() : m_program(forkpty(&m_terminal, nullptr, nullptr, nullptr))
    {
        if (m_program == 0)
        {
            execl(KEL_NODE, KEL_NODE, nullptr);
            _exit(127);
        }
        if (m_program < 0)
        {
            throw std::system_error(errno, std::generic_category(), "forkpty");
        }
    }

    ~Terminal()
    {
        close(m_terminal);
        if (m_program > 0)
        {
            waitpid(m_program, nullptr, 0); // closing its terminal has ended it
        }
    }

    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    void type(const std::string& keys) const
    {
        EXPECT_EQ(static_cast<ssize_t>(keys.size()), write(m_terminal, keys.data(), keys.size()));
    }

    /// What appears up to and with the next `end`, or up to the program's end.
    std::string readUntil(const std::string& end)
    {
        constexpr int Patience_ms = 10'000;
        constexpr std::size_t Enough = 100'000;
        std::string seen;
        pollfd ready{m_terminal, POLLIN, 0};
        while (!seen.ends_with(end) && seen.size() < Enough && poll(&ready, 1, Patience_ms) == 1)
        {
            char character = 0;
            if (read(m_terminal, &character, 1) != 1)
            {
                break;
            }
            seen += character;
        }
        return seen;
    }

    /// What appears until the program ends.
    std::string readToTheEnd()
    {
        return readUntil(std::string("\0never written", 14));
    }

    /// Waits for the program's end.
    int exitStatus()
    {
        int status = 0;
        EXPECT_EQ(m_program, waitpid(m_program, &status, 0));
        m_program = 0;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

private:
    int m_terminal = -1;
    pid_t m_program;
};

constexpr const char* Prompt = "kel-node> ";

class TerminalTest : public ::testing::Test
{
protected:
    TerminalTest()
    {
        EXPECT_EQ("A simulated node with two radio channels. \"help\" lists the commands, \"exit\" leaves.\r\n"
                  "kel-node> ",
                  terminal.readUntil(Prompt));
    }

    /// Types a line and expects what appears, up to the next prompt.
    void expectAnswer(const std::string& answer, const std::string& line)
    {
        terminal.type(line + "\n");
        EXPECT_EQ(line + "\r\n" + answer + Prompt, terminal.readUntil(Prompt));
    }

    Terminal terminal;
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

TEST_F(TerminalTest, TheEndOfInputLeavesOnALineOfItsOwn)
{
    terminal.type("\x04");
    EXPECT_EQ("\r\n", terminal.readToTheEnd());
    EXPECT_EQ(0, terminal.exitStatus());
}

} // namespace
