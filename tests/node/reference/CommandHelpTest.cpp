#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "node/commands/Command.h"
#include "node/reference/Help.h"

namespace
{

/// A command, and what its help says.
struct Row
{
    std::string name;
    std::string text;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << row.name;
}

const std::vector<Row> Rows = {
    {"getCtStatus", R"(getCtStatus <channel>
Report status, capability and identity of a channel.

  channel  a whole number from 1 to 2: radio channel
)"},
    {"getBcmModemStatus", R"(getBcmModemStatus <channel>
Report the modem's status.

  channel  a whole number from 1 to 2: radio channel
)"},
    {"getPpsCalibrationStatus", R"(getPpsCalibrationStatus <channel>
Report the calibration of the PPS output.

  channel  a whole number from 1 to 2: radio channel
)"},
    {"getPpsHopLengthTime", R"(getPpsHopLengthTime <channel>
Report the time that the signal takes, in ns.

  channel  a whole number from 1 to 2: radio channel
)"},
    {"calibratePps", R"(calibratePps <channel> <mode> <value>
Calibrate the PPS output.

  channel  a whole number from 1 to 2: radio channel
  mode     a whole number from -2147483648 to 2147483647: 0 coarse, 1 fine, 2 auto, 3 manual; others fail
  value    a whole number from 0 to 65535: travel time over the hop in ns, for mode 3
)"},
    {"setPpsSource", R"(setPpsSource <channel> <source> <parameter>
Choose the source of the PPS output.

  channel    a whole number from 1 to 2: radio channel
  source     a whole number from -2147483648 to 2147483647: 0, 1 or 2; others fail
  parameter  a whole number from -2147483648 to 2147483647: parameter of the source
)"},
    {"setPpsOutputMode", R"(setPpsOutputMode <channel> <mode>
Choose the mode of the PPS output.

  channel  a whole number from 1 to 2: radio channel
  mode     a whole number from -2147483648 to 2147483647: 0, 1 or 2; others fail
)"},
    {"startDpd", R"(startDpd <channel>
Start digital predistortion.

  channel  a whole number from 1 to 2: radio channel
)"},
    {"stopDpd", R"(stopDpd <channel>
Stop digital predistortion.

  channel  a whole number from 1 to 2: radio channel
)"},
    {"setDpdCoefficients", R"(setDpdCoefficients <channel> <coefficients>
Write the predistortion coefficients.

  channel       a whole number from 1 to 2: radio channel
  coefficients  20 bytes as 40 hexadecimal digits: in the controller's own coding
)"},
    {"getDpdCoefficients", R"(getDpdCoefficients <channel>
Print the predistortion coefficients.

  channel  a whole number from 1 to 2: radio channel
)"},
    {"setXpicSlaveMute", R"(setXpicSlaveMute <channel> <mute>
Mute or unmute the XPIC slave.

  channel  a whole number from 1 to 2: radio channel
  mute     a whole number from 0 to 255: 0 unmutes, others mute
)"},
    {"xpicAcquireStart", R"(xpicAcquireStart <channel> <acquireMode> <acquireOption>
Start an XPIC acquisition.

  channel        a whole number from 1 to 2: radio channel
  acquireMode    a whole number from 0 to 255: 0 full sweep, 1 narrow sweep, 2 direct; others are refused
  acquireOption  a whole number from 0 to 255: 1 retry, 2 re-acquire after a loss, 3 both, 0 neither; others are refused
)"},
    {"getXpicPreamble", R"(getXpicPreamble <channel>
Print the XPIC preamble, 255 for an unknown one.

  channel  a whole number from 1 to 2: radio channel
)"},
    {"setXpicPreamble", R"(setXpicPreamble <channel> <preamble>
Choose the XPIC preamble.

  channel   a whole number from 1 to 2: radio channel
  preamble  a whole number from 0 to 255: 0 to 3; others are refused
)"},
    {"getXpicStatus", R"(getXpicStatus <channel>
Report the status of the XPIC.

  channel  a whole number from 1 to 2: radio channel
)"},
    {"showLink", R"(showLink
Print the link: time, weather, every channel.
)"},
    {"advance", R"(advance <time>
Let time go on.

  time  a time from 0.1s to 100h in steps of 0.1s, such as 30, 1.5s, 10min or 2h: how long
)"},
    {"setRain", R"(setRain <rate> [<over>]
Turn the rain to a rate.

  rate  a number from 0 to 250 (mm/h): rain over the whole hop
  over  a time from 0.1s to 100h in steps of 0.1s, such as 30, 1.5s, 10min or 2h: how long it takes to get there; without it, at once
)"},
    {"setFade", R"(setFade <depth> [<over>]
Turn the fade to a depth.

  depth  a number from 0 to 100 (dB): loss that is neither rain nor gas
  over   a time from 0.1s to 100h in steps of 0.1s, such as 30, 1.5s, 10min or 2h: how long it takes to get there; without it, at once
)"},
    {"setDistance", R"(setDistance <distance>
Move the far end.

  distance  a number from 0.1 to 100 (km): length of the hop
)"},
    {"setTransmitter", R"(setTransmitter <channel> <state>
Switch a channel's transmitters, at both ends.

  channel  a whole number from 1 to 2: radio channel
  state    on or off: whether they transmit
)"},
    {"setXpicCable", R"(setXpicCable <channel> <state>
Plug or unplug the XPIC cable of a channel.

  channel  a whole number from 1 to 2: radio channel
  state    on or off: whether it is plugged
)"},
    {"setPpsMaster", R"(setPpsMaster <channel> <state>
Let the far end answer PPS calibrations, or not.

  channel  a whole number from 1 to 2: radio channel
  state    on or off: whether it answers
)"},
    {"sample", R"(sample <time> <step> <file>
Let time go on and write a table of it (CSV).

  time  a time from 0.1s to 100h in steps of 0.1s, such as 30, 1.5s, 10min or 2h: how long
  step  a time from 0.1s to 100h in steps of 0.1s, such as 30, 1.5s, 10min or 2h: time between two samples
  file  a file that can be written, - for standard output: where to write; what is there is replaced
)"},
    {"plot", R"(plot <time> [<file>]
Let time go on and draw level, SNIR and modulation.

  time  a time from 0.1s to 100h in steps of 0.1s, such as 30, 1.5s, 10min or 2h: how long
  file  a file that can be written, ending in .svg or .png: picture to write; without it, the drawing is printed in letters
)"},
    {"loadScenario", R"(loadScenario <scenario>
End the node and start the one of a scenario.

  scenario  a name that "listScenarios" lists, or a TOML file: which one
)"},
    {"listScenarios", R"(listScenarios
List the ready scenarios.
)"},
    {"addFault", R"(addFault <call> [KEY=VALUE...]
Plan a fault of a platform call.

  call  a call that "listCalls" lists, then any of the keys: which call, and what shall happen to it

Keys:
  channel    a whole number from 1 to 2:
             For which radio channel; without this key, for all
  code       a whole number from -2147483648 to 2147483647:
             Code to answer; without this key, a refusal: 1 in the top-level API, 32768 elsewhere; 0 for a mere number
  text       a text:
             Text to answer or to throw; without this key, "planned fault"
  throws     true or false:
             Throws instead of answering
  from_call  a whole number from 1 to 4294967295:
             First call to hit, counted since the fault was planned
  calls      a whole number from 1 to 4294967295:
             How many calls to hit; without this key, all that follow
)"},
    {"listFaults", R"(listFaults
List the planned faults and how often they hit.
)"},
    {"clearFaults", R"(clearFaults
Drop all planned faults.
)"},
    {"listCalls", R"(listCalls
List the platform calls that can fail.
)"},
    {"setTraceLevel", R"(setTraceLevel <channels> <level>
Choose how much trace channels let through.

  channels  a name, with * for any letters and ? for any one: which trace channels
  level     a whole number from 0 to 255: up to which level; 0 for none
)"},
    {"listTraceLevels", R"(listTraceLevels
List the trace channels with their levels.
)"},
    {"help", R"(help [<topic>]
Print every command, or the arguments of one.

  topic  a command, or scenario: what about
)"},
    {"watch", R"(watch [-n <seconds>] [-c <count>] <command>
Carry out a command again and again and mark what changes.

  seconds  a time from 0.1s to 100h in steps of 0.1s, such as 30, 1.5s, 10min or 2h: time from one round to the next, 2s without it
  count    a whole number from 1 to 1000000: number of rounds; without it, until Ctrl-C
  command  a command that "help" lists, with its arguments: what to carry out
)"},
    {"record", R"(record <file>
Keep commands and answers in a file, from the node's start on.

  file  a file that can be written: where to write; what is there is replaced
)"},
    {"stopRecord", R"(stopRecord
End the recording.
)"},
    {"replay", R"(replay <file>
Carry out a recording again and compare the answers.

  file  a file that "record" wrote: what to carry out
)"},
    {"filterTrace", R"(filterTrace <channels> [<level>]
Show some trace messages and no others.

  channels  a name, with * for any letters and ? for any one: of which trace channels
  level     a whole number from 0 to 255: up to which level; without it, all
)"},
    {"traceFile", R"(traceFile <file>
Write trace messages to a file too, as JSON lines.

  file  a file that can be written: where to write; what is there is replaced
)"},
    {"stopTraceFile", R"(stopTraceFile
End the trace file.
)"},
    {"exit", R"(exit
Leave the prompt, or end the script.
)"},
};

class CommandHelpTest : public ::testing::TestWithParam<Row>
{
};

TEST_P(CommandHelpTest, SaysWhatTheCommandDoesAndWhatItTakes)
{
    EXPECT_EQ(GetParam().text, node::reference::describe(node::commands::commandNamed(GetParam().name)));
}

INSTANTIATE_TEST_SUITE_P(EveryCommand, CommandHelpTest, ::testing::ValuesIn(Rows),
                         [](const auto& row) { return row.param.name; });

TEST(CommandHelpTableTest, HasEveryCommandInOrder)
{
    std::vector<std::string> expected;
    for (const auto& group : node::commands::commandGroups())
    {
        for (const auto& command : group.commands)
        {
            expected.push_back(command.name);
        }
    }
    std::vector<std::string> found;
    for (const Row& row : Rows)
    {
        found.push_back(row.name);
    }
    EXPECT_EQ(expected, found);
}

} // namespace
