#include <ostream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/scenario/KeyList.h"
#include "node/scenario/ScenarioText.h"
#include "support/Portrait.h"

using key_list::Row;
using key_list::Takes;
using scenario_text::parse;
using scenario_text::refusal;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

namespace
{

/// A line of a file, what stands before it, and the members that it changes.
struct WordRow
{
    std::string before;
    std::string line;
    std::vector<std::string> changes;
};

std::ostream& operator<<(std::ostream& stream, const WordRow& row)
{
    return stream << row.before << row.line;
}

class WordKeyTest : public ::testing::TestWithParam<WordRow>
{
};

TEST_P(WordKeyTest, SetsItsMembersAndNoOther)
{
    const auto& [before, line, changes] = GetParam();
    EXPECT_THAT(portrait::changes(parse(before), parse(before + line + "\n")), ElementsAreArray(changes));
}

std::vector<WordRow> nodeRows()
{
    std::vector<WordRow> rows = {
        {"", R"(description = "")", {}},
        {"", R"(description = "Rain at noon, \"äöü\"")", {R"(description = "Rain at noon, "äöü"")"}},
        {"[hop]\n", R"(frequency_plan = "13 GHz")", {R"(hop.frequency_plan = "13 GHz")"}},
        {"[hop]\n", R"(frequency_plan = "18 GHz")", {}},
        {"[hop]\n", R"(frequency_plan = "23 GHz")", {R"(hop.frequency_plan = "23 GHz")"}},
        {"[hop]\n", R"(channel_1_polarisation = "vertical")", {}},
        {"[hop]\n",
         R"(channel_1_polarisation = "horizontal")",
         {R"(hop.channel_1_polarisation = "horizontal")", R"(polarisation of channel 2 = "vertical")"}},
    };
    for (const std::string key : {"IRlbspKelApi", "IDpdControllerSplit_1", "IDpdControllerSplit_2"})
    {
        rows.push_back({"[broker]\n", key + R"( = "service")", {}});
        for (const std::string word : {"absent", "empty", "other type"})
        {
            const std::string line = key + " = \"" + word + "\"";
            rows.push_back({"[broker]\n", line, {"broker." + line}});
        }
    }
    return rows;
}

std::vector<WordRow> channelRows()
{
    std::vector<WordRow> rows;
    for (const std::string path : {"channel.1", "channel.2"})
    {
        const std::string table = "[" + path + "]\n";
        for (const std::string line :
             {R"(xpic_state = "idle")", R"(xpic_acquire_mode = "narrow sweep")", R"(xpic_acquire_mode = "direct")",
              R"(pps_calibration = "fine not completed")", R"(pps_calibration = "auto")",
              R"(pps_calibration = "manual")", R"(lowest_modulation = "HALF_BPSK_STRONG")",
              R"(lowest_modulation = "4096QAM")", R"(dpd_coefficients = "000102030405060708090a0b0c0d0e0ff07ffe80")"})
        {
            rows.push_back({table, line, {path + "." + line}});
        }
        for (const std::string line :
             {R"(xpic_state = "acquired")", R"(xpic_acquire_mode = "full sweep")", R"(pps_calibration = "never")",
              R"(lowest_modulation = "4QAM_STRONG")", R"(highest_modulation = "4096QAM")",
              R"(dpd_coefficients = "0000000000000000000000000000000000000000")"})
        {
            rows.push_back({table, line, {}});
        }
        rows.push_back({table,
                        R"(dpd_coefficients = "FF00000000000000000000000000000000000000")",
                        {path + R"(.dpd_coefficients = "ff00000000000000000000000000000000000000")"}});
        for (const std::string name : {"4QAM_STRONG", "16QAM_LIGHT", "16384QAM_LIGHT"})
        {
            const std::string value = " = \"" + name + "\"";
            rows.push_back({table,
                            "highest_modulation" + value,
                            {path + ".highest_modulation" + value, "current modulation of " + path + value}});
        }
    }
    return rows;
}

INSTANTIATE_TEST_SUITE_P(NodeAndHop, WordKeyTest, ::testing::ValuesIn(nodeRows()));
INSTANTIATE_TEST_SUITE_P(Channels, WordKeyTest, ::testing::ValuesIn(channelRows()));

class FlagKeyTest : public ::testing::TestWithParam<Row>
{
};

TEST_P(FlagKeyTest, SetsItsMemberAndNoOther)
{
    const Row& row = GetParam();
    const std::string other = row.defaultText == "true" ? "false" : "true";
    std::vector<std::string> expected = {path(row) + " = " + other};
    if (row.name == "dpd_running")
    {
        expected.push_back("adaptation of " + row.table + " = 0 ticks");
    }
    const auto before = parse(opening(row));
    EXPECT_THAT(portrait::changes(before, parse(opening(row) + row.name + " = " + other)), ElementsAreArray(expected));
    EXPECT_THAT(portrait::changes(before, parse(opening(row) + row.name + " = " + row.defaultText)), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(EveryKey, FlagKeyTest, ::testing::ValuesIn(taking(Takes::Flag)),
                         [](const auto& row) { return identifier(row.param); });

/// From the list of the link model, most robust first.
TEST(ModulationKeyTest, EveryModulationHasItsPlace)
{
    std::vector<std::string> names;
    for (const std::string size : {"HALF_BPSK", "BPSK", "4QAM", "16QAM", "32QAM", "64QAM", "128QAM", "256QAM", "512QAM",
                                   "1024QAM", "2048QAM", "4096QAM", "8192QAM", "16384QAM"})
    {
        for (const std::string code : {"_STRONG", "", "_LIGHT"})
        {
            names.push_back(size + code);
        }
    }
    for (std::size_t place = 0; place < names.size(); ++place)
    {
        const std::string value = " = \"" + names[place] + "\"\n";
        const auto modem = parse("[channel.1]\nlowest_modulation" + value + "highest_modulation" + value)
                               .configuration.link.channels[0]
                               .modem;
        EXPECT_EQ(place, modem.lowest) << names[place];
        EXPECT_EQ(place, modem.highest) << names[place];
    }
}

TEST(WordKeyRefusalTest, AWordThatIsCloseIsSuggested)
{
    EXPECT_EQ("link.toml:2:14: channel.1.xpic_state: found \"Idle\", expected one of \"acquired\", \"idle\" "
              "(did you mean idle?)",
              refusal("[channel.1]\nxpic_state = \"Idle\"\n"));
    EXPECT_EQ("link.toml:2:21: channel.2.lowest_modulation: found \"16 QAM\", expected a modulation, such as "
              "\"16QAM_LIGHT\" or \"4096QAM\" (did you mean 16QAM?)",
              refusal("[channel.2]\nlowest_modulation = \"16 QAM\"\n"));
}

TEST(WordKeyRefusalTest, AWordThatIsNotCloseIsAnsweredWithTheWordsThatThereAre)
{
    EXPECT_EQ("link.toml:2:16: broker.IRlbspKelApi: found \"present\", expected one of \"service\", \"absent\", "
              "\"empty\", \"other type\"",
              refusal("[broker]\nIRlbspKelApi = \"present\"\n"));
    EXPECT_EQ("link.toml:2:18: hop.frequency_plan: found \"\", expected one of \"13 GHz\", \"18 GHz\", \"23 GHz\"",
              refusal("[hop]\nfrequency_plan = \"\"\n"));
}

TEST(WordKeyRefusalTest, CoefficientsAre40HexadecimalDigits)
{
    const std::string digits(38, '0');
    for (const std::string& value : {digits, digits + "0", digits + "000", digits + "0g", digits + " 0", std::string()})
    {
        EXPECT_EQ("link.toml:2:20: channel.1.dpd_coefficients: found \"" + value +
                      "\", expected 20 bytes as 40 hexadecimal digits",
                  refusal("[channel.1]\ndpd_coefficients = \"" + value + "\"\n"));
    }
}

} // namespace
