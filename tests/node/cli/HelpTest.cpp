#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "node/cli/Command.h"
#include "node/cli/Help.h"
#include "node/scenario/Reference.h"

using node::cli::Command;
using node::cli::commandNamed;
using node::cli::describe;
using node::cli::helpOn;
using node::cli::overview;

namespace
{

TEST(HelpTest, TheOverviewListsEverything)
{
    EXPECT_EQ(R"(Usage: kel-node [OPTION...] [COMMAND [ARGUMENT...]]

Runs one command on a simulated node. Without a command, runs those that
standard input holds, a line each, up to the first that fails.

Options:
  -s, --scenario NAME|FILE Start the node of that scenario
  --clock told|wall        Let time go on when told ("advance"), as scripts do,
                           or with the clock on the wall, as prompts do
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

The node:
  loadScenario             End the node and start the one of a scenario
  listScenarios            List the ready scenarios
  addFault                 Plan a fault of a platform call
  listFaults               List the planned faults and how often they hit
  clearFaults              Drop all planned faults
  listCalls                List the platform calls that can fail
  setTraceLevel            Choose how much trace channels let through
  listTraceLevels          List the trace channels with their levels

Everywhere:
  help [COMMAND]           Print this, or the arguments of a command
  help scenario            Print every key of a scenario file
  exit                     Leave the prompt

Numbers are decimal, or hexadecimal with 0x before them. A word with blanks in
it stands in double quotes.

Exit status: 0 done, 1 a command failed, 2 a line or scenario not understood,
3 the node did not start.
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

TEST(HelpTest, OnItsOwnWordsIsTheOverviewThatTellsThem)
{
    EXPECT_EQ(overview(), helpOn("help"));
    EXPECT_EQ(overview(), helpOn("exit"));
}

TEST(HelpTest, OnScenariosIsTheReferenceOfTheirKeys)
{
    EXPECT_EQ(node::scenario::reference(), helpOn("scenario"));
    EXPECT_TRUE(helpOn("scenario").starts_with("# Scenario files\n"));
}

TEST(HelpTest, OnACommandDescribesIt)
{
    EXPECT_EQ(describe(commandNamed("setRain")), helpOn("setRain"));
}

Command made(std::vector<node::cli::Argument> arguments, const std::string& details)
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

TEST(HelpTest, DetailsStandLast)
{
    EXPECT_EQ("command\nDoes it.\n\nMore.\n", describe(made({}, "More.\n")));
    EXPECT_EQ("command <a>\nDoes it.\n\n  a  one: first\n\nMore.\n",
              describe(made({{"a", "one", "first", false}}, "More.\n")));
}

} // namespace
