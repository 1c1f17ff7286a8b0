#include <clocale>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "node/terminal/Layout.h"

namespace
{

using node::terminal::inColumns;
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

} // namespace
