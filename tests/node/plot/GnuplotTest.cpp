#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <iterator>
#include <string>

#include <fcntl.h>
#include <pthread.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include <gtest/gtest.h>

#include "node/plot/ChosenPath.h"
#include "node/plot/Gnuplot.h"
#include "node/plot/Plot.h"
#include "node/plot/SmallRun.h"
#include "node/terminal/Descriptor.h"
#include "support/ForeignSignals.h"
#include "support/TemporaryFolder.h"

namespace fs = std::filesystem;
using node::plot::PlotError;
using node::plot::runGnuplot;

namespace
{

const std::string NotInstalled =
    "gnuplot: found it not installed, expected it in PATH (on Debian: apt-get install gnuplot-nox)";

std::string errorOf(const std::function<void()>& call)
{
    try
    {
        call();
    }
    catch (const PlotError& error)
    {
        return error.what();
    }
    return "none";
}

/// A program of the test's own stands first in PATH as gnuplot.
class GnuplotTest : public ::testing::Test
{
protected:
    void fake(const std::string& lines)
    {
        fs::permissions(folder.write("gnuplot", "#!/bin/sh\n" + lines), fs::perms::owner_all);
    }

    static std::string error()
    {
        return errorOf([] { runGnuplot(""); });
    }

    TemporaryFolder folder;
    ChosenPath path{folder.path() + ":" + ChosenPath::current()};
};

TEST_F(GnuplotTest, TheScriptComesOnStandardInputAndTheDrawingGoesToStandardOutput)
{
    fake("cat; cat >&2 < /dev/null");
    const std::string script(300'000, 'x');
    EXPECT_EQ(script, runGnuplot(script));
}

TEST_F(GnuplotTest, SettingsOfTheUserStayAway)
{
    fake(R"(echo "$@")");
    EXPECT_EQ("--default-settings\n", runGnuplot(""));
    EXPECT_EQ("--default-settings --version\n", runGnuplot("", {"--version"}));
}

TEST_F(GnuplotTest, LocaleAndTerminalStayAwayAndTheRestIsOurs)
{
    fake(R"(echo "$LC_ALL ${GNUTERM-none} $KEL_PLOT_TEST")");
    setenv("LC_ALL", "de_DE.UTF-8", 1);
    setenv("GNUTERM", "x11", 1);
    setenv("KEL_PLOT_TEST", "ours", 1);
    const std::string output = runGnuplot("");
    unsetenv("LC_ALL");
    unsetenv("GNUTERM");
    unsetenv("KEL_PLOT_TEST");
    EXPECT_EQ("C none ours\n", output);
}

TEST_F(GnuplotTest, SignalsThatWeHoldBackReachIt)
{
    fake("exec grep SigBlk /proc/self/status");
    sigset_t interrupt{};
    sigset_t before{};
    sigemptyset(&interrupt);
    sigaddset(&interrupt, SIGINT);
    pthread_sigmask(SIG_BLOCK, &interrupt, &before);
    const std::string output = runGnuplot("");
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    EXPECT_EQ("SigBlk:\t0000000000000000\n", output);
}

TEST_F(GnuplotTest, SignalsThatWeHandleDoNotEndTheWait)
{
    const std::string gate = folder.pathOf("gate");
    ASSERT_EQ(0, mkfifo(gate.c_str(), 0600));
    const node::terminal::Descriptor key(open(gate.c_str(), O_RDWR | O_CLOEXEC));
    fake("read -r word <" + gate + "; cat; echo $word");
    const ForeignSignals signals([&] { EXPECT_EQ(5, write(key.get(), "over\n", 5)); });
    EXPECT_EQ("drawn over\n", runGnuplot("drawn "));
}

TEST_F(GnuplotTest, NeitherMuchOutputNorManyErrorsMakeItWait)
{
    fake("head -c 1000000 /dev/zero >&2; head -c 1000000 /dev/zero");
    EXPECT_EQ(1'000'000, runGnuplot(std::string(1'000'000, '\n')).size());
}

TEST_F(GnuplotTest, AnErrorIsTheFirstLineThatItSays)
{
    fake(R"(printf '\n  no fonts here  \nand more\n' >&2; exit 1)");
    EXPECT_EQ("gnuplot: no fonts here  ", error());
}

TEST_F(GnuplotTest, CommandsAndWarningsAreNoErrors)
{
    fake(R"(echo "
line 0: warning: iconv failed

gnuplot> set terminal
                ^
         line 0: unknown terminal" >&2; exit 1)");
    EXPECT_EQ("gnuplot: line 0: unknown terminal", error());
    fake(R"(echo "
multiplot> plot
           ^
           line 7: no functions or data to plot" >&2; exit 1)");
    EXPECT_EQ("gnuplot: line 7: no functions or data to plot", error());
}

TEST_F(GnuplotTest, WhatFailsInSilenceIsToldByItsEnd)
{
    fake("echo half; exit 3");
    EXPECT_EQ("gnuplot: found exit status 3, expected a drawing", error());
    fake("echo 'warning: slow' >&2; exit 1");
    EXPECT_EQ("gnuplot: found exit status 1, expected a drawing", error());
    fake("kill -9 $$");
    EXPECT_EQ("gnuplot: found it ended by signal 9, expected a drawing", error());
    fake("exit 0");
    EXPECT_EQ("gnuplot: found no output, expected a drawing", error());
}

TEST_F(GnuplotTest, WhatItSaysComesBeforeItsEnd)
{
    fake("echo out of memory >&2; kill -9 $$");
    EXPECT_EQ("gnuplot: out of memory", error());
}

TEST_F(GnuplotTest, WarningsDoNotHinderADrawing)
{
    fake("echo warned >&2; echo drawn");
    EXPECT_EQ("drawn\n", runGnuplot(""));
}

TEST_F(GnuplotTest, NothingIsLeftOpenOrRunning)
{
    const auto openFiles = []
    { return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator()); };
    const auto before = openFiles();
    fake("readlink /proc/$$/fd/* | grep -c memfd");
    EXPECT_EQ("3\n", runGnuplot("")); // its standard streams and no others
    fake("exit 1");
    EXPECT_NE("none", error());
    fs::remove(folder.pathOf("gnuplot"));
    const ChosenPath none(folder.path());
    EXPECT_EQ(NotInstalled, error());
    EXPECT_EQ(before, openFiles());
    EXPECT_EQ(-1, waitpid(-1, nullptr, WNOHANG));
    EXPECT_EQ(ECHILD, errno);
}

TEST_F(GnuplotTest, WithoutItInPathTheWayToGetItIsTold)
{
    const ChosenPath none(folder.path());
    EXPECT_EQ(NotInstalled, errorOf(node::plot::expectGnuplot));
    EXPECT_EQ(NotInstalled, errorOf([] { node::plot::drawText(small_run::rain(), {}); }));
    EXPECT_EQ(NotInstalled, errorOf([] { node::plot::drawPicture(small_run::rain(), "run.png"); }));
    folder.write("gnuplot", "no program");
    EXPECT_EQ(NotInstalled, errorOf(node::plot::expectGnuplot));
}

TEST_F(GnuplotTest, AnInstalledOneIsAsExpected)
{
    EXPECT_EQ("none", errorOf(node::plot::expectGnuplot));
    fake("exit 1");
    EXPECT_EQ("gnuplot: found exit status 1, expected a drawing", errorOf(node::plot::expectGnuplot));
}

/// Ends the process, with 0 where all streams of a program are in place although we have none up to that one.
void drawWithout(int lastStream)
{
    for (int stream = 0; stream <= lastStream; ++stream)
    {
        close(stream);
    }
    const bool draws = runGnuplot("yes\n") == "yes\n";
    const bool complains = errorOf([] { runGnuplot("no\n"); }) == "gnuplot: complaint";
    std::_Exit(draws && complains ? 0 : 1);
}

TEST_F(GnuplotTest, AProcessWithoutStandardStreamsDraws)
{
    fake(R"(read -r word; echo "$word"; echo complaint >&2; test "$word" = yes)");
    EXPECT_EXIT(drawWithout(0), ::testing::ExitedWithCode(0), "");
    EXPECT_EXIT(drawWithout(1), ::testing::ExitedWithCode(0), "");
    EXPECT_EXIT(drawWithout(2), ::testing::ExitedWithCode(0), "");
}

} // namespace
