#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/commands/Command.h"
#include "node/reference/Help.h"
#include "node/reference/HowTo.h"
#include "node/reference/ManPage.h"
#include "node/reference/ProgramOptions.h"
#include "support/Shell.h"
#include "support/TemporaryFolder.h"

using ::testing::HasSubstr;

namespace
{

class ManPageTest : public ::testing::Test
{
protected:
    /// What a terminal shows, from the first heading to the second one.
    std::string shown(const std::string& first, const std::string& second) const
    {
        const std::string text = inShell("groff -man -Tutf8 -rLL=78n -P-cbou " + page).output;
        const auto begin = text.find("\n" + first + "\n");
        const auto end = text.find("\n" + second + "\n");
        EXPECT_TRUE(begin < end) << text;
        return begin < end ? text.substr(begin, end - begin) : "";
    }

    TemporaryFolder folder;
    std::string page = folder.write("kel-node.1", node::reference::manPage("1.2.3", "2026-01-31"));
};

TEST_F(ManPageTest, GivesNoWarning)
{
    EXPECT_EQ("", inShell("groff -ww -man -Tutf8 " + page + " 2>&1 >/dev/null").output);
    EXPECT_EQ("", inShell("man --warnings -E UTF-8 -l -Tutf8 -Z " + page + " 2>&1 >/dev/null").output);
}

TEST_F(ManPageTest, GivesNoWarningToAnotherFormatter)
{
    if (inShell("command -v mandoc").status != 0)
    {
        GTEST_SKIP() << "mandoc is not installed";
    }
    EXPECT_EQ("", inShell("mandoc -T lint -W warning " + page).output);
}

TEST_F(ManPageTest, SaysWhichEditionItIs)
{
    const std::string text = inShell("groff -man -Tutf8 -rLL=78n -P-cbou " + page).output;
    EXPECT_TRUE(text.starts_with("KEL-NODE(1)                      User Commands                     KEL-NODE(1)\n"))
        << text;
    EXPECT_TRUE(text.ends_with("\nkel-node 1.2.3                    2026-01-31                       KEL-NODE(1)\n"))
        << text;
}

TEST_F(ManPageTest, BeginsWithWhatTheProgramIsAndDoes)
{
    EXPECT_EQ(R"(
NAME
       kel-node - simulated node of a radio link that runs debug commands

SYNOPSIS
       kel-node [OPTION...] [COMMAND [ARGUMENT...]]

DESCRIPTION
       Starts a simulated node with a radio link behind it, and carries out
       debug commands on it.  With a command on the command line it carries
       out that one.  Without, it carries out the lines that standard input
       holds, up to the first that fails; at a terminal it prompts for them.

       From a script and for a command on the command line, time stands still
       but for the commands that let it go on.  At a prompt it goes on with
       the clock on the wall.

       At the prompt, the tabulator key completes the word that is typed, and
       a question mark tells what may come next.

       Reports go to standard output, trace messages and errors to standard
       error.
)",
              shown("NAME", "OPTIONS"));
}

TEST_F(ManPageTest, TellsWhatEachOptionDoes)
{
    const std::string text = shown("OPTIONS", "COMMANDS");
    EXPECT_TRUE(text.starts_with(R"(
OPTIONS
       -s, --scenario NAME|FILE
              Start the node of that scenario.

       -f, --file FILE
              Carry out the lines of a file, - for standard input.
)")) << text;
    for (const auto& option : node::reference::programOptions())
    {
        EXPECT_THAT(text, HasSubstr("\n       " + usage(option)));
    }
}

/// The text with one blank for each row of blanks and line ends.
std::string flowing(const std::string& text)
{
    std::istringstream words(text);
    std::string flow;
    for (std::string word; words >> word;)
    {
        flow += (flow.empty() ? "" : " ") + word;
    }
    return flow;
}

TEST_F(ManPageTest, TellsWhatEachCommandTakes)
{
    std::string expected = std::string("COMMANDS ") + node::reference::HowToType;
    for (const auto& group : node::commands::commandGroups())
    {
        expected += " " + group.heading;
        for (const auto& command : group.commands)
        {
            expected += " " + node::reference::usage(command) + " " + command.summary + ".";
            for (const auto& argument : command.arguments)
            {
                expected += " " + argument.name + " " + argument.form + ": " + argument.meaning;
            }
            expected += command.details.empty() ? "" : " " + flowing(command.details);
        }
    }
    EXPECT_EQ(expected, flowing(shown("COMMANDS", "SCENARIOS")));
}

TEST_F(ManPageTest, ArgumentsStandBelowTheirCommand)
{
    EXPECT_THAT(shown("COMMANDS", "SCENARIOS"), HasSubstr(R"(
   The link
       showLink
              Print the link: time, weather, every channel.

       advance <time>
              Let time go on.

              time   a time from 0.1s to 100h in steps of 0.1s, such as 30,
                     1.5s, 10min or 2h: how long

       setRain <rate> [<over>]
              Turn the rain to a rate.

              rate   a number from 0 to 250 (mm/h): rain over the whole hop

              over   a time from 0.1s to 100h in steps of 0.1s, such as 30,
                     1.5s, 10min or 2h: how long it takes to get there;
                     without it, at once

       setFade <depth> [<over>]
)"));
}

TEST_F(ManPageTest, EndsWithWhatIsAroundTheProgram)
{
    EXPECT_EQ(R"(
SCENARIOS
       A scenario says how the node begins: the hop, the weather, the
       channels, the faults.  "kel-node listScenarios" lists the ready ones.
       A name with a slash in it or with ".toml" at its end is a file;
       "kel-node help scenario" prints every key of one.

EXIT STATUS
       0      All is done.

       1      A command failed, or Ctrl-C ended it; a watch that Ctrl-C ends
              has the status of its last round.

       2      An option, a line or a scenario was not understood; nothing of
              it was done.

       3      The node did not start.

ENVIRONMENT
       KEL_NODE_SCENARIOS
              The folder of the ready scenarios, in place of the one that
              comes along.

       NO_COLOR
              Where it is set and not empty, nothing is printed in colours.

       TERM   The terminal. Where it is "dumb" or not set, nothing is printed
              in colours or drawn anew.

       XDG_STATE_HOME
              The folder below which the history is kept; ~/.local/state
              without it.

FILES
       ~/.local/state/kel-node/history
              The lines that were typed at the prompt.

       ~/.editrc
              The keys of the prompt, as editrc(5) tells.
)",
              shown("SCENARIOS", "EXAMPLES"));
}

TEST_F(ManPageTest, ShowsEachExampleAsItIsTyped)
{
    const std::string text = inShell("groff -man -Tutf8 -rLL=78n -P-cbou " + page).output;
    for (const auto& example : node::reference::shellExamples())
    {
        EXPECT_THAT(text, HasSubstr("\n       " + example.purpose + ":\n           $ " + example.line + "\n"));
    }
}

} // namespace
