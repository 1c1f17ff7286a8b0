#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "node/commands/Command.h"
#include "node/reference/Help.h"
#include "node/scenario/Reference.h"

using node::commands::Command;
using node::commands::commandNamed;
using node::commands::Extent;
using node::reference::describe;
using node::reference::helpOn;
using node::reference::overview;

namespace
{

TEST(HelpTest, TheOverviewListsEverything)
{
    EXPECT_EQ(R"(Usage: kel-node [OPTION...] [COMMAND [ARGUMENT...]]

Runs one command on a simulated node. Without a command, runs those that
standard input holds, a line each, up to the first that fails.

Options:
  -s, --scenario NAME|FILE Start the node of that scenario
  -f, --file FILE          Carry out the lines of a file, - for standard input
  -k, --keep-going         Go on after a failure (the exit status still tells
                           it)
  --json                   Print a JSON document for each command
  --clock told|wall        Let time go on when told ("advance"), as scripts do,
                           or with the clock on the wall, as prompts do
  --record FILE            Record the commands and their answers
  --trace CHANNELS[:LEVEL] Show the trace messages of these channels alone, up
                           to that level
  --trace-file FILE        Write trace messages to a file too, as JSON lines
  -h, --help               Print this
  --version                Print the version

Debug commands:
  getCtStatus              Report status, capability and identity of a channel
  getBcmModemStatus        Report the modem's status
  getPpsCalibrationStatus  Report the calibration of the PPS output
  getPpsHopLengthTime      Report the time that the signal takes, in ns
  calibratePps             Calibrate the PPS output
  setPpsSource             Choose the source of the PPS output
  setPpsOutputMode         Choose the mode of the PPS output
  startDpd                 Start digital predistortion
  stopDpd                  Stop digital predistortion
  setDpdCoefficients       Write the predistortion coefficients
  getDpdCoefficients       Print the predistortion coefficients
  setXpicSlaveMute         Mute or unmute the XPIC slave
  xpicAcquireStart         Start an XPIC acquisition
  getXpicPreamble          Print the XPIC preamble, 255 for an unknown one
  setXpicPreamble          Choose the XPIC preamble
  getXpicStatus            Report the status of the XPIC

The link:
  showLink                 Print the link: time, weather, every channel
  advance                  Let time go on
  setRain                  Turn the rain to a rate
  setFade                  Turn the fade to a depth
  setDistance              Move the far end
  setTransmitter           Switch a channel's transmitters, at both ends
  setXpicCable             Plug or unplug the XPIC cable of a channel
  setPpsMaster             Let the far end answer PPS calibrations, or not
  sample                   Let time go on and write a table of it (CSV)
  plot                     Let time go on and draw level, SNIR and modulation

The node:
  loadScenario             End the node and start the one of a scenario
  listScenarios            List the ready scenarios
  addFault                 Plan a fault of a platform call
  listFaults               List the planned faults and how often they hit
  clearFaults              Drop all planned faults
  listCalls                List the platform calls that can fail
  setTraceLevel            Choose how much trace channels let through
  listTraceLevels          List the trace channels with their levels

The command line:
  help                     Print every command, or the arguments of one
  watch                    Carry out a command again and again and mark what
                           changes
  record                   Keep commands and answers in a file, from the node's
                           start on
  stopRecord               End the recording
  replay                   Carry out a recording again and compare the answers
  filterTrace              Show some trace messages and no others
  traceFile                Write trace messages to a file too, as JSON lines
  stopTraceFile            End the trace file
  exit                     Leave the prompt, or end the script

"help COMMAND" prints what a command takes, "help scenario" every key of a
scenario file.

The beginning of a name does for the whole where no other command begins so.
Whole numbers are decimal, or hexadecimal with 0x before them; times and all
others are decimal. Options of a command stand before its arguments, as "-n 5"
or "-n5"; "--" ends them. A word with blanks in it stands in double quotes;
between them, a backslash takes the next letter as it is. A line that begins
with '#' is a comment.

Exit status:
  0                        All is done
  1                        A command failed, or Ctrl-C ended it; a watch that
                           Ctrl-C ends has the status of its last round
  2                        An option, a line or a scenario was not understood;
                           nothing of it was done
  3                        The node did not start
)",
              overview());
}

TEST(HelpTest, TheOverviewFitsAScreenOf80Columns)
{
    std::istringstream text(overview());
    for (std::string line; std::getline(text, line);)
    {
        EXPECT_LE(line.size(), 80U) << line;
    }
}

TEST(HelpTest, OnScenariosIsTheReferenceOfTheirKeys)
{
    EXPECT_EQ(node::scenario::reference(), helpOn("scenario"));
    EXPECT_TRUE(helpOn("scenario").starts_with("# Scenario files\n"));
    EXPECT_EQ(node::scenario::reference(), helpOn("scen"));
}

TEST(HelpTest, OnACommandDescribesIt)
{
    EXPECT_EQ(describe(commandNamed("setRain")), helpOn("setRain"));
    EXPECT_EQ(describe(commandNamed("help")), helpOn("help"));
}

TEST(HelpTest, OnTheBeginningOfASingleNameDescribesThatCommand)
{
    EXPECT_EQ(describe(commandNamed("setRain")), helpOn("setR"));
}

TEST(HelpTest, TheListOfCommandsIsThatOfTheOverview)
{
    EXPECT_NE(std::string::npos, overview().find("\n\n" + node::reference::commandList() + "\n\"help COMMAND\""));
}

Command made(std::vector<node::commands::Argument> arguments, const std::string& details)
{
    return {"command", "Does it", std::move(arguments), details, nullptr};
}

TEST(HelpTest, ACommandWithoutArgumentsHasItsSummaryAlone)
{
    EXPECT_EQ("command\nDoes it.\n", describe(made({}, "")));
}

TEST(HelpTest, OptionalArgumentsStandInBrackets)
{
    EXPECT_EQ("command <a> [<bcd>] [<ef>]\n"
              "Does it.\n"
              "\n"
              "  a    one: first\n"
              "  bcd  two: second\n"
              "  ef   three: third\n",
              describe(made(
                  {{"a", "one", "first", false}, {"bcd", "two", "second", true}, {"ef", "three", "third", true}}, "")));
}

TEST(HelpTest, OptionsStandWithTheirWordBeforeTheOthers)
{
    EXPECT_EQ("command [-n <seconds>] [-c <count>] <a>\n"
              "Does it.\n"
              "\n"
              "  seconds  one: first\n"
              "  count    two: second\n"
              "  a        three: third\n",
              describe(made({{.name = "seconds", .form = "one", .meaning = "first", .optional = true, .option = "-n"},
                             {.name = "count", .form = "two", .meaning = "second", .optional = true, .option = "-c"},
                             {.name = "a", .form = "three", .meaning = "third", .extent = Extent::Command}},
                            "")));
}

TEST(HelpTest, AnArgumentThatTakesAllWordsSaysSo)
{
    EXPECT_EQ("command <a>...\nDoes it.\n\n  a  one: first\n",
              describe(made({{.name = "a", .form = "one", .meaning = "first", .extent = Extent::Words}}, "")));
    EXPECT_EQ("command [<a>...]\nDoes it.\n\n  a  one: first\n",
              describe(made(
                  {{.name = "a", .form = "one", .meaning = "first", .optional = true, .extent = Extent::Words}}, "")));
    EXPECT_EQ("command <a> [KEY=VALUE...]\nDoes it.\n\n  a  one: first\n",
              describe(made(
                  {{.name = "a", .form = "one", .meaning = "first", .more = "[KEY=VALUE...]", .extent = Extent::Words}},
                  "")));
}

TEST(HelpTest, DetailsStandLast)
{
    EXPECT_EQ("command\nDoes it.\n\nMore.\n", describe(made({}, "More.\n")));
    EXPECT_EQ("command <a>\nDoes it.\n\n  a  one: first\n\nMore.\n",
              describe(made({{"a", "one", "first", false}}, "More.\n")));
}

} // namespace
