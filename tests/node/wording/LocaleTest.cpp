#include <array>
#include <cstdio>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/scenario/FaultKeys.h"
#include "node/scenario/Reference.h"
#include "node/scenario/ScenarioText.h"
#include "node/wording/Number.h"
#include "support/CommaLocale.h"
#include "support/Portrait.h"

using ::testing::ElementsAreArray;

namespace
{

constexpr auto Fractions = "[hop]\ndistance_km = 12.5\nnoise_figure_dB = 1.5e1\n"
                           "[node]\nseed = 9007199254740991\n[channel.1]\ntransmitter_power_dBm = -0.25\n";

TEST(WordingLocaleTest, CommaLocaleShowsInTheCLibrary)
{
    const CommaLocale commas;
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "%.1f", 1234567.5);
    EXPECT_STREQ("1234567,5", text.data());
}

TEST(WordingLocaleTest, NumbersAreReadWithAPointInEveryLocale)
{
    const CommaLocale commas;
    EXPECT_EQ(1234567.25, node::wording::parseReal("1234567.25"));
    EXPECT_EQ(std::nullopt, node::wording::parseReal("1,5"));
    EXPECT_EQ(std::nullopt, node::wording::parseReal("1.234,5"));
    EXPECT_EQ(1234567, node::wording::parseWhole("1234567"));
    EXPECT_EQ(std::nullopt, node::wording::parseWhole("1.234.567"));
}

TEST(WordingLocaleTest, FilesAreReadTheSameInEveryLocale)
{
    const auto lines = portrait::of(scenario_text::parse(Fractions));
    const CommaLocale commas;
    EXPECT_THAT(portrait::of(scenario_text::parse(Fractions)), ElementsAreArray(lines));
    EXPECT_EQ(12.5, scenario_text::parse(Fractions).configuration.link.hop.distance_km);
}

TEST(WordingLocaleTest, ErrorsAreTheSameInEveryLocale)
{
    const CommaLocale commas;
    EXPECT_EQ("link.toml:2:15: hop.distance_km: found 1234567.5, expected a number from 0.1 to 100",
              scenario_text::refusal("[hop]\ndistance_km = 1234567.5\n"));
    EXPECT_EQ("link.toml:2:30: weather.scintillation_deviation_dB: found true, expected a number from 0 to 10",
              scenario_text::refusal("[weather]\nscintillation_deviation_dB = true\n"));
    EXPECT_EQ("link.toml:4:8: weather.rain[2].at_s: found 1000.5, expected a time after 2000.5, that of the point "
              "before",
              scenario_text::refusal("[[weather.rain]]\nat_s = 2000.5\n[[weather.rain]]\nat_s = 1000.5\n"));
    EXPECT_EQ("addFault: code: found 1234567, expected no code: a call that throws answers nothing",
              scenario_text::refusalOf(
                  [] {
                      node::scenario::typedFault({"tiManageXpic", "code=1234567", "throws=true"}, "addFault");
                  }));
    EXPECT_EQ("a number from -1234567.5 to 1234567.5", node::wording::numberRange(-1234567.5, 1234567.5));
    EXPECT_EQ("1200 bytes as 2400 hexadecimal digits", node::wording::bytesForm(1200));
}

TEST(WordingLocaleTest, TheReferenceIsTheSameInEveryLocale)
{
    const std::string reference = node::scenario::reference();
    const CommaLocale commas;
    EXPECT_EQ(reference, node::scenario::reference());
}

} // namespace
