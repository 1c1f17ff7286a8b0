#include <csignal>
#include <vector>

#include <gtest/gtest.h>

#include "node/terminal/EditorSession.h"

namespace
{

std::vector<tcflag_t> describe(const termios& modes)
{
    return {modes.c_iflag, modes.c_oflag, modes.c_cflag, modes.c_lflag};
}

TEST(EndingSignalTest, TheLineIsLeftAndTheTerminalRestoredBeforeTheSignalEndsTheProgram)
{
    const auto before = describe(Terminal({"/bin/true"}).modes());
    for (const int signal : {SIGQUIT, SIGTERM})
    {
        EditorSession session;
        session.type("one", "host> one|\n");
        EXPECT_NE(before, describe(session.terminal().modes()));
        session.terminal().signal(signal);
        EXPECT_EQ("host> one\n|\n", session.screenAtTheEnd());
        EXPECT_EQ(128 + signal, session.exitStatus());
        EXPECT_EQ(before, describe(session.terminal().modes()));
    }
}

TEST(EndingSignalTest, ALineThatIsBeingSearchedIsLeftToo)
{
    const auto before = describe(Terminal({"/bin/true"}).modes());
    EditorSession session;
    session.type("one\r" + key::CtrlR + "n", "host> one\n<one>\nhost> o|ne\nbck:n\n");
    session.terminal().signal(SIGTERM);
    session.screenAtTheEnd();
    EXPECT_EQ(128 + SIGTERM, session.exitStatus());
    EXPECT_EQ(before, describe(session.terminal().modes()));
}

TEST(EndingSignalTest, BetweenTwoLinesItActsAtOnce)
{
    EditorSession session;
    session.type("hold\r", "host> hold\nholding\n|\n");
    session.terminal().signal(SIGTERM);
    EXPECT_EQ(128 + SIGTERM, session.exitStatus());
}

TEST(EndingSignalTest, OneThatTheProgramIgnoresLeavesTheLine)
{
    EditorSession session;
    session.type("one", "host> one|\n");
    session.terminal().signal(SIGHUP);
    session.type(" two\r", "host> one two\n<one two>\nhost> |\n");
}

} // namespace
