#include "node/terminal/Keyboard.h"

#include <array>
#include <csignal>
#include <set>
#include <string>
#include <system_error>

#include <sys/resource.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "node/terminal/TypedInput.h"
#include "support/ForeignSignals.h"

namespace
{

using node::terminal::Keyboard;

/// Takes a signal that waits to act, so that it does not.
void takeBack(int signal)
{
    sigset_t signals{};
    sigemptyset(&signals);
    sigaddset(&signals, signal);
    int taken = 0;
    EXPECT_EQ(0, sigwait(&signals, &taken));
    EXPECT_EQ(signal, taken);
}

class KeyboardTest : public ::testing::Test
{
protected:
    TypedInput input;
    Keyboard keyboard;
    wchar_t letter = L'-';
};

TEST_F(KeyboardTest, LettersComeOneByOneAndThenTheEnd)
{
    input.type("ab");
    EXPECT_EQ(Keyboard::Event::Letter, keyboard.wait(letter));
    EXPECT_EQ(L'a', letter);
    EXPECT_EQ(Keyboard::Event::Letter, keyboard.wait(letter));
    EXPECT_EQ(L'b', letter);
    input.end();
    EXPECT_EQ(Keyboard::Event::End, keyboard.wait(letter));
}

TEST_F(KeyboardTest, SignalThatEndsTheProgramEndsTheLineAndWaits)
{
    for (const int signal : {SIGHUP, SIGQUIT, SIGTERM})
    {
        const Keyboard::Line line(keyboard);
        input.type("a");
        std::raise(signal);
        EXPECT_EQ(Keyboard::Event::End, keyboard.wait(letter));
        takeBack(signal);
        EXPECT_EQ(Keyboard::Event::Letter, keyboard.wait(letter));
    }
}

TEST_F(KeyboardTest, CtrlZIsToldAndWaitsForWhoeverStops)
{
    const Keyboard::Line line(keyboard);
    std::raise(SIGTSTP);
    EXPECT_EQ(Keyboard::Event::Stopping, keyboard.wait(letter));
    takeBack(SIGTSTP);
}

TEST_F(KeyboardTest, SignalThatIsNotItsOwnDoesNotEndTheWait)
{
    const ForeignSignals signals([&] { keyboard.wake(); });
    EXPECT_EQ(Keyboard::Event::Woken, keyboard.wait(letter));
}

/// What a keyboard says of itself when the process may open no more descriptors than these.
std::string withDescriptors(rlim_t count)
{
    rlimit before{};
    getrlimit(RLIMIT_NOFILE, &before);
    const rlimit limit{count, before.rlim_max};
    setrlimit(RLIMIT_NOFILE, &limit);
    std::string said;
    try
    {
        const Keyboard keyboard;
    }
    catch (const std::system_error& error)
    {
        said = error.code() == std::errc::too_many_files_open ? error.what() : "another reason";
    }
    setrlimit(RLIMIT_NOFILE, &before);
    return said;
}

TEST(KeyboardWithoutDescriptorsTest, SaysWhatItCouldNotOpen)
{
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "The sanitizers need descriptors of their own.";
#endif
    std::set<std::string> failures;
    rlim_t count = 0;
    for (std::string said; !(said = withDescriptors(count)).empty(); ++count)
    {
        failures.insert(said);
    }
    EXPECT_EQ((std::set<std::string>{"eventfd: Too many open files", "signalfd: Too many open files"}), failures);
}

} // namespace
