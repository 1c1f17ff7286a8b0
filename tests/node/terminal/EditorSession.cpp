#include "node/terminal/EditorSession.h"

#include <array>
#include <cerrno>
#include <fstream>
#include <system_error>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <gtest/gtest.h>

namespace
{

using node::terminal::Descriptor;

std::vector<std::string> environmentOf(const Surroundings& surroundings, const TemporaryFolder& home)
{
    home.write(".editrc", surroundings.editrc);
    return {"HOME=" + home.path(), "TERM=" + surroundings.terminalType, "LC_ALL=" + surroundings.locale};
}

} // namespace

EditorSession::Sockets EditorSession::makeSockets()
{
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data()) != 0 || fcntl(ends[0], F_SETFD, FD_CLOEXEC) != 0)
    {
        throw std::system_error(errno, std::generic_category(), "socketpair");
    }
    return {Descriptor(ends[0]), Descriptor(ends[1])};
}

EditorSession::EditorSession(const Surroundings& surroundings)
    : m_sockets(makeSockets()),
      m_terminal({KEL_EDITOR_HOST, std::to_string(m_sockets->there.get()),
                  surroundings.historyFile.empty() ? m_home.pathOf("history") : surroundings.historyFile},
                 environmentOf(surroundings, m_home), surroundings.size),
      m_screen(surroundings.size)
{
    expectScreen("host> |\n");
}

void EditorSession::type(const std::string& keys, const std::string& screen)
{
    type(keys);
    expectScreen(screen);
}

void EditorSession::type(const std::string& keys)
{
    m_terminal.type(keys);
}

void EditorSession::print(const std::string& line)
{
    order("print " + line);
}

void EditorSession::printWithoutLineEnd(const std::string& text)
{
    order("chop  " + text);
}

void EditorSession::go()
{
    order("go");
}

void EditorSession::order(const std::string& line)
{
    const std::string whole = line + '\n';
    EXPECT_EQ(static_cast<ssize_t>(whole.size()), write(m_sockets->here.get(), whole.data(), whole.size()));
}

void EditorSession::resize(TerminalSize size)
{
    m_screen.resize(size);
    m_terminal.resize(size);
}

bool EditorSession::showMore()
{
    const std::string more = m_terminal.readSome();
    m_screen.show(more);
    return !more.empty();
}

void EditorSession::expectScreen(const std::string& expected)
{
    while (m_screen.text() != expected && showMore())
    {
    }
    EXPECT_EQ(expected, m_screen.text());
}

void EditorSession::expectBeeps(int expected)
{
    while (m_screen.beeps() < expected && showMore())
    {
    }
    EXPECT_EQ(expected, m_screen.beeps());
}

std::string EditorSession::screenAtTheEnd()
{
    while (showMore())
    {
    }
    return m_screen.text();
}

int EditorSession::exitStatus()
{
    return m_terminal.exitStatus();
}

const Screen& EditorSession::screen() const
{
    return m_screen;
}

Terminal& EditorSession::terminal()
{
    return m_terminal;
}
