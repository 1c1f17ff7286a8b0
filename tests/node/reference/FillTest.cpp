#include <string>

#include <gtest/gtest.h>

#include "node/reference/Fill.h"

using node::reference::fill;

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

TEST(FillTest, AWordThatIsTooLongHasItsOwnLine)
{
    const std::string large(100, 'a');
    EXPECT_EQ("  b\n  " + large + "\n  c\n", fill({"b", large, "c"}, " ", "  "));
    EXPECT_EQ("  " + large + "\n", fill({large}, " ", "  "));
}

} // namespace
