#include <clocale>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "node/output/WatchView.h"

using node::output::Answer;
using node::output::Look;
using node::output::TextOutput;
using node::output::WatchView;
using node::radio::Ticks;
using node::terminal::Size;

namespace
{

/// Two rounds of a watch, the second of which is looked at, with ~ for the escape character.
class WatchLettersTest : public ::testing::Test
{
protected:
    ~WatchLettersTest() override
    {
        std::setlocale(LC_CTYPE, "C");
    }

    std::string secondRound(const std::string& first, const std::string& second)
    {
        std::ostringstream output;
        TextOutput text(output, output, look);
        WatchView view({{"show", "\xC3\xA4"}, Ticks(20), {}}, text, look);
        Answer answer;
        answer.outcome = {0, first};
        view.show(answer);
        output.str("");
        answer.outcome = {0, second};
        view.show(answer);
        std::string round = output.str();
        for (char& c : round)
        {
            c = c == '\033' ? '~' : c;
        }
        return round;
    }

    Look look;
};

TEST_F(WatchLettersTest, ALetterOfSeveralBytesIsReversedWhole)
{
    std::setlocale(LC_CTYPE, "C.UTF-8");
    look.colours = true;
    EXPECT_EQ("\nEvery 2s: show \xC3\xA4 at 0:00:00.0\n* r~[7m\xC3\xA4~[0mz\n",
              secondRound("r\xC3\xB6z\n", "r\xC3\xA4z\n"));
    EXPECT_EQ("\nEvery 2s: show \xC3\xA4 at 0:00:00.0\n* r~[7m\xC3\xA4~[0mz\n", secondRound("roz\n", "r\xC3\xA4z\n"));
}

TEST_F(WatchLettersTest, BytesThatAreNoLettersArePrintedAsTheyAre)
{
    look.colours = true;
    for (const char* const locale : {"C", "C.UTF-8"})
    {
        std::setlocale(LC_CTYPE, locale);
        EXPECT_EQ("\nEvery 2s: show \xC3\xA4 at 0:00:00.0\n* a\xFFz~[7m\xFE~[0m\n",
                  secondRound("a\xFFz\xFF\n", "a\xFFz\xFE\n"));
    }
}

TEST_F(WatchLettersTest, AFrameIsCutBetweenLetters)
{
    std::setlocale(LC_CTYPE, "C.UTF-8");
    look.redraws = true;
    look.size = [] { return Size{17, 24}; };
    EXPECT_EQ("~[H~[KEvery 2s: show \xC3\xA4 \n~[K* \xC3\xA4\xE4\xB8\xAD"
              "abcdefghijkl\n~[J",
              secondRound("\xC3\xA4\xE4\xB8\xAD"
                          "abcdefghijkl\n",
                          "\xC3\xA4\xE4\xB8\xAD"
                          "abcdefghijklm\n"));
}

TEST_F(WatchLettersTest, AFrameHasNothingThatTheTerminalObeys)
{
    look.redraws = true;
    look.colours = true;
    std::setlocale(LC_CTYPE, "C.UTF-8");
    EXPECT_EQ("~[H~[KEvery 2s: show \xC3\xA4 at 0:00:00.0\n~[K* a?z~[7m\xC3\xA4?~[0m\n~[J",
              secondRound("a\xFFz\n", "a\xFFz\xC3\xA4\x1B\n"));
    std::setlocale(LC_CTYPE, "C");
    EXPECT_EQ("~[H~[KEvery 2s: show ?? at 0:00:00.0\n~[K* a?z~[7m???~[0m\n~[J",
              secondRound("a\xFFz\n", "a\xFFz\xC3\xA4\x1B\n"));
}

} // namespace
