#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "endtoend/Program.h"
#include "support/Screen.h"
#include "support/TemporaryFolder.h"
#include "support/Terminal.h"

namespace
{

/// A person at a terminal with colours, who sees a screen.
class Person
{
public:
    Person(const std::vector<std::string>& arguments, const std::vector<std::string>& environment,
           TerminalSize size = {})
        : m_terminal(wordsOf(arguments), environment, size), m_screen(size)
    {
    }

    void type(const std::string& keys)
    {
        m_terminal.type(keys);
    }

    /// Waits until this is what is seen.
    void expectScreen(const std::string& expected)
    {
        while (m_screen.text() != expected && showMore())
        {
        }
        EXPECT_EQ(expected, m_screen.text());
    }

    int statusAtTheEnd()
    {
        while (showMore())
        {
        }
        return m_terminal.exitStatus();
    }

    std::string screen() const
    {
        return m_screen.text();
    }

    /// All that was written so far.
    const std::string& bytes() const
    {
        return m_bytes;
    }

private:
    static std::vector<std::string> wordsOf(const std::vector<std::string>& arguments)
    {
        std::vector<std::string> words = {KEL_NODE};
        words.insert(words.end(), arguments.begin(), arguments.end());
        return words;
    }

    bool showMore()
    {
        const std::string more = m_terminal.readSome();
        m_screen.show(more);
        m_bytes += more;
        return !more.empty();
    }

    Terminal m_terminal;
    Screen m_screen;
    std::string m_bytes;
};

class ScreenTest : public ::testing::Test
{
protected:
    Person person(const std::vector<std::string>& arguments, const std::vector<std::string>& variables = {},
                  TerminalSize size = {})
    {
        std::vector<std::string> environment = {"HOME=" + home.path(), "TERM=xterm-256color", "LC_ALL=C.UTF-8",
                                                "PATH=/usr/bin:/bin"};
        environment.insert(environment.end(), variables.begin(), variables.end());
        return {arguments, environment, size};
    }

    std::string greeting = "A simulated node. \"help\" lists commands, \"?\" what may come next, \"exit\" leaves.\n";
    TemporaryFolder home;
};

TEST_F(ScreenTest, TabAndQuestionMarkHelpToTypeACommand)
{
    Person user = person({"--clock", "told"});
    user.expectScreen(greeting + "kel-node 0:00:00.0> |\n");
    user.type("setXpicC\t");
    user.expectScreen(greeting + "kel-node 0:00:00.0> setXpicCable |\n");
    user.type("1 ?");
    user.expectScreen(greeting + "kel-node 0:00:00.0> setXpicCable 1\n"
                                 "<state>  on or off: whether it is plugged\n"
                                 "  off  on\n"
                                 "kel-node 0:00:00.0> setXpicCable 1 |\n");
    user.type("of\t\rexit\r");
    EXPECT_EQ(0, user.statusAtTheEnd());
    EXPECT_NE(std::string::npos, user.screen().find("setXpicCable 1 off\nkel-node 0:00:00.0> exit\n"));
}

TEST_F(ScreenTest, LinesAreRememberedForTheNextRunAndForTheirOwnerAlone)
{
    Person first = person({"--clock", "told"});
    first.type("getXpicPreamble 1\rexit\r");
    EXPECT_EQ(0, first.statusAtTheEnd());

    const std::filesystem::path file = home.pathOf(".local/state/kel-node/history");
    EXPECT_EQ(std::filesystem::perms(0600), std::filesystem::status(file).permissions());

    Person second = person({"--clock", "told"});
    second.expectScreen(greeting + "kel-node 0:00:00.0> |\n");
    second.type("\x1B[A\x1B[A");
    second.expectScreen(greeting + "kel-node 0:00:00.0> getXpicPreamble 1|\n");
}

TEST_F(ScreenTest, AWatchDrawsEachRoundOverTheOneBeforeAndMarksWhatChanged)
{
    Person user = person({"-s", "rain-front", "watch", "-n", "1min", "-c", "1", "getBcmModemStatus", "1"});
    EXPECT_EQ(0, user.statusAtTheEnd());
    EXPECT_EQ("Every 60s: getBcmModemStatus 1 at 0:00:00.0\n"
              "  Modem status of radio channel 1\n"
              "  Lock:          locked\n"
              "  Symbol rate:   25000 kBd\n"
              "  Constellation: 4096 points\n"
              "  Level:         -43.02 dBm\n"
              "  SNIR:          43.91 dB\n"
              "  DPD:           running\n"
              "  XPIC:          acquired\n"
              "|\n",
              user.screen());

    Person longer = person({"-s", "rain-front", "watch", "-n", "0.1", "-c", "3", "getBcmModemStatus", "1"});
    EXPECT_EQ(0, longer.statusAtTheEnd());
    EXPECT_EQ("Every 0.1s: getBcmModemStatus 1 at 0:00:00.2\n"
              "  Modem status of radio channel 1\n"
              "  Lock:          locked\n"
              "  Symbol rate:   25000 kBd\n"
              "  Constellation: 4096 points\n"
              "* Level:         -43.08 dBm\n"
              "* SNIR:          43.90 dB\n"
              "  DPD:           running\n"
              "  XPIC:          acquired\n"
              "|\n",
              longer.screen());
}

TEST_F(ScreenTest, AWatchIsCutToTheScreen)
{
    Person user = person({"watch", "-c", "1", "getCtStatus", "1"}, {}, {.rows = 6, .columns = 24});
    EXPECT_EQ(0, user.statusAtTheEnd());
    EXPECT_EQ("Every 2s: getCtStatus 1\n"
              "\n"
              "  ======================\n"
              "  CT info channel 1\n"
              "  ... 68 more lines\n"
              "|\n",
              user.screen());
}

TEST_F(ScreenTest, CtrlCEndsAWatchWithTheStatusOfItsLastRound)
{
    Person done = person({"watch", "-n", "100h", "getXpicPreamble", "1"});
    done.expectScreen("Every 360000s: getXpicPreamble 1 at 0:00:00.0\n  0\n|\n");
    done.type("\x03");
    EXPECT_EQ(0, done.statusAtTheEnd());

    Person failed = person({"watch", "-n", "100h", "setPpsSource", "1", "3", "0"});
    failed.expectScreen("Every 360000s: setPpsSource 1 3 0 at 0:00:00.0\n  kel-node: setPpsSource: failed\n|\n");
    failed.type("\x03");
    EXPECT_EQ(1, failed.statusAtTheEnd());
}

TEST_F(ScreenTest, ColoursAreThereWhereTheyAreWanted)
{
    for (const auto& [variables, coloured] :
         {std::pair<std::vector<std::string>, bool>{{}, true}, {{"NO_COLOR=1"}, false}, {{"NO_COLOR="}, true}})
    {
        Person user = person({"--clock", "told", "nonsense"}, variables);
        EXPECT_EQ(2, user.statusAtTheEnd());
        EXPECT_EQ(coloured, user.bytes().starts_with("\x1B[31mkel-node: command:")) << user.bytes();
    }
}

TEST_F(ScreenTest, WithoutColoursAWatchStillMarksItsLines)
{
    Person user = person({"watch", "-n", "0.1", "-c", "2", "showLink"}, {"NO_COLOR=1"}, {.rows = 6, .columns = 40});
    EXPECT_EQ(0, user.statusAtTheEnd());
    EXPECT_TRUE(user.screen().starts_with("Every 0.1s: showLink at 0:00:00.1\n"
                                          "* Time:            0:00:00.1\n"
                                          "  Distance:        10 km\n"))
        << user.screen();
    EXPECT_EQ(std::string::npos, user.bytes().find("\x1B[7m"));
}

TEST_F(ScreenTest, APlotFitsTheTerminal)
{
    Person user = person({"-s", "rain-front", "plot", "5min"}, {}, {.rows = 40, .columns = 100});
    EXPECT_EQ(0, user.statusAtTheEnd());
    EXPECT_NE(std::string::npos, user.screen().find("Level (dBm)")) << user.screen();
    EXPECT_NE(std::string::npos, user.screen().find("\n 2048QAM |")) << user.screen();
}

} // namespace
