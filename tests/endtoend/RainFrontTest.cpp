#include <cstdlib>
#include <fstream>
#include <iterator>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "endtoend/Program.h"

namespace
{

/// The front from its first drop to the clear sky behind it, with a look at each minute that turns it.
std::string script()
{
    const std::string look = "getCtStatus 1\ngetXpicStatus 1\nshowLink\n";
    std::string lines = look;
    for (const std::string pause : {"1min", "60", "60s", "1min", "1min", "2min", "100s", "140.5s"})
    {
        lines += "advance " + pause + "\n" + look;
    }
    return lines;
}

constexpr std::size_t Looks = 9;

Finished replay()
{
    return runScenario("rain-front", script());
}

TEST(RainFrontTest, TheReplayIsTheGoldenOne)
{
    std::ifstream golden(KEL_SOURCE_DIR "/tests/endtoend/golden/rain-front.txt", std::ios::binary);
    const Finished run = replay();
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(golden), {}), run.output);
    EXPECT_EQ("", run.errors);
    EXPECT_EQ(0, run.status);
}

TEST(RainFrontTest, TheSameReplayGivesTheSameBytes)
{
    const Finished first = replay();
    const Finished second = replay();
    EXPECT_NE("", first.output);
    EXPECT_EQ(first.output, second.output);
    EXPECT_EQ(first.errors, second.errors);
}

TEST(RainFrontTest, AScriptMayLoadTheFrontItself)
{
    EXPECT_EQ(replay().output, runScript("advance 7\nloadScenario rain-front\n" + script()).output);
}

/// What channel 1 shall measure at a moment of the front.
struct Row
{
    int at_s;
    double rain_mm_per_h;
    double level_dBm;
    double snir_dB;
    std::string modulation;
    std::string xpic;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << row.at_s << " s";
}

/// The texts between the one that begins with `begin` and the end of its line, one for each time that it stands there.
std::vector<std::string> valuesOf(const std::string& begin, const std::string& text)
{
    std::vector<std::string> values;
    for (auto place = text.find("\n" + begin); place != std::string::npos; place = text.find("\n" + begin, place + 1))
    {
        const auto start = text.find_first_not_of(' ', place + 1 + begin.size());
        values.push_back(text.substr(start, text.find('\n', start) - start));
    }
    return values;
}

double number(const std::string& text)
{
    return std::strtod(text.c_str(), nullptr);
}

// The numbers below, and what they were worked out from, are rounded to two digits.
constexpr double Tolerance_dB = 0.05;

TEST(RainFrontTest, ChannelOneMeasuresWhatTheRecommendationsGive)
{
    // At 100 mm/h the horizontal channel has lost its lock, and with it the canceller its slave.
    const std::vector<Row> rows = {
        {0, 0.0, -43.02, 43.91, "4096QAM", "Locked"},          {60, 10.0, -49.32, 41.55, "4096QAM", "Locked"},
        {120, 30.0, -58.33, 34.85, "4096QAM", "Locked"},       {180, 60.0, -70.19, 23.69, "256QAM", "Locked"},
        {240, 100.0, -84.69, 8.56, "4QAM_LIGHT", "Acquiring"},
    };
    const std::string text = replay().output;
    const auto rains = valuesOf("Rain:", text);
    const auto levels = valuesOf("Actual Rf Input Power:", text);
    const auto snirs = valuesOf("Actual SNIR:", text);
    const auto modulations = valuesOf("Actual Rx Modulation:", text);
    const auto states = valuesOf("XPIC State:", text);
    for (const auto& values : {rains, levels, snirs, modulations, states})
    {
        ASSERT_EQ(Looks, values.size());
    }
    for (std::size_t i = 0; i < rows.size(); ++i)
    {
        SCOPED_TRACE(rows[i]);
        EXPECT_DOUBLE_EQ(rows[i].rain_mm_per_h, number(rains[i]));
        EXPECT_NEAR(rows[i].level_dBm, number(levels[i]), Tolerance_dB);
        EXPECT_NEAR(rows[i].snir_dB, number(snirs[i]), Tolerance_dB);
        EXPECT_EQ(rows[i].modulation, modulations[i]);
        EXPECT_EQ(rows[i].xpic, states[i]);
    }
}

TEST(RainFrontTest, BehindTheFrontTheLinkIsAsBeforeIt)
{
    const std::string text = replay().output;
    for (const std::string label : {"Actual Rf Input Power:", "Actual SNIR:", "Actual Rx Modulation:", "XPIC State:",
                                    "DSP Lock:", "Modem:", "Modulation:", "--- Slave carrier Offset [KHz] :"})
    {
        const auto values = valuesOf(label, text);
        ASSERT_EQ(Looks, values.size()) << label;
        EXPECT_EQ(values.front(), values.back()) << label;
    }
}

} // namespace
