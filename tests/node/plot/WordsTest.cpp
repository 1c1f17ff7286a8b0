#include <cmath>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "node/plot/SmallRun.h"
#include "node/plot/Words.h"

using node::plot::modulationTics;
using node::plot::number;
using node::plot::plainLetters;
using node::plot::quoted;

namespace
{

TEST(PlotWordsTest, AMarkWithinATextIsATextOfItsOwn)
{
    EXPECT_EQ("''", quoted(""));
    EXPECT_EQ(R"(''."'".'')", quoted("'"));
    EXPECT_EQ(R"('it'."'".'s')", quoted("it's"));
    EXPECT_EQ(R"('"a" \n \ `ls` @m %d')", quoted(R"("a" \n \ `ls` @m %d)"));
}

TEST(PlotWordsTest, ControlCharactersBecomeBlanks)
{
    EXPECT_EQ("'a b c d e~'", quoted("a\nb\x1f"
                                     "c\x7f"
                                     "d\re~"));
    EXPECT_EQ("'a b'", quoted(std::string("a\0b", 3)));
}

TEST(PlotWordsTest, OtherLettersStayAndWhatIsNoneIsReplaced)
{
    EXPECT_EQ("'Jūrmala 20 °'", quoted("Jūrmala 20 °"));
    EXPECT_EQ("'a\uFFFD b'", quoted("a\xff b"));
}

TEST(PlotWordsTest, PlainLettersHaveAMarkForEachOther)
{
    EXPECT_EQ("J?rmala ?", plainLetters("Jūrmala 😀"));
    EXPECT_EQ("a~?b", plainLetters("a~\xff"
                                   "b"));
}

TEST(PlotWordsTest, NumbersAreWrittenInFullAndOthersDrawNothing)
{
    EXPECT_EQ("-43.02", number(-43.02));
    EXPECT_EQ("1234567.5", number(1234567.5));
    EXPECT_EQ("0.1", number(0.1));
    EXPECT_EQ("NaN", number(std::numeric_limits<double>::infinity()));
    EXPECT_EQ("NaN", number(-std::numeric_limits<double>::infinity()));
    EXPECT_EQ("NaN", number(-std::nan("")));
}

TEST(PlotWordsTest, TicsNameModulationsAtTheirPlaces)
{
    EXPECT_EQ("('4QAM_LIGHT' 2, '16QAM_STRONG' 3, '16QAM' 4)", modulationTics(small_run::Modulations, {2, 5, 1}));
    EXPECT_EQ("('4QAM' 1, '16QAM' 4)", modulationTics(small_run::Modulations, {0, 6, 3}));
    EXPECT_EQ("('%%g%%' 0)", modulationTics({"%g%"}, {0, 1, 1}));
}

} // namespace
