#include <clocale>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "node/terminal/Layout.h"

namespace
{

using node::terminal::cutToColumns;
using node::terminal::inColumns;
using node::terminal::linesOf;
using node::terminal::rowBehind;
using node::terminal::withoutEscapes;

TEST(LayoutTest, EscapeSequencesTakeNoPlace)
{
    EXPECT_EQ(L"a b", withoutEscapes(L"\x01\x1B[1m\x01"
                                     L"a\x01\x1B[0m\x01 b"));
    EXPECT_EQ(L"", withoutEscapes(L""));
}

TEST(LayoutTest, TheCursorIsInTheRowBehindTheLastLetter)
{
    struct Case
    {
        std::wstring shown;
        int row;
    };
    const std::vector<Case> cases = {
        {L"", 0},
        {L"1234567", 0},
        {L"12345678", 1},
        {L"123456781234567", 1},
        {L"1234567812345678", 2},
        {L"1\n2", 1},
        {L"12345678\n", 2},
        {L"12345\x01", 0},
        {L"123456\x01", 1},
        {L"12345\x7F", 0},
        {L"123456\x7F", 1},
        {L"1234567\x01", 1},
        {L"1\t", 1},
        {L"12345678\t1", 2},
        {L"\xDC80", 0},
        {L"1\xDC80", 1},
        {L"\x10FFFF", 1},
        {L"123456\x4E2D", 1},
        {L"12345\x4E2D", 0},
        {L"1234567\x4E2D", 1},
        {L"1234567\x4E2D"
         L"12345",
         1},
        {L"1234567\x4E2D"
         L"123456",
         2},
        {L"1234567\x301", 0},
    };
    std::setlocale(LC_CTYPE, "C.UTF-8");
    for (const Case& c : cases)
    {
        EXPECT_EQ(c.row, rowBehind(c.shown, 8)) << ::testing::PrintToString(c.shown);
    }
    std::setlocale(LC_CTYPE, "C");
}

TEST(LayoutTest, WordsAreReadDownwardsInAsManyColumnsAsFit)
{
    const std::vector<std::string> words = {"one", "two", "three", "four", "five"};
    EXPECT_EQ("one    two    three  four   five\n", inColumns(words, 33));
    EXPECT_EQ("one    three  five\n"
              "two    four\n",
              inColumns(words, 32));
    EXPECT_EQ("one    four\n"
              "two    five\n"
              "three\n",
              inColumns(words, 18));
    EXPECT_EQ("one\ntwo\nthree\nfour\nfive\n", inColumns(words, 11));
    EXPECT_EQ("one\ntwo\nthree\nfour\nfive\n", inColumns(words, 1));
    EXPECT_EQ("one\ntwo\nthree\nfour\nfive\n", inColumns(words, 0));
}

TEST(LayoutTest, ATextHasTheLinesThatItsLineEndsMake)
{
    using Lines = std::vector<std::string>;
    EXPECT_EQ(Lines(), linesOf(""));
    EXPECT_EQ(Lines({""}), linesOf("\n"));
    EXPECT_EQ(Lines({"a"}), linesOf("a"));
    EXPECT_EQ(Lines({"a", "", "b"}), linesOf("a\n\nb\n"));
}

struct Cut
{
    std::string line;
    int columns;
    std::string shown;
};

void expectCuts(const char* locale, const std::vector<Cut>& cuts)
{
    EXPECT_NE(nullptr, std::setlocale(LC_CTYPE, locale));
    for (const Cut& cut : cuts)
    {
        EXPECT_EQ(cut.shown, cutToColumns(cut.line, cut.columns)) << cut.line << ", " << cut.columns;
    }
    std::setlocale(LC_CTYPE, "C");
}

TEST(LayoutTest, ALineIsCutBetweenLettersThatAreAsWideAsTheyAre)
{
    expectCuts("C.UTF-8", {
                              {"", 0, ""},
                              {"abc", -1, ""},
                              {"abc", 0, ""},
                              {"abc", 2, "ab"},
                              {"abc", 3, "abc"},
                              {"abc", 4, "abc"},
                              {"\xC3\xA4\xC3\xB6", 1, "\xC3\xA4"},
                              {"\xC3\xA4\xC3\xB6", 2, "\xC3\xA4\xC3\xB6"},
                              {"a\xE4\xB8\xADz", 2, "a"},
                              {"a\xE4\xB8\xADz", 3, "a\xE4\xB8\xAD"},
                              {"e\xCC\x81z", 1, "e\xCC\x81"},
                          });
}

TEST(LayoutTest, NothingInALineIsObeyedByTheTerminal)
{
    expectCuts("C.UTF-8", {
                              {"a\x1B[2Jb\r\x7F", 80, "a?[2Jb??"},
                              {std::string("a\0b", 3), 80, "a?b"},
                              {"a\xC2\x9Bz", 80, "a?z"},
                              {"a\xFFz\xE2\x82", 80, "a?z??"},
                              {"a\xFFz", 2, "a?"},
                              {"\t", 8, "        "},
                              {"1234567\tz", 9, "1234567 z"},
                              {"12345678\tz", 17, "12345678        z"},
                          });
}

TEST(LayoutTest, InTheCLocaleEachByteBeyondAsciiHasNoShape)
{
    expectCuts("C", {{"a\xC3\xA4z", 80, "a??z"}, {"a\xC3\xA4z", 2, "a?"}});
}

} // namespace
