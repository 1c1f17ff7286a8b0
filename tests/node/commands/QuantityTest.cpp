#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "node/commands/Value.h"

using node::commands::ChannelPattern;
using node::commands::Distance;
using node::commands::FadeDepth;
using node::commands::FileName;
using node::commands::RainRate;
using node::commands::ScenarioName;
using node::commands::Switch;
using node::commands::TraceLevel;
using node::commands::TypedFault;

namespace
{

constexpr auto None = std::nullopt;

/// A typed word and the quantity that it is; none when it is not accepted.
struct Row
{
    std::string word;
    std::optional<double> quantity;
};

template <typename Quantity>
void expectRows(double Quantity::*member, const std::vector<Row>& rows)
{
    for (const Row& row : rows)
    {
        const auto parsed = Quantity::parse(row.word);
        EXPECT_EQ(row.quantity, parsed ? std::optional((*parsed).*member) : None) << '"' << row.word << '"';
    }
}

/// Words that are no quantity of any kind.
const std::vector<Row> NoNumbers = {{"", None},    {" ", None},   {"x", None},    {"+1", None},   {"1,5", None},
                                    {"1 ", None},  {" 1", None},  {"0x10", None}, {"nan", None},  {"inf", None},
                                    {"1km", None}, {"1dB", None}, {"--1", None},  {"1e400", None}};

TEST(QuantityTest, ARainRateIsAcceptedUpToItsBounds)
{
    expectRows(&RainRate::mm_per_h, {{"-1", None},
                                     {"-0.001", None},
                                     {"0", 0.0},
                                     {"0.001", 0.001},
                                     {"42.5", 42.5},
                                     {"1e2", 100.0},
                                     {"249.999", 249.999},
                                     {"250", 250.0},
                                     {"250.001", None},
                                     {"251", None}});
    expectRows(&RainRate::mm_per_h, NoNumbers);
    EXPECT_EQ("a number from 0 to 250 (mm/h)", RainRate::form());
}

TEST(QuantityTest, AFadeDepthIsAcceptedUpToItsBounds)
{
    expectRows(&FadeDepth::depth_dB, {{"-1", None},
                                      {"-0.001", None},
                                      {"0", 0.0},
                                      {"0.001", 0.001},
                                      {"99.999", 99.999},
                                      {"100", 100.0},
                                      {"100.001", None},
                                      {"101", None}});
    expectRows(&FadeDepth::depth_dB, NoNumbers);
    EXPECT_EQ("a number from 0 to 100 (dB)", FadeDepth::form());
}

TEST(QuantityTest, ADistanceIsAcceptedUpToItsBounds)
{
    expectRows(&Distance::distance_km, {{"-1", None},
                                        {"0", None},
                                        {"0.099", None},
                                        {"0.1", 0.1},
                                        {"0.101", 0.101},
                                        {"99.999", 99.999},
                                        {"100", 100.0},
                                        {"100.001", None},
                                        {"101", None}});
    expectRows(&Distance::distance_km, NoNumbers);
    EXPECT_EQ("a number from 0.1 to 100 (km)", Distance::form());
}

TEST(QuantityTest, ASwitchIsOnOrOff)
{
    ASSERT_TRUE(Switch::parse("on"));
    EXPECT_TRUE(Switch::parse("on")->on);
    ASSERT_TRUE(Switch::parse("off"));
    EXPECT_FALSE(Switch::parse("off")->on);
    for (const std::string word : {"", "On", "OFF", "o", "onn", " on", "off ", "1", "0", "true", "false", "yes"})
    {
        EXPECT_FALSE(Switch::parse(word)) << word;
    }
    EXPECT_EQ("on or off", Switch::form());
}

TEST(QuantityTest, ATraceLevelIsAcceptedUpToItsBounds)
{
    for (const auto& [word, level] : std::vector<std::pair<std::string, std::optional<int>>>{{"-1", None},
                                                                                             {"0", 0},
                                                                                             {"1", 1},
                                                                                             {"254", 254},
                                                                                             {"0xff", 255},
                                                                                             {"255", 255},
                                                                                             {"256", None},
                                                                                             {"", None},
                                                                                             {"1.0", None},
                                                                                             {"all", None}})
    {
        const auto parsed = TraceLevel::parse(word);
        EXPECT_EQ(level, parsed ? std::optional(parsed->level) : None) << '"' << word << '"';
    }
    EXPECT_EQ("a whole number from 0 to 255", TraceLevel::form());
}

TEST(QuantityTest, NamesAndPatternsAreTakenAsTheyStand)
{
    for (const std::string word : {"", "a b", "KEL.*", "../x.toml", "-"})
    {
        EXPECT_EQ(word, ScenarioName::parse(word)->word);
        EXPECT_EQ(word, ChannelPattern::parse(word)->word);
        EXPECT_EQ(word, FileName::parse(word)->word);
    }
}

TEST(QuantityTest, TheFormsOfWordsAreWorded)
{
    EXPECT_EQ("a name that \"listScenarios\" lists, or a TOML file", ScenarioName::form());
    EXPECT_EQ("a name, with * for any letters and ? for any one", ChannelPattern::form());
    EXPECT_EQ("a file that can be written", FileName::form());
    EXPECT_EQ("a file that can be written, - for standard output", node::commands::TableName::form());
    EXPECT_EQ("a file that \"record\" wrote", node::commands::RecordingName::form());
    EXPECT_EQ("a call that \"listCalls\" lists, then any of the keys", TypedFault::form());
}

} // namespace
