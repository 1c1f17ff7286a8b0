#include <string>

#include <gtest/gtest.h>

#include "node/reference/Fill.h"

using node::reference::fill;
using node::reference::fillText;

namespace
{

TEST(FillTest, NoWordsAreNoLine)
{
    EXPECT_EQ("", fill({}, " ", "  "));
}

TEST(FillTest, WordsThatFitStandOnOneLine)
{
    EXPECT_EQ("  one, two, three\n", fill({"one", "two", "three"}, ", ", "  "));
}

TEST(FillTest, ALineHas80ColumnsAtMost)
{
    const std::string half(39, 'a');
    EXPECT_EQ("-" + half + " " + half + "\n", fill({half, half}, " ", "-"));
    EXPECT_EQ("--" + half + "\n--" + half + "\n", fill({half, half}, " ", "--"));
    EXPECT_EQ("-" + half + "\n-" + half + "\n", fill({half, half}, "  ", "-"));
}

TEST(FillTest, ALineHasAsManyColumnsAsItIsToldToHave)
{
    EXPECT_EQ("a b\nc\n", fill({"a", "b", "c"}, " ", "", 3));
    EXPECT_EQ("a b\nc\n", fill({"a", "b", "c"}, " ", "", 4));
    EXPECT_EQ("a b c\n", fill({"a", "b", "c"}, " ", "", 5));
}

TEST(FillTest, OfATextItsWordsAreTaken)
{
    EXPECT_EQ("", fillText(" \n", "  "));
    EXPECT_EQ("  one two\n  three\n", fillText(" one\ntwo  three\n", "  ", 9));
    EXPECT_EQ(std::string(80, 'a') + "\nb\n", fillText(std::string(80, 'a') + " b", ""));
}

TEST(FillTest, AWordThatIsTooLongHasItsOwnLine)
{
    const std::string large(100, 'a');
    EXPECT_EQ("  b\n  " + large + "\n  c\n", fill({"b", large, "c"}, " ", "  "));
    EXPECT_EQ("  " + large + "\n", fill({large}, " ", "  "));
}

} // namespace
