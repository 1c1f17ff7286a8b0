#include "node/commands/CommandGroups.h"

#include "node/commands/Binding.h"

namespace node::commands
{

CommandGroup debugCommands()
{
    using Commands = IRlbspKelApi::KelDebugCmdCallback;
    return {
        "Debug commands",
        {
            makeCommand("getCtStatus", &Commands::getCtStatus, "Report status, capability and identity of a channel"),
            makeCommand("getBcmModemStatus", &Commands::getBcmModemStatus, "Report the modem's status"),
            makeCommand("getPpsCalibrationStatus", &Commands::getPpsCalibrationStatus,
                        "Report the calibration of the PPS output"),
            makeCommand("getPpsHopLengthTime", &Commands::getPpsHopLengthTime,
                        "Report the time that the signal takes, in ns"),
            makeCommand("calibratePps", &Commands::calibratePps, "Calibrate the PPS output",
                        {{"mode", "0 coarse, 1 fine, 2 auto, 3 manual; others fail"},
                         {"value", "travel time over the hop in ns, for mode 3"}}),
            makeCommand("setPpsSource", &Commands::setPpsSource, "Choose the source of the PPS output",
                        {{"source", "0, 1 or 2; others fail"}, {"parameter", "parameter of the source"}}),
            makeCommand("setPpsOutputMode", &Commands::setPpsOutputMode, "Choose the mode of the PPS output",
                        {{"mode", "0, 1 or 2; others fail"}}),
            makeCommand("startDpd", &Commands::startDpd, "Start digital predistortion"),
            makeCommand("stopDpd", &Commands::stopDpd, "Stop digital predistortion"),
            makeCommand("setDpdCoefficients", &Commands::setDpdCoefficients, "Write the predistortion coefficients",
                        {{"coefficients", "in the controller's own coding"}}),
            makeCommand("getDpdCoefficients", &Commands::getDpdCoefficients, "Print the predistortion coefficients"),
            makeCommand("setXpicSlaveMute", &Commands::setXpicSlaveMute, "Mute or unmute the XPIC slave",
                        {{"mute", "0 unmutes, others mute"}}),
            makeCommand(
                "xpicAcquireStart", &Commands::xpicAcquireStart, "Start an XPIC acquisition",
                {{"acquireMode", "0 full sweep, 1 narrow sweep, 2 direct; others are refused"},
                 {"acquireOption", "1 retry, 2 re-acquire after a loss, 3 both, 0 neither; others are refused"}}),
            makeCommand("getXpicPreamble", &Commands::getXpicPreamble,
                        "Print the XPIC preamble, 255 for an unknown one"),
            makeCommand("setXpicPreamble", &Commands::setXpicPreamble, "Choose the XPIC preamble",
                        {{"preamble", "0 to 3; others are refused"}}),
            makeCommand("getXpicStatus", &Commands::getXpicStatus, "Report the status of the XPIC"),
        }};
}

} // namespace node::commands
