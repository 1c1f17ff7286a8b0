#include <clocale>
#include <string>

#include <gtest/gtest.h>

#include "node/terminal/Letters.h"

namespace
{

using node::terminal::firstLetter;
using node::terminal::toBytes;
using node::terminal::toLetters;

class LettersTest : public ::testing::TestWithParam<const char*>
{
protected:
    LettersTest()
    {
        EXPECT_NE(nullptr, std::setlocale(LC_CTYPE, GetParam()));
    }

    ~LettersTest() override
    {
        std::setlocale(LC_CTYPE, "C");
    }
};

INSTANTIATE_TEST_SUITE_P(Locales, LettersTest, ::testing::Values("C", "C.UTF-8"));

TEST_P(LettersTest, EveryTextComesBack)
{
    for (const std::string& text : {std::string("plain"), std::string("\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80"),
                                    std::string("\xC3\xC3\xA4\xFF\x80"), std::string("cut \xE2\x82"),
                                    std::string("\xED\xB2\x80"), std::string("a\0b", 3)})
    {
        EXPECT_EQ(text, toBytes(toLetters(text)));
    }
}

TEST(LettersUtf8Test, ALetterHasTheBytesThatItTakes)
{
    std::setlocale(LC_CTYPE, "C.UTF-8");
    EXPECT_EQ(L"\xE4\x20AC", toLetters("\xC3\xA4\xE2\x82\xAC"));
    EXPECT_EQ(3U, firstLetter("\xE2\x82\xAC!").size);
    EXPECT_EQ(0U, firstLetter("\xE2\x82").size);
    EXPECT_EQ(0U, firstLetter("").size);
    EXPECT_EQ(1U, firstLetter("\xE2!").size);
    EXPECT_EQ(1U, firstLetter(std::string("\0", 1)).size);
    std::setlocale(LC_CTYPE, "C");
}

} // namespace
