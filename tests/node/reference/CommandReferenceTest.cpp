#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/commands/Command.h"
#include "node/reference/CommandReference.h"

using node::reference::commandReference;
using ::testing::HasSubstr;
using ::testing::StartsWith;

namespace
{

TEST(CommandReferenceTest, IsThePageInTheTree)
{
    std::ifstream page(KEL_SOURCE_DIR "/docs/commands.md", std::ios::binary);
    EXPECT_EQ(commandReference(), std::string(std::istreambuf_iterator<char>(page), {}));
}

TEST(CommandReferenceTest, BeginsWithHowACommandIsTyped)
{
    EXPECT_THAT(commandReference(), StartsWith(R"(# Commands

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

### getBcmModemStatus
)"));
}

TEST(CommandReferenceTest, ACommandWithoutArgumentsHasNoTable)
{
    EXPECT_THAT(commandReference(), HasSubstr(R"(
### showLink

```
showLink
```

Print the link: time, weather, every channel.

### advance
)"));
}

TEST(CommandReferenceTest, DetailsStandBelowTheTable)
{
    EXPECT_THAT(commandReference(), HasSubstr(R"(
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
    EXPECT_THAT(commandReference(), HasSubstr(R"(
             How many calls to hit; without this key, all that follow
```

### listFaults
)"));
}

TEST(CommandReferenceTest, MarksOfMarkdownAreEscaped)
{
    EXPECT_THAT(
        commandReference(),
        HasSubstr("| channels | a name, with \\* for any letters and ? for any one | which trace channels |\n"));
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
    std::istringstream lines(commandReference());
    for (std::string line; std::getline(lines, line);)
    {
        found += line.starts_with("##") ? line + "\n" : "";
    }
    EXPECT_EQ(expected, found);
}

} // namespace
