#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "node/plot/Script.h"
#include "node/plot/SmallRun.h"
#include "support/CommaLocale.h"

using node::plot::textScript;
using ::testing::ElementsAre;

namespace
{

TEST(TextScriptTest, AMomentIsThreePanelsOfMarks)
{
    auto run = small_run::rain();
    run.title = "it's Jūrmala";
    run.times_s = {7};
    run.channels[0].resize(1);
    run.channels[1].resize(1);
    EXPECT_EQ(R"(set terminal dumb noenhanced mono size 80,24
$run << END
7 -43 20 4 -43 20 4
END
set multiplot
unset key
set lmargin 13
set rmargin 3
set xrange [6.983606557377049:8.01639344262295]
unset xtics
set ytics nomirror scale 0
set label 1 'it'."'".'s J?rmala' at character 0, 23
set label 2 '1 channel 1   2 channel 2   = both' at character 13, 22
set tmargin 2
set bmargin 15
set yrange [-44.5:-41.5]
set ytics (-44, -43, -42)
set label 3 ' Level (dBm) ' at character 14, 21 front
plot $run using ($1/1):2 with points pointtype '1', $run using ($1/1):5 with points pointtype '2', $run using ($1/1):(abs($2-$5)<0.25?$2:NaN) with points pointtype '='
set tmargin 8
set bmargin 8
set yrange [18.6:21.4]
set ytics (19, 20, 21)
set label 3 ' SNIR (dB) ' at character 14, 15 front
plot $run using ($1/1):3 with points pointtype '1', $run using ($1/1):6 with points pointtype '2', $run using ($1/1):(abs($3-$6)<0.2?$3:NaN) with points pointtype '='
set xtics nomirror scale 0 0.2
set label 4 'Time (s)' at character 0, 0
set tmargin 15
set bmargin 1
set yrange [1.9:6.1]
set ytics ('16QAM_STRONG' 3, '16QAM' 4, '16QAM_LIGHT' 5)
set label 3 ' Modulation if locked ' at character 14, 8 front
plot $run using ($1/1):4 with points pointtype '1', $run using ($1/1):7 with points pointtype '2', $run using ($1/1):(abs($4-$7)<0.3?$4:NaN) with points pointtype '='
unset multiplot
)",
              textScript(run, {80, 24}));
}

/// The lines of a script that begin so, without that.
std::vector<std::string> linesOf(const std::string& script, const std::string& begin)
{
    std::istringstream stream(script);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);)
    {
        if (line.starts_with(begin))
        {
            lines.push_back(line.substr(begin.size()));
        }
    }
    return lines;
}

std::vector<std::string> panels(int rows)
{
    return linesOf(textScript(small_run::rain(), {80, rows}), "set label 3 ");
}

TEST(TextScriptTest, FewRowsShowFewerPanels)
{
    EXPECT_THAT(panels(12), ElementsAre("' Level (dBm) ' at character 10, 9 front"));
    EXPECT_THAT(panels(13), ElementsAre("' Level (dBm) ' at character 10, 10 front"));
    EXPECT_THAT(panels(14), ElementsAre("' Level (dBm) ' at character 10, 11 front",
                                        "' Modulation if locked ' at character 10, 6 front"));
    EXPECT_THAT(panels(18), ElementsAre("' Level (dBm) ' at character 10, 15 front",
                                        "' Modulation if locked ' at character 10, 8 front"));
    EXPECT_THAT(panels(19),
                ElementsAre("' Level (dBm) ' at character 10, 16 front", "' SNIR (dB) ' at character 10, 11 front",
                            "' Modulation if locked ' at character 10, 6 front"));
}

TEST(TextScriptTest, ASampleIsRepeatedEveryHalfColumnUntilTheNextOne)
{
    // 26 columns from the first sample to the last one, after 25 s.
    auto run = small_run::always({-43, 20, 4, true}, {0, 2, 2.5, 24, 25});
    run.channels[0][1] = {-44, 19, 3, false};
    const std::string script = textScript(run, {40, 12});
    EXPECT_EQ("$run << END\n"
              "0 -43 20 4\n0.5 -43 20 4\n1 -43 20 4\n1.5 -43 20 4\n"
              "2 -44 19 NaN\n"
              "2.5 -43 20 4\n3 -43 20 4\n",
              script.substr(script.find("$run"), 97));
    EXPECT_NE(std::string::npos, script.find("23.5 -43 20 4\n24 -43 20 4\n24.5 -43 20 4\n25 -43 20 4\nEND\n"));
}

TEST(TextScriptTest, LongRunsAreDrawnInHours)
{
    const std::string script = textScript(small_run::always({}, {0, 90000}), {40, 12});
    EXPECT_THAT(linesOf(script, "set xrange "), ElementsAre("[-1:26]"));
    EXPECT_THAT(linesOf(script, "set xtics "), ElementsAre("nomirror scale 0 10"));
    EXPECT_THAT(linesOf(script, "set label 4 "), ElementsAre("'Time (h)' at character 0, 0"));
    EXPECT_THAT(linesOf(script, "plot "), ElementsAre("$run using ($1/3600):2 with points pointtype '1'"));
}

TEST(TextScriptTest, LongNumbersAndNamesHaveRoom)
{
    const auto left = [](const node::plot::Run& run) { return linesOf(textScript(run, {40, 24}), "set lmargin "); };
    auto run = small_run::always({-43, 20, 4, true}, {0, 1});
    EXPECT_THAT(left(run), ElementsAre("13"));
    run.modulations[3] = "4096QAM_STRÖNG";
    EXPECT_THAT(left(run), ElementsAre("15"));
    run.channels[0][0].level_dBm = -1.25e14;
    EXPECT_THAT(left(run), ElementsAre("17"));
}

TEST(TextScriptTest, TheLocaleHasNoSayInIt)
{
    const std::string script = textScript(small_run::rain(), {80, 24});
    const CommaLocale commas;
    EXPECT_EQ(script, textScript(small_run::rain(), {80, 24}));
}

} // namespace
