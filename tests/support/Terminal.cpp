#include "support/Terminal.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <system_error>

#include <poll.h>
#include <pty.h>
#include <sys/ioctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

namespace
{

/// How long to wait for what is late, or never comes.
constexpr int Patience_ms = 10'000;

std::vector<char*> pointersTo(std::vector<std::string>& texts)
{
    std::vector<char*> pointers(texts.size() + 1);
    std::transform(texts.begin(), texts.end(), pointers.begin(), [](std::string& text) { return text.data(); });
    return pointers;
}

winsize toWinsize(TerminalSize size)
{
    return {size.rows, size.columns, 0, 0};
}

} // namespace

Terminal::Terminal(std::vector<std::string> words, std::optional<std::vector<std::string>> environment,
                   TerminalSize size)
{
    // Made before the program is: behind fork() memory is not to be asked for.
    const std::vector<char*> arguments = pointersTo(words);
    const std::vector<char*> variables = environment ? pointersTo(*environment) : std::vector<char*>();
    const winsize window = toWinsize(size);
    const rlimit nothing{};
    m_program = forkpty(&m_terminal, nullptr, nullptr, &window);
    if (m_program == 0)
    {
        setrlimit(RLIMIT_CORE, &nothing); // a signal that ends it leaves no file behind
        execve(words.front().c_str(), arguments.data(), environment ? variables.data() : environ);
        _exit(127);
    }
    if (m_program < 0)
    {
        throw std::system_error(errno, std::generic_category(), "forkpty");
    }
}

Terminal::~Terminal()
{
    hangUp();
    if (m_program > 0)
    {
        exitStatus();
    }
}

void Terminal::type(const std::string& keys) const
{
    EXPECT_EQ(static_cast<ssize_t>(keys.size()), write(m_terminal, keys.data(), keys.size()));
}

std::string Terminal::readSome() const
{
    std::array<char, 4096> part{};
    pollfd ready{m_terminal, POLLIN, 0};
    const ssize_t size = poll(&ready, 1, Patience_ms) == 1 ? read(m_terminal, part.data(), part.size()) : 0;
    return {part.data(), static_cast<std::size_t>(std::max<ssize_t>(size, 0))};
}

std::string Terminal::readUntil(const std::string& end) const
{
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

void Terminal::resize(TerminalSize size) const
{
    const winsize window = toWinsize(size);
    EXPECT_EQ(0, ioctl(m_terminal, TIOCSWINSZ, &window));
}

termios Terminal::modes() const
{
    termios modes{};
    EXPECT_EQ(0, tcgetattr(m_terminal, &modes));
    return modes;
}

void Terminal::signalForeground(int signal) const
{
    kill(-tcgetpgrp(m_terminal), signal);
}

void Terminal::signal(int signal) const
{
    EXPECT_EQ(0, kill(m_program, signal));
}

void Terminal::hangUp()
{
    if (m_terminal >= 0)
    {
        close(m_terminal);
        m_terminal = -1;
    }
}

int Terminal::exitStatus()
{
    const auto program = static_cast<int>(syscall(SYS_pidfd_open, m_program, 0));
    pollfd ended{program, POLLIN, 0};
    if (poll(&ended, 1, Patience_ms) != 1)
    {
        ADD_FAILURE() << "the program does not end";
        kill(m_program, SIGKILL);
    }
    close(program);
    int status = 0;
    EXPECT_EQ(m_program, waitpid(m_program, &status, 0));
    m_program = 0;
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}
