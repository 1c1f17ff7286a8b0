#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "node/commands/Line.h"
#include "node/wording/InputError.h"

using node::commands::asTyped;
using node::commands::inQuotationMarks;
using node::commands::splitLine;
using node::commands::splitUnfinished;

namespace
{

/// A line, and its words.
struct Row
{
    std::string name;
    std::string line;
    std::vector<std::string> words;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << row.line;
}

class LineTest : public ::testing::TestWithParam<Row>
{
};

TEST_P(LineTest, HasTheseWords)
{
    EXPECT_EQ(GetParam().words, splitLine(GetParam().line));
}

INSTANTIATE_TEST_SUITE_P(
    EachKind, LineTest,
    ::testing::Values(
        Row{"AnEmptyLineHasNone", "", {}}, Row{"BlanksAloneAreNone", " \t\r\v\f ", {}},
        Row{"OneWord", "showLink", {"showLink"}},
        Row{"WordsAreApartByAnyBlanks", "a b\tc\rd\ve\ff", {"a", "b", "c", "d", "e", "f"}},
        Row{"SeveralBlanksAreAsOne", "  a \t  b  ", {"a", "b"}},
        Row{"ALineEndOfAnotherSystemIsABlank", "a b\r", {"a", "b"}}, Row{"ACommentHasNone", "# a b", {}},
        Row{"ACommentMayBeIndented", " \t# a b", {}}, Row{"ACommentMayHoldAQuotationMark", "# it's 5\" wide", {}},
        Row{"ACommentSignLaterIsAWord", "a # b", {"a", "#", "b"}},
        Row{"ACommentSignInsideAWordIsALetter", "a#b", {"a#b"}},
        Row{"AQuotedCommentSignIsAWord", "\"#a\" b", {"#a", "b"}},
        Row{"QuotesKeepBlanks", "a \"b c\td\" e", {"a", "b c\td", "e"}},
        Row{"QuotesMayStandInsideAWord", "text=\"no answer\" x", {"text=no answer", "x"}},
        Row{"AWordGoesOnBehindItsQuotes", "a\"b c\"d e", {"ab cd", "e"}},
        Row{"TwoQuotesSideBySideAreOneWord", "\"a b\"\"c d\"", {"a bc d"}},
        Row{"EmptyQuotesAreAnEmptyWord", "a \"\" b", {"a", "", "b"}}, Row{"EmptyQuotesAloneAreAWord", "\"\"", {""}},
        Row{"EmptyQuotesMayStandLast", "a \"\"", {"a", ""}},
        Row{"ABackslashBetweenQuotesTakesAQuotationMark", R"("a \" b")", {"a \" b"}},
        Row{"ABackslashBetweenQuotesTakesABackslash", R"("a \\" b)", {"a \\", "b"}},
        Row{"ABackslashBetweenQuotesTakesAnyLetter", R"("a\nb")", {"anb"}},
        Row{"ABackslashOutsideOfQuotesIsALetter", R"(a\b \ c\)", {"a\\b", "\\", "c\\"}},
        Row{"ABackslashOutsideOfQuotesKeepsNoBlank", R"(a\ b)", {"a\\", "b"}},
        Row{"AnApostropheIsALetter", "'a b'", {"'a", "b'"}}, Row{"LettersOfAnyAlphabetStay", "ä \"ö ü\"", {"ä", "ö ü"}},
        Row{"AZeroByteIsALetter", std::string("a\0b c", 5), {std::string("a\0b", 3), "c"}}),
    [](const auto& row) { return row.param.name; });

/// What is said of a line whose quotation mark is not closed.
std::string refusalOf(const std::string& line)
{
    try
    {
        return std::to_string(splitLine(line).size()) + " words";
    }
    catch (const node::wording::InputError& error)
    {
        return error.what();
    }
}

TEST(OpenQuoteTest, IsRefusedWhereverItStands)
{
    for (const std::string line : {R"(")", R"(a ")", R"(a "b)", R"("a b)", R"(a b")", R"("a" ")", R"("a"" b)",
                                   R"("a\")", R"("a \)", R"("\)", R"("#)"})
    {
        EXPECT_EQ("line: found a quotation mark alone, expected another one that closes it", refusalOf(line)) << line;
    }
}

/// A line up to the cursor.
struct Unfinished
{
    std::string name;
    std::string line;
    std::vector<std::string> words;
    std::size_t begin;
    bool inQuotes = false;
};

std::ostream& operator<<(std::ostream& out, const Unfinished& row)
{
    return out << row.line;
}

class UnfinishedLineTest : public ::testing::TestWithParam<Unfinished>
{
};

TEST_P(UnfinishedLineTest, EndsInTheWordThatIsTyped)
{
    const auto split = splitUnfinished(GetParam().line);
    EXPECT_EQ(GetParam().words, split.words);
    EXPECT_EQ(GetParam().begin, split.begin);
    EXPECT_EQ(GetParam().inQuotes, split.inQuotes);
}

INSTANTIATE_TEST_SUITE_P(
    EachKind, UnfinishedLineTest,
    ::testing::Values(Unfinished{"AnEmptyLineBeginsAWord", "", {""}, 0}, Unfinished{"BlanksBeginAWord", " \t", {""}, 2},
                      Unfinished{"AWordGoesOn", "ab", {"ab"}, 0}, Unfinished{"AnIndentedWordGoesOn", "  ab", {"ab"}, 2},
                      Unfinished{"ABlankBeginsAnotherWord", "ab ", {"ab", ""}, 3},
                      Unfinished{"TheLastWordGoesOn", "ab  cd", {"ab", "cd"}, 4},
                      Unfinished{"ACommentHasNone", "# ab", {}, 4},
                      Unfinished{"ACommentSignBeginsAComment", " #", {}, 2},
                      Unfinished{"ACommentSignLaterIsAWord", "ab #", {"ab", "#"}, 3},
                      Unfinished{"AQuotationMarkBeginsAWord", "ab \"", {"ab", ""}, 3, true},
                      Unfinished{"AnOpenQuotationMarkKeepsBlanks", "ab \"c d ", {"ab", "c d "}, 3, true},
                      Unfinished{"AClosedQuotationMarkGoesOn", "ab \"c d\"", {"ab", "c d"}, 3},
                      Unfinished{"EmptyQuotesGoOn", "ab \"\"", {"ab", ""}, 3},
                      Unfinished{"QuotesInsideAWordBelongToIt", "ab c=\"d e", {"ab", "c=d e"}, 3, true},
                      Unfinished{"ABackslashAloneBetweenQuotesIsALetter", "\"a\\", {"a\\"}, 0, true}),
    [](const auto& row) { return row.param.name; });

TEST(AsTypedTest, OnlyWhatNeedsQuotationMarksHasThem)
{
    EXPECT_EQ("showLink", asTyped("showLink"));
    EXPECT_EQ("a\\b#", asTyped("a\\b#"));
    EXPECT_EQ(R"("")", asTyped(""));
    EXPECT_EQ(R"("no answer")", asTyped("no answer"));
    EXPECT_EQ("\"a\tb\"", asTyped("a\tb"));
    EXPECT_EQ(R"("#1")", asTyped("#1"));
    EXPECT_EQ(R"("5\"")", asTyped("5\""));
    EXPECT_EQ(R"("a\\ b")", asTyped("a\\ b"));
}

TEST(AsTypedTest, IsReadAsTheWordItWas)
{
    const std::vector<std::string> letters = {"a", " ", "\"", "\\", "#", "\t", "=", "\xc3\xa4", std::string("\0", 1)};
    for (const std::string& first : letters)
    {
        for (const std::string& second : letters)
        {
            for (const std::string& third : letters)
            {
                const std::string word = first + second + third;
                EXPECT_EQ(std::vector{word}, splitLine(asTyped(word)));
                EXPECT_EQ(std::vector{word}, splitLine(inQuotationMarks(word)));
            }
        }
    }
}

} // namespace
