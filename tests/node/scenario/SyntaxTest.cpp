#include <ostream>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/scenario/ScenarioText.h"
#include "support/Portrait.h"

using scenario_text::parse;
using scenario_text::refusal;
using ::testing::ElementsAreArray;
using ::testing::EndsWith;
using ::testing::IsEmpty;
using ::testing::StartsWith;

namespace
{

/// A text that is no TOML, and where the parser stops.
struct SyntaxRow
{
    std::string name;
    std::string text;
    std::string place;
};

std::ostream& operator<<(std::ostream& stream, const SyntaxRow& row)
{
    return stream << row.name;
}

class SyntaxTest : public ::testing::TestWithParam<SyntaxRow>
{
};

/// What exactly is wrong is worded by the parser, another version of which may word it in another way.
TEST_P(SyntaxTest, MistakesAreRefusedWithTheirPlaceOnOneLine)
{
    const std::string start = GetParam().place + ": found a mistake in the TOML (";
    const std::string end = "), expected TOML 1.0";
    const std::string error = refusal(GetParam().text);
    EXPECT_THAT(error, StartsWith(start));
    EXPECT_THAT(error, EndsWith(end));
    EXPECT_GT(error.size(), start.size() + end.size());
    EXPECT_EQ(std::string::npos, error.find('\n'));
}

const SyntaxRow SyntaxRows[] = {
    {"MissingValue", "# a hop\nseed =", "link.toml:2:7"},
    {"MissingKey", "= 1\n", "link.toml:1:1"},
    {"OpenTable", "[hop\n", "link.toml:1:5"},
    {"SecondBracket", "[hop]]\n", "link.toml:1:6"},
    {"OpenString", "description = \"x\n", "link.toml:1:17"},
    {"OpenArray", "fault = [{}, 2", "link.toml:1:15"},
    {"UnknownEscape", R"(description = "\q")", "link.toml:1:17"},
    {"ControlCharacter", "description = \"a\x01\"\n", "link.toml:1:17"},
    {"LeadingZero", "\n\nseed = 01\n", "link.toml:3:10"},
    {"NumberBeyond64Bits", "seed = 9223372036854775808\n", "link.toml:1:27"},
    {"TwoValuesInALine", "seed = 1 seed = 2\n", "link.toml:1:10"},
    {"DuplicateKey", "description = \"x\"\ndescription = \"y\"\n", "link.toml:2:15"},
    {"DuplicateTable", "[hop]\n[node]\n[hop]\n", "link.toml:3:1"},
    {"DuplicateDottedKey", "hop.distance_km = 1\nhop.distance_km = 1\n", "link.toml:2:19"},
    {"BrokenWord", "throws = tru\ne\n", "link.toml:1:13"},
    {"BadUtf8", "# fine\ndescription = \"\xff\"\n", "link.toml:2:15"},
    {"CutUtf8", "description = \"\xc3", "link.toml:1:15"},
    {"OverlongUtf8", "description = \"\xc0\xaf\"\n", "link.toml:1:15"},
};

INSTANTIATE_TEST_SUITE_P(EveryKind, SyntaxTest, ::testing::ValuesIn(SyntaxRows),
                         [](const auto& row) { return row.param.name; });

TEST(EmptyScenarioTest, IsTheDefault)
{
    const auto lines = portrait::of({});
    for (const std::string text : {"", "\n", "   \n\t\n", "# nothing but words", "# one\n\n# two\n", "\r\n# three\r\n",
                                   "[node]\n[broker]\n[hop]\n[weather]\n[channel.1]\n[channel.2]\n",
                                   "fault = []\nweather = { rain = [], fade = [] }\nchannel = {}\n"})
    {
        EXPECT_THAT(portrait::of(parse(text)), ElementsAreArray(lines)) << text;
    }
    EXPECT_THAT(parse("").configuration.broker, IsEmpty());
}

TEST(LineEndingTest, FilesOfOtherSystemsAreReadWithTheSamePlaces)
{
    EXPECT_EQ("link.toml:3:15: hop.distance_km: found 101, expected a number from 0.1 to 100",
              refusal("# a hop\r\n[hop]\r\ndistance_km = 101\r\n"));
    EXPECT_EQ("link.toml:2:15: hop.distance_km: found 101, expected a number from 0.1 to 100",
              refusal("\xef\xbb\xbf[hop]\ndistance_km = 101\n"));
}

/// Columns count characters, as an editor does.
TEST(LineEndingTest, ColumnsCountCharactersNotBytes)
{
    EXPECT_EQ("link.toml:1:51: fault[1].channel: found 3, expected a whole number from 1 to 2",
              refusal("fault = [{ text = \"äöü\", throws = true, channel = 3 }]\n"));
}

} // namespace
