#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "node/cli/Help.h"
#include "node/cli/Operation.h"

using node::cli::describe;
using node::cli::findOperation;
using node::cli::Operation;
using node::cli::operations;
using node::cli::overview;

namespace
{

TEST(HelpTest, TheOverviewListsEverything)
{
    EXPECT_EQ(R"(Usage: kel-node [COMMAND [ARGUMENT...]]

Runs one debug command on a simulated node. Without a command, runs those that
standard input holds, a line each, up to the first that fails.

Commands:
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
  help [COMMAND]           Print this, or the arguments of a command
  exit                     Leave the prompt

Numbers are decimal, or hexadecimal with 0x before them.

Exit status: 0 done, 1 a command failed, 2 a line was not understood,
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

TEST(HelpTest, EveryOperationIsDescribed)
{
    const std::vector<std::pair<std::string, std::string>> texts = {
        {"getCtStatus", R"(getCtStatus <channel>
Report status, capability and identity of a channel.

  channel  a number from 1 to 2: radio channel
)"},
        {"getBcmModemStatus", R"(getBcmModemStatus <channel>
Report the modem's status.

  channel  a number from 1 to 2: radio channel
)"},
        {"getPpsCalibrationStatus", R"(getPpsCalibrationStatus <channel>
Report the calibration of the PPS output.

  channel  a number from 1 to 2: radio channel
)"},
        {"getPpsHopLengthTime", R"(getPpsHopLengthTime <channel>
Report the time that the signal takes, in ns.

  channel  a number from 1 to 2: radio channel
)"},
        {"calibratePps", R"(calibratePps <channel> <mode> <value>
Calibrate the PPS output.

  channel  a number from 1 to 2: radio channel
  mode     a number from -2147483648 to 2147483647: 0 coarse, 1 fine, 2 auto, 3 manual; others fail
  value    a number from 0 to 65535: correction in ns, for mode 3
)"},
        {"setPpsSource", R"(setPpsSource <channel> <source> <parameter>
Choose the source of the PPS output.

  channel    a number from 1 to 2: radio channel
  source     a number from -2147483648 to 2147483647: 0, 1 or 2; others fail
  parameter  a number from -2147483648 to 2147483647: parameter of the source
)"},
        {"setPpsOutputMode", R"(setPpsOutputMode <channel> <mode>
Choose the mode of the PPS output.

  channel  a number from 1 to 2: radio channel
  mode     a number from -2147483648 to 2147483647: 0, 1 or 2; others fail
)"},
        {"startDpd", R"(startDpd <channel>
Start digital predistortion.

  channel  a number from 1 to 2: radio channel
)"},
        {"stopDpd", R"(stopDpd <channel>
Stop digital predistortion.

  channel  a number from 1 to 2: radio channel
)"},
        {"setDpdCoefficients", R"(setDpdCoefficients <channel> <coefficients>
Write the predistortion coefficients.

  channel       a number from 1 to 2: radio channel
  coefficients  20 bytes as 40 hexadecimal digits: in the controller's own coding
)"},
        {"getDpdCoefficients", R"(getDpdCoefficients <channel>
Print the predistortion coefficients.

  channel  a number from 1 to 2: radio channel
)"},
        {"setXpicSlaveMute", R"(setXpicSlaveMute <channel> <mute>
Mute or unmute the XPIC slave.

  channel  a number from 1 to 2: radio channel
  mute     a number from 0 to 255: 0 unmutes, others mute
)"},
        {"xpicAcquireStart", R"(xpicAcquireStart <channel> <acquireMode> <acquireOption>
Start an XPIC acquisition.

  channel        a number from 1 to 2: radio channel
  acquireMode    a number from 0 to 255: 0 to 2; others are refused
  acquireOption  a number from 0 to 255: 0 to 3; others are refused
)"},
        {"getXpicPreamble", R"(getXpicPreamble <channel>
Print the XPIC preamble, 255 for an unknown one.

  channel  a number from 1 to 2: radio channel
)"},
        {"setXpicPreamble", R"(setXpicPreamble <channel> <preamble>
Choose the XPIC preamble.

  channel   a number from 1 to 2: radio channel
  preamble  a number from 0 to 255: 0 to 3; others are refused
)"},
        {"getXpicStatus", R"(getXpicStatus <channel>
Report the status of the XPIC.

  channel  a number from 1 to 2: radio channel
)"},
    };
    EXPECT_EQ(operations().size(), texts.size());
    for (const auto& [name, text] : texts)
    {
        const Operation* const operation = findOperation(name);
        ASSERT_NE(nullptr, operation) << name;
        EXPECT_EQ(text, describe(*operation));
    }
}

} // namespace
