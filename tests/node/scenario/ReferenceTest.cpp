#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fmt/format.h>

#include "node/scenario/KeyList.h"
#include "node/scenario/Reference.h"

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::HasSubstr;
using ::testing::StartsWith;

namespace
{

std::vector<std::string> linesThatBeginWith(const std::string& start)
{
    std::vector<std::string> lines;
    const std::string text = node::scenario::reference();
    for (std::size_t begin = 0; begin < text.size();)
    {
        const std::size_t end = text.find('\n', begin);
        if (text.compare(begin, start.size(), start) == 0)
        {
            lines.push_back(text.substr(begin, end - begin));
        }
        begin = end + 1;
    }
    return lines;
}

TEST(ReferenceTest, BeginsWithWhatAScenarioIs)
{
    EXPECT_THAT(node::scenario::reference(), StartsWith(R"(# Scenario files

A scenario is a node to start, in TOML. Every key may be left out. Names end in their unit. What does not fit is
refused with its place, `FILE:LINE:COLUMN`, and no node starts.

## Before the first table

What the scenario is.

| Key | Takes | Default | Meaning |
|---|---|---|---|
| `description` | a text | none | What the scenario shows, for the list of scenarios |

## `[node]`

The node as a whole.

| Key | Takes | Default | Meaning |
|---|---|---|---|
| `radio_channels` | a whole number from 1 to 2 | `2` | Radio channels of the node |
)"));
}

TEST(ReferenceTest, HasASectionForEachTable)
{
    EXPECT_THAT(linesThatBeginWith("## "),
                ElementsAre("## Before the first table", "## `[node]`", "## `[hop]`", "## `[weather]`",
                            "## `[[weather.rain]]`", "## `[[weather.fade]]`", "## `[channel.1]`, `[channel.2]`",
                            "## `[broker]`", "## `[[fault]]`"));
}

TEST(ReferenceTest, EachSectionSaysWhatItIsAbout)
{
    const std::string text = node::scenario::reference();
    const std::string head = "\n\n| Key | Takes | Default | Meaning |\n|---|---|---|---|\n";
    for (const std::string section :
         {"## `[hop]`\n\nThe path, and what the two channels have in common.",
          "## `[weather]`\n\nBeside the two profiles below.",
          "## `[[weather.rain]]`\n\nThe points of the rain over time, in rising order. No points, no rain.",
          "## `[[weather.fade]]`\n\nThe points of the fade over time, in rising order. No points, no fade.",
          "## `[channel.1]`, `[channel.2]`\n\nOne of the two polarisations, at the start.",
          "## `[broker]`\n\nWhat the module finds when it looks up its services.",
          "## `[[fault]]`\n\nA fault, planned before the first call. As many as you like."})
    {
        EXPECT_THAT(text, HasSubstr("\n\n" + section + head));
    }
}

/// The rows without their last cell, the meaning.
TEST(ReferenceTest, HasARowForEachKey)
{
    std::vector<std::string> rows;
    for (const std::string& line : linesThatBeginWith("| `"))
    {
        rows.push_back(line.substr(0, line.rfind(" | ")));
    }

    std::vector<std::string> expected;
    for (const std::string table :
         {"", "node", "hop", "weather", "weather.rain", "weather.fade", "channel.1", "broker", "fault"})
    {
        for (const key_list::Row& row : key_list::all())
        {
            if (row.table == table)
            {
                expected.push_back(fmt::format("| `{}` | {} | {}", row.name, row.form,
                                               row.defaultText.empty() ? "none" : "`" + row.defaultText + "`"));
            }
        }
    }
    EXPECT_THAT(rows, ElementsAreArray(expected));
}

TEST(ReferenceTest, TellsTheMeaningOfAKeyInTheLastCell)
{
    EXPECT_THAT(
        linesThatBeginWith("| `pps_master_answers`"),
        ElementsAre("| `pps_master_answers` | true or false | `true` | The far end answers a PPS calibration |"));
    EXPECT_THAT(linesThatBeginWith("| `calls`"),
                ElementsAre("| `calls` | a whole number from 1 to 4294967295 | none | "
                            "How many calls to hit; without this key, all that follow |"));
}

} // namespace
