#include <cstdint>
#include <limits>
#include <random>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include <fmt/format.h>

#include "node/wording/InputError.h"

using node::wording::InputError;
using node::wording::numberRange;
using node::wording::quoted;
using node::wording::wholeRange;

namespace
{

TEST(InputErrorTest, SaysPlaceAndWhatWasFoundAndWhatWasExpected)
{
    EXPECT_STREQ("here: found \"x\", expected a number", InputError("here", quoted("x"), "a number").what());
}

TEST(InputErrorTest, TakesTextsAsTheyAre)
{
    EXPECT_STREQ("a: found {}, expected {0}", InputError("a", "{}", "{0}").what());
    EXPECT_STREQ(": found , expected ", InputError("", "", "").what());
}

TEST(InputErrorTest, IsARuntimeError)
{
    EXPECT_THROW(throw InputError("a", "b", "c"), std::runtime_error);
}

TEST(NumberRangeTest, BothBoundsAreTold)
{
    EXPECT_EQ("a whole number from 0 to 255", wholeRange(0, 255));
    EXPECT_EQ("a whole number from -2147483648 to 2147483647",
              wholeRange(std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()));
    EXPECT_EQ("a number from 0.1 to 100", numberRange(0.1, 100.0));
    EXPECT_EQ("a number from -0.5 to 1e+300", numberRange(-0.5, 1e300));
}

TEST(QuotedTest, PutsAWordInQuotationMarks)
{
    EXPECT_EQ(R"("word")", quoted("word"));
    EXPECT_EQ(R"("two words")", quoted("two words"));
    EXPECT_EQ(R"("")", quoted(""));
    EXPECT_EQ(R"("{}")", quoted("{}"));
    EXPECT_EQ(R"("it's")", quoted("it's"));
}

TEST(QuotedTest, MarksQuotationMarksAndBackslashes)
{
    EXPECT_EQ(R"("say \"x\"")", quoted(R"(say "x")"));
    EXPECT_EQ(R"("a\\b\\")", quoted(R"(a\b\)"));
}

TEST(QuotedTest, ShowsControlCharacters)
{
    EXPECT_EQ(R"("a\nb\rc\td")", quoted("a\nb\rc\td"));
    EXPECT_EQ(R"("\x00")", quoted(std::string("\0", 1)));
    EXPECT_EQ(R"("\x01\x1b[1m\x1f")", quoted("\x01\x1b[1m\x1f"));
    EXPECT_EQ(R"("\x7f")", quoted("\x7f"));
    EXPECT_EQ("\" ~\"", quoted(" ~"));
}

TEST(QuotedTest, LeavesLettersOfEveryLanguage)
{
    EXPECT_EQ("\"äöü 日本 ١\"", quoted("äöü 日本 ١"));
}

TEST(QuotedTest, ShowsWhatIsInvisible)
{
    EXPECT_EQ(R"("\x85\xa0\u200b\u2028")", quoted("\u0085\u00a0\u200b\u2028"));
}

TEST(QuotedTest, ShowsBytesThatAreNoUtf8)
{
    EXPECT_EQ(R"("\xff")", quoted("\xff"));
    EXPECT_EQ(R"("a\xc3")", quoted("a\xc3"));
    EXPECT_EQ(R"("\x80x")", quoted("\x80x"));
}

class RandomQuotedTest : public ::testing::TestWithParam<std::uint64_t>
{
};

/// No byte of an input may leave the line, move the cursor or end the quotation.
TEST_P(RandomQuotedTest, AnyBytesGiveOneVisibleQuotation)
{
    constexpr int Rounds = 200;
    std::mt19937_64 random(GetParam());
    for (int round = 0; round < Rounds; ++round)
    {
        SCOPED_TRACE(fmt::format("seed {}, round {}", GetParam(), round));
        std::string word(static_cast<std::size_t>(random() % 12), ' ');
        for (char& byte : word)
        {
            byte = static_cast<char>(random() & 0xFF);
        }
        const std::string text = node::wording::quoted(word);
        ASSERT_GE(text.size(), word.size() + 2);
        EXPECT_EQ('"', text.front());
        EXPECT_EQ('"', text.back());
        for (std::size_t i = 1; i + 1 < text.size(); ++i)
        {
            const auto byte = static_cast<unsigned char>(text[i]);
            EXPECT_TRUE(byte >= ' ' && byte != 0x7F) << text;
            EXPECT_NE('"', text[i]) << text;
            i += text[i] == '\\' ? 1 : 0;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomQuotedTest, ::testing::Values(1, 2, 3));

} // namespace
