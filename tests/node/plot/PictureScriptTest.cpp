#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "node/plot/Script.h"
#include "node/plot/SmallRun.h"
#include "support/CommaLocale.h"

using node::plot::Form;
using node::plot::pictureScript;
using node::plot::Sample;

namespace
{

TEST(PictureScriptTest, ARunIsThreePanelsWithALineForEachChannel)
{
    EXPECT_EQ(R"(set terminal pngcairo size 960,720 noenhanced rounded font 'sans,10'
set encoding utf8
$run << END
0 -43 20 -43 20
60 -50.25 12.5 -46 17
120 -85 -3 -60 6
180 -60 6 -46 17
240 -43 20 -43 20
END
$modulation1 << END
0 4
60 4
60 3
120 3

180 1
240 1
240 4
240 4
END
set style line 1 linecolor rgb '#0072b2' linewidth 3 pointtype 5 pointsize 0.7 pointnumber 12
$modulation2 << END
0 4
120 4
120 1
180 1
180 4
240 4
END
set style line 2 linecolor rgb '#e69f00' linewidth 3 dashtype (12, 8) pointtype 6 pointsize 1.2 pointnumber 10
set multiplot
set lmargin at screen 0.19
set rmargin at screen 0.97
set border 3
set grid linetype 1 linecolor rgb '#cccccc' linewidth 1
set tics nomirror out
set xrange [0:240]
set format x ''
set label 1 'rain' at screen 0.5, screen 0.97 center font ',14'
set key at screen 0.97, screen 0.955 right top horizontal samplen 6
set bmargin at screen 0.68
set tmargin at screen 0.9
set yrange [-86:-42]
set ytics 5
set label 2 'Level (dBm)' at screen 0.02, graph 0.5 center rotate
plot $run using ($1/1):2 with linespoints linestyle 1 title 'Channel 1', $run using ($1/1):4 with linespoints linestyle 2 title 'Channel 2'
unset label 1
unset key
set bmargin at screen 0.43
set tmargin at screen 0.65
set yrange [-4:21]
set ytics 5
set label 2 'SNIR (dB)' at screen 0.02, graph 0.5 center rotate
plot $run using ($1/1):3 with linespoints linestyle 1 title 'Channel 1', $run using ($1/1):5 with linespoints linestyle 2 title 'Channel 2'
set format x '%g'
set xlabel 'Time (s)'
set bmargin at screen 0.08
set tmargin at screen 0.4
set yrange [-0.5:5.5]
set ytics ('4QAM_STRONG' 0, '4QAM' 1, '4QAM_LIGHT' 2, '16QAM_STRONG' 3, '16QAM' 4, '16QAM_LIGHT' 5)
set label 2 'Modulation if locked' at screen 0.02, graph 0.5 center rotate
plot $modulation1 using ($1/1):2 with linespoints linestyle 1 title 'Channel 1', $modulation2 using ($1/1):2 with linespoints linestyle 2 title 'Channel 2'
unset multiplot
)",
              pictureScript(small_run::rain(), Form::Png));
}

std::string behindFirstLine(const std::string& text)
{
    return text.substr(text.find('\n'));
}

TEST(PictureScriptTest, FormsDifferInTheFirstLine)
{
    const std::string svg = pictureScript(small_run::rain(), Form::Svg);
    EXPECT_EQ("set terminal svg size 960,720 noenhanced rounded background 'white' font 'sans-serif,12' name 'run'",
              svg.substr(0, svg.find('\n')));
    EXPECT_EQ(behindFirstLine(pictureScript(small_run::rain(), Form::Png)), behindFirstLine(svg));
}

TEST(PictureScriptTest, LongRunsAreDrawnInMinutesAndHours)
{
    const std::string minutes = pictureScript(small_run::always({}, {600, 1800}), Form::Svg);
    EXPECT_NE(std::string::npos, minutes.find("set xrange [10:30]\n"));
    EXPECT_NE(std::string::npos, minutes.find("plot $run using ($1/60):2 with"));
    EXPECT_NE(std::string::npos, minutes.find("plot $run using ($1/60):3 with"));
    EXPECT_NE(std::string::npos, minutes.find("set xlabel 'Time (min)'\n"));
    const std::string hours = pictureScript(small_run::always({0, 0, 0, true}, {0, 90000}), Form::Svg);
    EXPECT_NE(std::string::npos, hours.find("set xrange [0:25]\n"));
    EXPECT_NE(std::string::npos, hours.find("plot $modulation1 using ($1/3600):2 with"));
}

/// The corners of the line that these samples, a second apart, make.
std::string corners(const std::vector<Sample>& samples)
{
    auto run = small_run::always({}, {});
    run.channels = {samples};
    for (std::size_t i = 0; i < samples.size(); ++i)
    {
        run.times_s.push_back(static_cast<double>(i));
    }
    const std::string script = pictureScript(run, Form::Png);
    const std::string begin = "$modulation1 << END\n";
    const auto place = script.find(begin) + begin.size();
    return script.substr(place, script.find("END\n", place) - place);
}

constexpr Sample Slow{0, 0, 1, true};
constexpr Sample Fast{0, 0, 5, true};
constexpr Sample Unlocked{0, 0, 1, false};

TEST(PictureScriptTest, AModulationHoldsUntilTheNextOne)
{
    EXPECT_EQ("0 1\n3 1\n", corners({Slow, Slow, Slow, Slow}));
    EXPECT_EQ("0 1\n2 1\n2 5\n3 5\n", corners({Slow, Slow, Fast, Fast}));
    EXPECT_EQ("0 1\n1 1\n1 5\n2 5\n2 1\n2 1\n", corners({Slow, Fast, Slow}));
    EXPECT_EQ("0 5\n0 5\n", corners({Fast}));
}

TEST(PictureScriptTest, WithoutLockTheLineBreaks)
{
    EXPECT_EQ("0 1\n1 1\n\n3 1\n3 1\n", corners({Slow, Unlocked, Unlocked, Slow}));
    EXPECT_EQ("1 5\n2 5\n\n", corners({Unlocked, Fast, Unlocked}));
    EXPECT_EQ("", corners({Unlocked, {0, 0, 5, false}, Unlocked}));
    EXPECT_EQ("", corners({}));
}

TEST(PictureScriptTest, TheLocaleHasNoSayInIt)
{
    const std::string script = pictureScript(small_run::rain(), Form::Svg);
    const CommaLocale commas;
    EXPECT_EQ(script, pictureScript(small_run::rain(), Form::Svg));
}

} // namespace
