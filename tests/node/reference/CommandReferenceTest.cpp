#include <algorithm>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/cli/Transcript.h"
#include "node/commands/Command.h"
#include "node/reference/CommandReference.h"
#include "node/reference/PromptExamples.h"

using node::reference::commandReference;
using node::reference::promptExample;
using ::testing::ContainsRegex;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;
using ::testing::UnorderedElementsAre;

namespace
{

/// Instead of a node: the lines alone.
std::string typedLines(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines)
    {
        text += "> " + line + "\n";
    }
    return text;
}

TEST(CommandReferenceTest, IsThePageInTheTree)
{
    std::ifstream page(KEL_SOURCE_DIR "/docs/commands.md", std::ios::binary);
    EXPECT_EQ(commandReference(node::cli::transcript), std::string(std::istreambuf_iterator<char>(page), {}));
}

TEST(CommandReferenceTest, NoExampleIsMistyped)
{
    // An operation that fails is worth showing; a line that is refused is a mistake of the page's.
    EXPECT_THAT(commandReference(node::cli::transcript), Not(ContainsRegex("\nkel-node: [^\n]*: found ")));
}

TEST(CommandReferenceTest, BeginsWithHowACommandIsTyped)
{
    EXPECT_THAT(commandReference(typedLines), StartsWith(R"(# Commands

What `kel-node` carries out: on its command line, in a script, at its prompt.

The beginning of a name does for the whole where no other command begins so. Whole numbers are decimal, or hexadecimal
with 0x before them; times and all others are decimal. Options of a command stand before its arguments, as "-n 5" or
"-n5"; "--" ends them. A word with blanks in it stands in double quotes; between them, a backslash takes the next letter
as it is. A line that begins with '#' is a comment.

## Debug commands

### getCtStatus

```
getCtStatus <channel>
```

Report status, capability and identity of a channel.

| Argument | Takes | Meaning |
|---|---|---|
| channel | a whole number from 1 to 2 | radio channel |

```
> getCtStatus 1
```

### getBcmModemStatus
)"));
}

TEST(CommandReferenceTest, ACommandWithoutArgumentsHasNoTable)
{
    EXPECT_THAT(commandReference(typedLines), HasSubstr(R"(
### showLink

```
showLink
```

Print the link: time, weather, every channel.

```
> showLink
```

### advance
)"));
}

TEST(CommandReferenceTest, DetailsStandBelowTheTable)
{
    EXPECT_THAT(commandReference(typedLines), HasSubstr(R"(
### addFault

```
addFault <call> [KEY=VALUE...]
```

Plan a fault of a platform call.

| Argument | Takes | Meaning |
|---|---|---|
| call | a call that "listCalls" lists, then any of the keys | which call, and what shall happen to it |

```
Keys:
  channel )"));
    EXPECT_THAT(commandReference(typedLines), HasSubstr(R"(
             How many calls to hit; without this key, all that follow
```

```
> addFault tiManageXpic text="no answer" calls=1
> getXpicPreamble 1
> getXpicPreamble 1
```

### listFaults
)"));
}

TEST(CommandReferenceTest, MarksOfMarkdownAreEscaped)
{
    EXPECT_THAT(
        commandReference(typedLines),
        HasSubstr("| channels | a name, with \\* for any letters and ? for any one | which trace channels |\n"));
}

TEST(CommandReferenceTest, ShowsEachCommandAtWorkButThoseOfFilesAndTheTerminal)
{
    std::vector<std::string> without;
    for (const std::string& name : node::commands::commandNames())
    {
        const auto example = promptExample(node::commands::commandNamed(name));
        const auto shows = [&](const std::string& line) { return line == name || line.starts_with(name + " "); };
        if (std::none_of(example.begin(), example.end(), shows))
        {
            without.push_back(name);
        }
    }
    EXPECT_THAT(without,
                UnorderedElementsAre("plot", "record", "stopRecord", "replay", "traceFile", "stopTraceFile", "exit"));
}

TEST(CommandReferenceTest, HasEveryCommandUnderItsGroup)
{
    std::string expected;
    for (const auto& group : node::commands::commandGroups())
    {
        expected += "## " + group.heading + "\n";
        for (const auto& command : group.commands)
        {
            expected += "### " + command.name + "\n";
        }
    }
    std::string found;
    std::istringstream lines(commandReference(typedLines));
    for (std::string line; std::getline(lines, line);)
    {
        found += line.starts_with("##") ? line + "\n" : "";
    }
    EXPECT_EQ(expected, found);
}

} // namespace
