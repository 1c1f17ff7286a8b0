#include "endtoend/Terminal.h"

#include <cerrno>
#include <system_error>

#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "endtoend/Program.h"

Terminal::Terminal(std::vector<std::string> words) : m_program(forkpty(&m_terminal, nullptr, nullptr, nullptr))
{
    if (m_program == 0)
    {
        execv(words.front().c_str(), pointersTo(words).data());
        _exit(127);
    }
    if (m_program < 0)
    {
        throw std::system_error(errno, std::generic_category(), "forkpty");
    }
}

Terminal::~Terminal()
{
    close(m_terminal);
    if (m_program > 0)
    {
        waitpid(m_program, nullptr, 0); // closing its terminal has ended it
    }
}

void Terminal::type(const std::string& keys) const
{
    EXPECT_EQ(static_cast<ssize_t>(keys.size()), write(m_terminal, keys.data(), keys.size()));
}

std::string Terminal::readUntil(const std::string& end) const
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

std::string Terminal::readToTheEnd() const
{
    return readUntil(std::string("\0never written", 14));
}

int Terminal::exitStatus()
{
    int status = 0;
    EXPECT_EQ(m_program, waitpid(m_program, &status, 0));
    m_program = 0;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}
