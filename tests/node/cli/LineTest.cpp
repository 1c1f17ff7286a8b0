#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "node/cli/Line.h"
#include "node/wording/InputError.h"

using node::cli::splitLine;

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

} // namespace
