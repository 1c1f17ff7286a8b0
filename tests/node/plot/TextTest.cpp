#include <string>

#include <gtest/gtest.h>

#include "node/plot/Plot.h"
#include "node/plot/SmallRun.h"

using node::plot::drawText;

namespace
{

/// Why a drawing has too little room.
std::string refusalOf(node::terminal::Size size)
{
    try
    {
        node::plot::expectRoom(size);
    }
    catch (const node::plot::PlotError& error)
    {
        return error.what();
    }
    return "";
}

TEST(TextTest, ARunIsDrawnInLetters)
{
    EXPECT_EQ(R"(rain
         1 channel 1   2 channel 2   = both
         + Level (dBm) -----------------------+
         |==========22222222        222222222=|
         |         =========                  |
     -60 |                  222222222111111111|
     -80 |                                    |
         |                  111111111         |
         + SNIR (dB) -------------------------+
      20 |==========                         =|
      15 |         222222222        2222222222|
      10 |         111111111                  |
       5 |                  222222222111111111|
       0 |                                    |
         |                  111111111         |
         + Modulation if locked --------------+
         |                                    |
   16QAM |==========22222222        222222222=|
         |         111111111                  |
         |                                    |
    4QAM |                  222222222111111111|
         |                                    |
         +------------------------------------+
Time (s)  0             100           200
)",
              drawText(small_run::rain(), {50, 24}));
}

TEST(TextTest, AFewRowsShowTheLevelAlone)
{
    EXPECT_EQ(R"(rain
      1 channel 1   2 channel 2   = both
         + Level (dBm) -------------+
         |=======                  =|
     -50 |      2222222      2222222|
     -60 |             2222222111111|
         |                          |
     -70 |                          |
     -80 |                          |
         |             1111111      |
         +--------------------------+
Time (s)  0        100        200
)",
              drawText(small_run::rain(), {40, 12}));
}

TEST(TextTest, AMomentIsDrawn)
{
    EXPECT_EQ(R"(always
            1 channel 1
            + Level (dBm) ----------+
        -42 |                       |
        -43 |1                      |
        -44 |                       |
        -45 |                       |
            + SNIR (dB) ------------+
         21 |                       |
         20 |1                      |
            |                       |
         19 |                       |
            + Modulation if locked -+
            |                       |
       4QAM |                       |
            |                       |
4QAM_STRONG |1                      |
            |                       |
            +-----------------------+
Time (s)     5         5.5         6
)",
              drawText(small_run::always({-43.5, 20, 0, true}, {5}), {40, 20}));
}

TEST(TextTest, NeedsRoom)
{
    node::plot::expectRoom({40, 12});
    EXPECT_EQ("found room for 39 x 12 letters, expected 40 x 12 or more", refusalOf({39, 12}));
    EXPECT_EQ("found room for 40 x 11 letters, expected 40 x 12 or more", refusalOf({40, 11}));
    EXPECT_EQ("found room for 0 x -1 letters, expected 40 x 12 or more", refusalOf({0, -1}));
    EXPECT_THROW(drawText(small_run::rain(), {39, 12}), node::plot::PlotError);
}

TEST(TextTest, SizesHaveLimits)
{
    const auto run = small_run::rain();
    EXPECT_NE(drawText(run, {40, 12}), drawText(run, {41, 12}));
    EXPECT_NE(drawText(run, {40, 12}), drawText(run, {40, 13}));
    EXPECT_EQ(drawText(run, {400, 200}), drawText(run, {401, 201}));
    EXPECT_NE(drawText(run, {400, 200}), drawText(run, {399, 200}));
    EXPECT_NE(drawText(run, {400, 200}), drawText(run, {400, 199}));
}

std::string firstLine(const node::plot::Run& run, node::terminal::Size size)
{
    const std::string text = drawText(run, size);
    return text.substr(0, text.find('\n'));
}

TEST(TextTest, ATitleIsNothingButAText)
{
    auto run = small_run::rain();
    run.title = R"('; system(''exit 1)' # "%d" \n `id` @m {/:Bold b} \)";
    EXPECT_EQ(run.title, firstLine(run, {80, 24}));
    run.title = "Rīga\n\x1b[31m\f.";
    EXPECT_EQ("R?ga  [31m .", firstLine(run, {80, 24}));
    run.title = std::string(10'000, 'x');
    EXPECT_EQ(std::string(40, 'x'), firstLine(run, {40, 24}));
}

TEST(TextTest, AnEmptyTitleLeavesNoEmptyLine)
{
    auto run = small_run::rain();
    run.title = "";
    EXPECT_EQ("         1 channel 1   2 channel 2   = both", firstLine(run, {80, 24}));
}

} // namespace
